#include "reference/bag_filters.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

#include "controls/accessible_controls.h"
#include "controls/control_array.h"
#include "controls/events.h"
#include "controls/Form.h"
#include "controls/look.h"
#include "scoring/limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// Date, time and a course name of average length in capitals.
constexpr int characters_of_a_line = 54;
constexpr int lines_in_view = 6;
constexpr int characters_of_a_choice = 20;
constexpr int short_figure = 2;

}  // namespace

bag_filters::bag_filters(const Form& window)
    : window_(window), controls_(make_selection_controls(characters_of_a_line, lines_in_view))
{
    setObjectName(u"Frame1"_s);
    name_control(*this, window.caption(u"Rondes des moyennes", u"Rounds of the averages"));
    auto* update = named(make_button(window.caption(u"Actualiser", u"Update")), u"Actualiser");
    connect(update, &QPushButton::clicked, this, &bag_filters::update_clicked);
    take_double_click_as_one(*update);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    rows->setSpacing(rhythm);
    rows->addWidget(
        make_list_frame(u"Fr1", u"lbl_from", window.caption(u"De...", u"From..."), *controls_.first_round),
        1);
    rows->addWidget(
        make_list_frame(u"Fr2", u"lbl_to", window.caption(u"À...", u"To..."), *controls_.last_round), 1);
    rows->addLayout(make_choices());
    rows->addLayout(make_disabled_boxes());
    rows->addWidget(update, 0, Qt::AlignRight);
}

QWidget* bag_filters::make_list_frame(QStringView name, QStringView label_name, const QString& words,
                                      QListWidget& list)
{
    auto* frame =
        named(new QGroupBox(window_.caption(u"Date / Heure / Terrain", u"Date / Time / Course")), name);
    auto* inside = new QVBoxLayout(frame);
    inside->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    inside->setSpacing(rhythm / 2);
    inside->addWidget(named(make_label(words, &list), label_name));
    inside->addWidget(&list, 1);
    return frame;
}

QLayout* bag_filters::make_choices()
{
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(rhythm);
    form->setVerticalSpacing(rhythm / 2);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    // The window is too narrow for labels next to the lists.
    form->setRowWrapPolicy(QFormLayout::WrapAllRows);
    const auto add = [&](QStringView name, const QString& words, QComboBox* filter) {
        add_filter(*form, named(make_label(words), name), filter, characters_of_a_choice);
    };
    add(u"lbl_conditions", window_.caption(u"Conditions atmosphériques :", u"Weather Conditions :"),
        controls_.weather);
    add(u"lbl_pList", window_.caption(u"Partenaire :", u"Partners :"), controls_.partner);
    add(u"lbl_cmb_courses", window_.caption(u"Terrain :", u"Golf Course :"), controls_.course);
    return form;
}

/// Boxes for a time of day and a temperature. No filter uses them; they are disabled.
QLayout* bag_filters::make_disabled_boxes()
{
    control_array<QLineEdit> boxes(u"Text1");
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(rhythm / 2);
    grid->setVerticalSpacing(rhythm / 2);
    grid->setColumnStretch(5, 1);
    const std::array<QString, 2> kinds{window_.caption(u"Heure :", u"Time :"),
                                       window_.caption(u"Température :", u"Temperature :")};
    // The members before them are the averages of the clubs.
    int index = club_count;
    for (int row = 0; row < static_cast<int>(kinds.size()); ++row) {
        int column = 0;
        auto* kind = make_label(kinds.at(static_cast<std::size_t>(row)));
        grid->addWidget(named(kind, u"lbl_unread_%1"_s.arg(row)), row, column++);
        for (const QString& word :
             {window_.caption(u"entre ", u"between "), window_.caption(u"et ", u"and ")}) {
            auto* label = named(make_label(word), u"lbl_Text1_%1"_s.arg(index));
            auto* box = boxes.add(index++, make_number_box(short_figure));
            box->setEnabled(false);
            box->setAccessibleName(word);
            grid->addWidget(label, row, column++);
            grid->addWidget(box, row, column++);
        }
    }
    return grid;
}

void bag_filters::fill_weather()
{
    verdane::fill_weather(controls_, window_.french());
}

bool bag_filters::fill_rounds()
{
    return verdane::fill_rounds(controls_, Round_functions::course_names::in_capitals) > 0;
}

void bag_filters::fill_partners_and_courses()
{
    verdane::fill_partners_and_courses(controls_, window_.french(), tee_letters::capitals);
}

selection_arguments bag_filters::selection() const
{
    selection_arguments chosen = selection_of(controls_, clause_form::appended,
                                              {window_.caption(u"TOUS LES PARTENAIRES", u"All partners"),
                                               window_.caption(u"TOUS LES TERRAINS", u"All COURSES")});
    // The statement of the averages contains no blank for this filter.
    if (chosen.course_code.isEmpty())
        chosen.course_clause = QString();
    return chosen;
}

}  // namespace verdane
