#include "statistics/f_date_range.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

#include "base/language.h"
#include "controls/accessible_controls.h"
#include "controls/events.h"
#include "controls/list_box.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "statistics/f_date_range_func.h"
#include "statistics/selection_filters.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

// Date, time, a course's name of some length and the mark.
constexpr int characters_of_a_line = 52;
constexpr int lines_in_view = 12;

struct mode_look {
    statistics_mode mode;
    QPushButton* button;
    text_pair title;
};

QComboBox* make_filter(QStringView name)
{
    auto* filter = named(new QComboBox, name);
    filter->setMinimumContentsLength(28);
    filter->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return filter;
}

}  // namespace

f_date_range::f_date_range(statistics_mode mode)
    : Form(u"f_date_range"), cr1(this), cr2(this), cr3(this), mode_(mode)
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
        {statistics_mode::club, Command1, {u"Statistiques des bâtons", u"Club Statistics"}},
        {statistics_mode::putt, OKButton, {u"Statistiques des coups roulés", u"Putt Statistics"}},
        {statistics_mode::round, Command2, {u"Statistiques des rondes", u"Round Statistics"}},
        {statistics_mode::cost, Command3, {u"Statistiques des coûts", u"Cost Statistics"}},
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
    lists->addWidget(make_list_frame(u"Frame1", 0, caption(u"De...", u"From..."), List1));
    lists->addWidget(make_list_frame(u"Frame2", 1, caption(u"À...", u"To..."), List2));
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

QWidget* f_date_range::make_list_frame(QStringView name, int label, const QString& words, QListWidget*& list)
{
    auto* frame = named(new QGroupBox(caption(u"Date / Heure / Terrain", u"Date / Time / Course")), name);
    list = named(make_list_box(characters_of_a_line, lines_in_view), label == 0 ? u"List1" : u"List2");
    auto* inside = new QVBoxLayout(frame);
    inside->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    inside->setSpacing(rhythm / 2);
    inside->addWidget(Label1.add(label, make_label(words, list)));
    inside->addWidget(list);
    return frame;
}

QLayout* f_date_range::make_filters()
{
    cmb_courses = make_filter(u"cmb_courses");
    pList = make_filter(u"pList");
    conditions = make_filter(u"conditions");
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(rhythm);
    form->setVerticalSpacing(rhythm);
    add_filter(*form, Label1.add(2, make_label(caption(u"Terrain :", u"Golf Course :"))), cmb_courses);
    add_filter(*form, Label1.add(3, make_label(caption(u"Partenaire :", u"Partners :"))), pList);
    add_filter(*form,
               Label1.add(4, make_label(caption(u"Conditions atmosphériques :", u"Weather Conditions :"))),
               conditions);
    return form;
}

QLayout* f_date_range::make_counts()
{
    auto* count = new QHBoxLayout;
    count->setSpacing(rhythm);
    QLabel* figure = Label1.add(count_label, make_label(u"XX"_s));
    const QString words = caption(u"Nombre de parties jouées:", u"Number of rounds :");
    count->addWidget(Label1.add(6, make_label(words, figure)));
    count->addWidget(figure, 1);
    auto* rows = new QVBoxLayout;
    rows->setSpacing(rhythm);
    rows->addWidget(
        Label1.add(5, make_label(caption(u"** Attention : Ces rondes ne sont pas complétées",
                                         u"**Attention : these rounds have not been completed."))));
    rows->addLayout(count);
    rows->addStretch(1);
    return rows;
}

QLayout* f_date_range::make_foot()
{
    Status = named(new QProgressBar, u"Status");
    name_control(*Status, caption(u"Progression", u"Progress"));
    Status->setRange(0, 100);
    Status->setValue(0);
    Status->setTextVisible(false);
    // Showing or hiding the bar does not move the buttons.
    QSizePolicy retained = Status->sizePolicy();
    retained.setRetainSizeWhenHidden(true);
    Status->setSizePolicy(retained);
    Status->hide();
    Command1 = named(make_button(u"OK"_s), u"Command1");
    Command2 = named(make_button(u"OK"_s), u"Command2");
    Command3 = named(make_button(u"OK"_s), u"Command3");
    OKButton = named(make_button(u"OK"_s), u"OKButton");
    CancelButton = named(make_button(caption(u"Annuler", u"Cancel")), u"CancelButton");
    auto* foot = new QHBoxLayout;
    foot->setSpacing(rhythm);
    foot->addWidget(Status, 1);
    foot->addSpacing(2 * rhythm);
    for (QPushButton* run : {Command1, Command2, Command3, OKButton})
        foot->addWidget(run);
    foot->addWidget(CancelButton);
    return foot;
}

void f_date_range::connect_events()
{
    for (QListWidget* list : {List1, List2})
        on_select(*list, [this] { f_date_range_func::count_rounds_between(*this); });
    on_click(*Command1, [this] { f_date_range_func::run_club_statistics(*this); });
    on_click(*Command2, [this] { f_date_range_func::run_round_statistics(*this); });
    on_click(*Command3, [this] { f_date_range_func::run_cost_statistics(*this); });
    on_click(*OKButton, [this] { f_date_range_func::run_putt_statistics(*this); });
    for (QPushButton* run : {Command1, Command2, Command3, OKButton})
        take_double_click_as_one(*run);
    on_click(*CancelButton, [this] { f_date_range_func::cancel(*this); });
    set_cancel_button(*CancelButton);
}

void f_date_range::closeForm()
{
    f_date_range_func::close_form(*this);
}

void f_date_range::unloading()
{
    f_date_range_func::unload();
}

}  // namespace verdane
