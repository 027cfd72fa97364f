#include "reference/f_courses.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <vector>

#include "controls/accessible_controls.h"
#include "controls/events.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "controls/shortcuts.h"
#include "controls/TabStrip.h"
#include "reference/course_general_page.h"
#include "reference/course_page.h"
#include "reference/edited_course.h"
#include "reference/f_courses_func.h"
#include "scoring/course_checks.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usual_size(pixels(10410), pixels(8700));
constexpr int left_margin = 3 * rhythm;
constexpr int first_back_index = nine_holes;

void append(std::vector<QWidget*>& order, const std::vector<QWidget*>& more)
{
    order.insert(order.end(), more.begin(), more.end());
}

}  // namespace

f_courses::f_courses(bool new_course)
    : Form(u"f_courses"),
      isNew_(new_course),
      tabs_(named(new TabStrip, u"TabStrip1")),
      general_(new course_general_page(*this)),
      front_yards_(named(new QLabel, u"lbl_alle")),
      back_yards_(named(new QLabel, u"lbl_retour")),
      total_yards_(named(new QLabel, u"lbl_total")),
      ok_(named(make_button(u"OK"_s), u"smdsave")),
      cancel_(named(make_button(caption(u"Annuler", u"Cancel")), u"cmdan"))
{
    setWindowTitle(caption(u"Terrains", u"Golf Course"));
    lay_out();
    set_tab_order();
    take_size(usual_size);
    f_courses_func::load(*this);
    connect_events();
    add_shortcuts();
}

void f_courses::lay_out()
{
    make_tabs();
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(left_margin, 2 * rhythm, left_margin, 2 * rhythm);
    rows->setSpacing(rhythm);
    rows->addWidget(tabs_);
    rows->addWidget(scrolled(make_pages()), 1);
    rows->addLayout(make_foot());
}

void f_courses::make_tabs()
{
    name_control(*tabs_, u"Pages"_s);
    tabs_->addTab(caption(u"Information générale", u"General Information"));
    tabs_->addTab(caption(u"Aller", u"Front Nine"));
    tabs_->addTab(caption(u"Retour", u"Back Nine"));
}

QLayout* f_courses::make_pages()
{
    pages_.add(1, general_);
    pages_.add(2, holes_.make_page(2, 0));
    pages_.add(3, holes_.make_page(3, first_back_index));
    auto* place = new QGridLayout;
    for (const auto& [number, page] : pages_.members())
        place->addWidget(page, 0, 0);
    pages_(2).hide();
    pages_(3).hide();
    return place;
}

QLayout* f_courses::make_foot()
{
    auto* foot = new QHBoxLayout;
    foot->setSpacing(rhythm);
    foot->addLayout(make_total(caption(u"Aller :", u"Front :"), front_yards_));
    foot->addSpacing(2 * rhythm);
    foot->addLayout(make_total(caption(u"Retour :", u"Back :"), back_yards_));
    foot->addSpacing(2 * rhythm);
    foot->addLayout(make_total(u"Total :"_s, total_yards_));
    foot->addStretch();
    foot->addWidget(ok_);
    foot->addWidget(cancel_);
    return foot;
}

QLayout* f_courses::make_total(const QString& caption, QLabel* figure)
{
    figure->setText(u"0"_s);
    figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    make_bold(*figure);
    figure->setMinimumWidth(figure->fontMetrics().horizontalAdvance(u"-00000"_s));
    auto* total = new QHBoxLayout;
    total->setSpacing(rhythm / 2);
    total->addWidget(named(make_label(caption, figure), QString(figure->objectName() + u"_caption")));
    total->addWidget(figure);
    return total;
}

void f_courses::set_tab_order()
{
    std::vector<QWidget*> order{tabs_};
    append(order, general_->tab_order());
    append(order, holes_.tab_order(0));
    append(order, holes_.tab_order(first_back_index));
    append(order, {ok_, cancel_});
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    general_->focus_name();
}

void f_courses::connect_events()
{
    on_signal(*general_, &course_general_page::changed, [this] { mark_changed(); });
    on_signal(holes_, &course_holes::yards_entered, [this] { f_courses_func::yards_entered(*this); });
    on_signal(*tabs_, &TabStrip::clicked, [this] { f_courses_func::page_clicked(*this); });
    on_click(*ok_, [this] {
        save();
        closeForm();
    });
    on_click(*cancel_, [this] { closeForm(); });
    set_cancel_button(*cancel_);
}

/// The modal editor disables the main window, so the mouse cannot reach its toolbar.
void f_courses::add_shortcuts()
{
    const auto press = [this](QStringView button) {
        return [this, button] { f_courses_func::toolbar_clicked(*this, button); };
    };
    shortcuts().add(shortcut_table::save_course, press(u"B1"));
    shortcuts().add(shortcut_table::close_course, press(u"B5"));
}

QString f_courses::course_name() const
{
    return general_->trimmed_text(course_general_page::name);
}

int f_courses::tee() const
{
    return general_->tee();
}

QString f_courses::tee_text() const
{
    return general_->tee_text();
}

bool f_courses::has_name_and_figures() const
{
    using page = course_general_page;
    return verdane::has_name_and_figures(general_->text(page::name), general_->text(page::rating),
                                         general_->text(page::slope));
}

void f_courses::show_rows()
{
    edited_course::show(*general_, holes_);
}

void f_courses::write_key(const QString& base) const
{
    edited_course::write_key(*general_, base);
}

void f_courses::write_rows() const
{
    edited_course::write(*general_, holes_);
}

int16 f_courses::selected_page() const
{
    return tabs_->selected();
}

void f_courses::show_page(int16 page)
{
    pages_(plain(page)).show();
    pages_(plain(curFrame_)).hide();
    curFrame_ = page;
}

void f_courses::focus_first_box()
{
    if (curFrame_ == 1)
        general_->focus_name();
    else
        holes_.focus_yards(curFrame_ == 2 ? 0 : first_back_index);
}

void f_courses::show_totals()
{
    const int16 front = holes_.yards_between(0, first_back_index);
    const int16 back = holes_.yards_between(first_back_index, hole_count);
    const int16 total = front + back;
    front_yards_->setText(QString::number(plain(front)));
    back_yards_->setText(QString::number(plain(back)));
    total_yards_->setText(QString::number(plain(total)));
}

void f_courses::save()
{
    f_courses_func::save(*this);
}

void f_courses::closeForm()
{
    f_courses_func::close(*this);
}

void f_courses::unloading()
{
    f_courses_func::unload(*this);
}

}  // namespace verdane
