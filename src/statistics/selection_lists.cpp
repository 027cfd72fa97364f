#include "statistics/selection_lists.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

#include "base/language.h"
#include "base/text.h"
#include "controls/accessible_controls.h"
#include "records/partner_columns.h"
#include "records/round_columns.h"
#include "scoring/Verdane_tools.h"
#include "scoring/words.h"
#include "store/close_if_open.h"
#include "store/DataEnvironment1.h"

namespace verdane {

namespace {

constexpr int course_width = 20;

QString partner_line(Recordset& partners)
{
    return partners.Fields(partner_columns::surname).text_or_empty() + u", " +
           partners.Fields(partner_columns::name).text_or_empty();
}

QString course_line(Recordset& courses, tee_letters letters)
{
    QString name = courses.Fields(round_columns::name).text_or_empty();
    const QString code = courses.Fields(round_columns::code).trimmed();
    const QString tee = Verdane_tools::tee_name(QStringView(code).right(1));
    return Verdane_tools::pad_right(name, static_cast<std::int16_t>(course_width)) + u", " +
           (letters == tee_letters::capitals ? in_capitals(tee) : tee);
}

template <typename Add>
void for_each_row(Recordset& rows, Add add)
{
    close_if_open(rows);
    rows.Open();
    if (!rows.empty()) {
        for (rows.MoveFirst(); !rows.eof(); rows.MoveNext())
            add(rows);
    }
    rows.Close();
}

}  // namespace

void add_filter(QFormLayout& form, QLabel* label, QComboBox* filter)
{
    label_control(*label, *filter);
    form.addRow(label, filter);
}

void fill_partner_filter(QComboBox& list, bool french)
{
    list.addItem(text_pair{u"Tous", u"All"}.in(french));
    for_each_row(data_environment().rspartners, [&list](Recordset& partners) {
        list.addItem(partner_line(partners), plain(partners.Fields(partner_columns::code).int32_or_zero()));
    });
}

void fill_course_filter(QComboBox& list, bool french, tee_letters letters)
{
    list.addItem(text_pair{u"Tous les terrains", u"All courses"}.in(french));
    for_each_row(data_environment().rsvrd_fields,
                 [&](Recordset& courses) { list.addItem(course_line(courses, letters)); });
}

void fill_weather_filter(QComboBox& list, bool french)
{
    list.addItem(text_pair{u"Toutes", u"ALL"}.in(french));
    for (const text_pair& weather : weather_words)
        list.addItem(weather.in(french));
    list.setCurrentIndex(0);
}

}  // namespace verdane
