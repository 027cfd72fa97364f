#include "statistics/selection_filters.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>

#include "base/language.h"
#include "base/text.h"
#include "controls/accessible_controls.h"
#include "controls/control_array.h"
#include "controls/list_box.h"
#include "records/course_rows.h"
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

bool is_on(const QComboBox& filter)
{
    return filter.currentIndex() > 0;
}

QString key_of_selected(const QListWidget& rounds)
{
    return Verdane_tools::key_of_entry(rounds.currentItem()->text());
}

/// The stored weather, "0" to "3"; empty if the filter is off.
QString chosen_weather(const QComboBox& weather)
{
    return is_on(weather) ? QString::number(weather.currentIndex() - 1) : QString();
}

/// The number of the partner; empty if the filter is off.
QString chosen_partner(const QComboBox& partner)
{
    return is_on(partner) ? partner.currentData().toString() : QString();
}

/// The code of the course; empty if the filter is off.
QString chosen_course(const QComboBox& course)
{
    if (!is_on(course))
        return {};
    // The courses are in the order of their rows.
    Recordset& rows = data_environment().rsvrd_fields;
    rows.Open();
    const QString code = Round_functions::course_code_at(course.currentIndex() - 1);
    rows.Close();
    return code;
}

QString text_of(const QComboBox& filter, const std::optional<QString>& unfiltered)
{
    return is_on(filter) ? filter.currentText() : unfiltered.value_or(filter.currentText());
}

}  // namespace

selection_controls make_selection_controls(int characters_of_a_line, int lines_in_view)
{
    return {named(make_list_box(characters_of_a_line, lines_in_view), u"List1"),
            named(make_list_box(characters_of_a_line, lines_in_view), u"List2"),
            named(new QComboBox, u"conditions"), named(new QComboBox, u"pList"),
            named(new QComboBox, u"cmb_courses")};
}

void add_filter(QFormLayout& form, QLabel* label, QComboBox* filter, int characters)
{
    label_control(*label, *filter);
    form.addRow(label, filter);
    filter->setMinimumContentsLength(characters);
    filter->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

int fill_rounds(const selection_controls& controls, Round_functions::course_names names)
{
    DataEnvironment1& store = data_environment();
    Round_functions::open_rounds_in_time_order();
    store.rsfield_info.Open();
    const QStringList lines = Round_functions::round_list_lines(names);
    for (QListWidget* list : {controls.first_round, controls.last_round})
        fill_list_box(*list, lines);
    store.rsgames.Close();
    store.rsfield_info.Close();
    return static_cast<int>(lines.size());
}

void fill_partners_and_courses(const selection_controls& controls, bool french, tee_letters letters)
{
    fill_partner_filter(*controls.partner, french);
    fill_course_filter(*controls.course, french, letters);
    for (QComboBox* filter : {controls.partner, controls.course})
        filter->setCurrentIndex(0);
}

void fill_weather(const selection_controls& controls, bool french)
{
    controls.weather->addItem(text_pair{u"Toutes", u"ALL"}.in(french));
    for (const text_pair& weather : weather_words)
        controls.weather->addItem(weather.in(french));
    controls.weather->setCurrentIndex(0);
}

selection_arguments selection_of(const selection_controls& controls, clause_form form,
                                 const unfiltered_texts& texts)
{
    selection_arguments chosen;
    chosen.from_key = key_of_selected(*controls.first_round);
    chosen.to_key = key_of_selected(*controls.last_round);
    chosen.weather_value = chosen_weather(*controls.weather);
    chosen.weather_clause = clause_of(filter::weather, form, chosen.weather_value);
    chosen.weather_text = text_of(*controls.weather, texts.weather);
    chosen.partner_number = chosen_partner(*controls.partner);
    chosen.partner_clause = clause_of(filter::partner, form, chosen.partner_number);
    chosen.partner_text = text_of(*controls.partner, texts.partner);
    chosen.course_code = chosen_course(*controls.course);
    chosen.course_clause = clause_of(filter::course, form, chosen.course_code);
    chosen.course_text = text_of(*controls.course, texts.course);
    return chosen;
}

}  // namespace verdane
