#include "statistics/f_date_range.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

#include "base/language.h"
#include "controls/accessible_controls.h"
#include "controls/events.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "statistics/f_date_range_func.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

// Date, time, a course name of average length and the mark.
constexpr int characters_of_a_line = 52;
constexpr int lines_in_view = 12;
constexpr int characters_of_a_filter = 28;

/// The members of the control array `Label1`.
enum label {
    from_label,
    to_label,
    course_label,
    partner_label,
    weather_label,
    warning_label,
    rounds_label,
    count_label
};

struct mode_look {
    statistics_mode mode;
    QPushButton* button;
    text_pair title;
};

}  // namespace

f_date_range::f_date_range(statistics_mode mode)
    : Form(u"f_date_range"),
      cr1_(this),
      cr2_(this),
      cr3_(this),
      mode_(mode),
      controls_(make_selection_controls(characters_of_a_line, lines_in_view)),
      progress_(make_progress_bar()),
      run_clubs_(named(make_button(u"OK"_s), u"Command1")),
      run_rounds_(named(make_button(u"OK"_s), u"Command2")),
      run_costs_(named(make_button(u"OK"_s), u"Command3")),
      run_putts_(named(make_button(u"OK"_s), u"OKButton")),
      cancel_(named(make_button(caption(u"Annuler", u"Cancel")), u"CancelButton"))
{
    build();
    connect_events();
    show_mode();
    f_date_range_func::load(*this);
}

/// Shows one run button; the title names what it runs.
void f_date_range::show_mode()
{
    const std::array<mode_look, 4> looks{{
        {statistics_mode::club, run_clubs_, {u"Statistiques des bâtons", u"Club Statistics"}},
        {statistics_mode::putt, run_putts_, {u"Statistiques des coups roulés", u"Putt Statistics"}},
        {statistics_mode::round, run_rounds_, {u"Statistiques des rondes", u"Round Statistics"}},
        {statistics_mode::cost, run_costs_, {u"Statistiques des coûts", u"Cost Statistics"}},
    }};
    for (const mode_look& look : looks) {
        look.button->setVisible(look.mode == mode_);
        if (look.mode == mode_)
            setWindowTitle(look.title.in(french()));
    }
}

void f_date_range::build()
{
    auto* lists = new QHBoxLayout;
    lists->setSpacing(2 * rhythm);
    lists->addWidget(
        make_list_frame(u"Frame1", from_label, caption(u"De...", u"From..."), *controls_.first_round));
    lists->addWidget(make_list_frame(u"Frame2", to_label, caption(u"À...", u"To..."), *controls_.last_round));
    auto* choices = new QHBoxLayout;
    choices->setSpacing(4 * rhythm);
    choices->addLayout(make_filters());
    choices->addLayout(make_counts(), 1);
    auto* content = new QVBoxLayout;
    content->setSpacing(2 * rhythm);
    content->addLayout(lists, 1);
    content->addLayout(choices);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(2 * rhythm, 2 * rhythm, 2 * rhythm, 2 * rhythm);
    rows->setSpacing(2 * rhythm);
    rows->addWidget(scrolled(content), 1);
    rows->addLayout(make_foot());
    take_size(sizeHint());
}

QWidget* f_date_range::make_list_frame(QStringView name, int label, const QString& words, QListWidget& list)
{
    auto* frame = named(new QGroupBox(caption(u"Date / Heure / Terrain", u"Date / Time / Course")), name);
    auto* inside = new QVBoxLayout(frame);
    inside->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    inside->setSpacing(rhythm / 2);
    inside->addWidget(labels_.add(label, make_label(words, &list)));
    inside->addWidget(&list);
    return frame;
}

QLayout* f_date_range::make_filters()
{
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(rhythm);
    form->setVerticalSpacing(rhythm);
    const auto add = [&](int label, const QString& words, QComboBox* filter) {
        add_filter(*form, labels_.add(label, make_label(words)), filter, characters_of_a_filter);
    };
    add(course_label, caption(u"Terrain :", u"Golf Course :"), controls_.course);
    add(partner_label, caption(u"Partenaire :", u"Partners :"), controls_.partner);
    add(weather_label, caption(u"Conditions atmosphériques :", u"Weather Conditions :"), controls_.weather);
    return form;
}

QLayout* f_date_range::make_counts()
{
    auto* count = new QHBoxLayout;
    count->setSpacing(rhythm);
    QLabel* figure = labels_.add(count_label, make_label(u"XX"_s));
    const QString words = caption(u"Nombre de parties jouées:", u"Number of rounds :");
    count->addWidget(labels_.add(rounds_label, make_label(words, figure)));
    count->addWidget(figure, 1);
    auto* rows = new QVBoxLayout;
    rows->setSpacing(rhythm);
    rows->addWidget(labels_.add(warning_label,
                                make_label(caption(u"** Attention : Ces rondes ne sont pas complétées",
                                                   u"**Attention : these rounds have not been completed."))));
    rows->addLayout(count);
    rows->addStretch(1);
    return rows;
}

QProgressBar* f_date_range::make_progress_bar() const
{
    auto* bar = named(new QProgressBar, u"Status");
    name_control(*bar, caption(u"Progression", u"Progress"));
    bar->setRange(0, 100);
    bar->setValue(0);
    bar->setTextVisible(false);
    // Showing or hiding the bar does not move the buttons.
    QSizePolicy retained = bar->sizePolicy();
    retained.setRetainSizeWhenHidden(true);
    bar->setSizePolicy(retained);
    bar->hide();
    return bar;
}

QLayout* f_date_range::make_foot()
{
    auto* foot = new QHBoxLayout;
    foot->setSpacing(rhythm);
    foot->addWidget(progress_, 1);
    foot->addSpacing(2 * rhythm);
    for (QPushButton* run : {run_clubs_, run_rounds_, run_costs_, run_putts_})
        foot->addWidget(run);
    foot->addWidget(cancel_);
    return foot;
}

void f_date_range::connect_events()
{
    on_click(*run_clubs_, [this] { f_date_range_func::run_club_statistics(*this); });
    on_click(*run_rounds_, [this] { f_date_range_func::run_round_statistics(*this); });
    on_click(*run_costs_, [this] { f_date_range_func::run_cost_statistics(*this); });
    on_click(*run_putts_, [this] { f_date_range_func::run_putt_statistics(*this); });
    for (QPushButton* run : {run_clubs_, run_rounds_, run_costs_, run_putts_})
        take_double_click_as_one(*run);
    on_click(*cancel_, [this] { f_date_range_func::cancel(*this); });
    set_cancel_button(*cancel_);
}

void f_date_range::fill_filters()
{
    fill_partners_and_courses(controls_, french(), tee_letters::as_named);
    fill_weather(controls_, french());
}

bool f_date_range::fill_round_lists()
{
    const int rounds = fill_rounds(controls_);
    labels_(count_label).setText(QString::number(rounds));
    return rounds > 0;
}

selection_arguments f_date_range::selection(clause_form form, const unfiltered_texts& texts) const
{
    return selection_of(controls_, form, texts);
}

int16 f_date_range::rounds_between() const
{
    return controls_.last_round->currentRow() - controls_.first_round->currentRow() + 1;
}

void f_date_range::closeForm()
{
    f_date_range_func::unload_and_unlock(*this);
}

void f_date_range::unloading()
{
    f_date_range_func::unload();
}

}  // namespace verdane
