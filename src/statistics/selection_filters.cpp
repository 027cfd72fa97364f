#include "statistics/selection_filters.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>

#include "base/language.h"
#include "base/text.h"
#include "controls/accessible_controls.h"
#include "records/round_rows.h"
#include "scoring/round_key.h"
#include "scoring/Verdane_tools.h"
#include "scoring/words.h"
#include "store/DataEnvironment1.h"
#include "store/Recordset.h"
#include "store/tables/courses.h"
#include "store/tables/partners.h"

namespace verdane {

namespace {

/// Characters of the name in the line of a course.
constexpr int course_width = 20;

QString partner_line(Recordset& partners)
{
    return partners.Fields(tables::partners::SURNAME).text_or_empty() + u", " +
           partners.Fields(tables::partners::NAME).text_or_empty();
}

QString course_line(Recordset& courses, tee_letters letters)
{
    QString name = courses.Fields(tables::vrd_fields::name).text_or_empty();
    const QString code = courses.Fields(tables::vrd_fields::code).trimmed();
    const QString tee = Verdane_tools::tee_name(QStringView(code).right(1));
    return Verdane_tools::pad_right(name, course_width) + u", " +
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
        list.addItem(partner_line(partners), plain(partners.Fields(tables::partners::code).int32_or_zero()));
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

bool is_on(const QComboBox& filter)
{
    return filter.currentIndex() > 0;
}

QString chosen_round_key(const QListWidget& rounds)
{
    return Verdane_tools::key_of_entry(rounds.currentItem()->text());
}

QString chosen_weather(const QComboBox& conditions)
{
    return is_on(conditions) ? QString::number(conditions.currentIndex() - 1) : QString();
}

QString chosen_partner(const QComboBox& partners)
{
    return is_on(partners) ? partners.currentData().toString() : QString();
}

QString chosen_course(const QComboBox& courses)
{
    if (!is_on(courses))
        return {};
    // The courses are in the order of their rows.
    Recordset& rows = data_environment().rsvrd_fields;
    rows.Open();
    const QString code = Round_functions::course_code_at(courses.currentIndex() - 1);
    rows.Close();
    return code;
}

}  // namespace verdane
