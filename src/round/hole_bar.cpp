#include "round/hole_bar.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <utility>

#include "controls/accessible_controls.h"
#include "controls/Form.h"
#include "controls/look.h"
#include "controls/TabStrip.h"
#include "scoring/hole_arithmetic.h"
#include "scoring/limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int card_digits = 4;
constexpr int date_characters = 10;
constexpr int time_characters = 8;

/// The indexes of the boxes in the control array `text`.
namespace index_of {
constexpr int stroke_index = 0;
constexpr int course_name = 1;
constexpr int date = 2;
constexpr int time = 3;
constexpr int par = 38;
constexpr int length = 39;
constexpr int hole = 40;
}  // namespace index_of

/// Its index in the control array `Label`.
constexpr int hole_number_label = 4;

QStringList hole_numbers()
{
    QStringList numbers;
    for (int hole = 1; hole <= hole_count; ++hole)
        numbers << QString::number(hole);
    return numbers;
}

TabStrip* make_hole_tabs(const Form& window)
{
    auto* tabs = named(new TabStrip, u"TabStrip1");
    for (const QString& number : hole_numbers())
        tabs->setAccessibleTabName(tabs->addTab(number), window.caption(u"Trou", u"Hole") + u' ' + number);
    name_control(*tabs, window.caption(u"Trous", u"Holes"));
    tabs->setExpanding(true);
    tabs->setUsesScrollButtons(true);
    return tabs;
}

void set_figure(QLineEdit& box, int16 value)
{
    box.setText(QString::number(plain(value)));
}

}  // namespace

hole_bar::hole_bar(Form& window) : hole_tabs_(make_hole_tabs(window))
{
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(rhythm);
    add_hole_choice(*line, window);
    par_box_ = add_figure(*line, index_of::par, window.caption(u"Normale :", u"Par :"), card_digits);
    length_box_ = add_figure(*line, index_of::length, window.caption(u"Verges :", u"Yards :"), card_digits);
    stroke_index_box_ = add_figure(*line, index_of::stroke_index, u"Handicap :"_s, card_digits);
    line->addStretch();
    add_date(*line, window);
    course_name_box_ = add_hidden(index_of::course_name);
    hole_box_ = add_hidden(index_of::hole);
    connect(hole_tabs_, &TabStrip::clicked, this, &hole_bar::tab_clicked);
    connect(hole_list_, &QComboBox::currentIndexChanged, this, &hole_bar::list_changed);
}

QLineEdit* hole_bar::add_figure(QHBoxLayout& line, int index, const QString& caption, int characters)
{
    QLineEdit* box = text_.add(index, make_figure(characters));
    line.addWidget(make_label(caption, box));
    line.addWidget(box);
    line.addSpacing(rhythm);
    return box;
}

QLineEdit* hole_bar::add_hidden(int index)
{
    QLineEdit* box = text_.add(index, new QLineEdit(this));
    box->hide();
    return box;
}

void hole_bar::add_hole_choice(QHBoxLayout& line, const Form& window)
{
    number_ = labels_.add(hole_number_label, new QLabel);
    QFont large = number_->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    number_->setFont(large);
    // The width of the largest number, so that nothing moves between holes.
    number_->setText(QString::number(hole_count));
    number_->setMinimumWidth(number_->sizeHint().width());
    number_->setText(QString::number(1));
    hole_list_ = named(new QComboBox, u"cmb_holes");
    line.addWidget(make_label(window.caption(u"Trou :", u"Hole :"), hole_list_));
    line.addWidget(number_);
    line.addWidget(hole_list_);
    line.addSpacing(2 * rhythm);
}

void hole_bar::add_date(QHBoxLayout& line, const Form& window)
{
    date_button_ = named(make_button(window.caption(u"Choisir", u"Select")), u"b_getdat");
    date_box_ = add_figure(line, index_of::date, u"Date :"_s, date_characters);
    time_box_ = add_figure(line, index_of::time, window.caption(u"Heure :", u"Time :"), time_characters);
    for (QLineEdit* box : {date_box_, time_box_})
        box->setAlignment(Qt::AlignCenter);
    line.addWidget(date_button_);
}

void hole_bar::set_before_tab_click(std::function<bool()> check)
{
    hole_tabs_->set_before_click(std::move(check));
}

void hole_bar::show_hole(int16 hole)
{
    hole_ = hole;
    hole_tabs_->select(plain(hole));
    number_->setText(QString::number(plain(hole)));
    set_figure(*hole_box_, hole);
}

QWidget* hole_bar::tab_strip() const
{
    return hole_tabs_;
}

int hole_bar::selected_tab() const
{
    return hole_tabs_->selected();
}

void hole_bar::click_tab(int hole)
{
    hole_tabs_->click(hole);
}

void hole_bar::set_tab_tip(const QString& text)
{
    hole_tabs_->setToolTip(text);
}

void hole_bar::fill_list()
{
    {
        const QSignalBlocker silence(hole_list_);
        hole_list_->clear();
        hole_list_->addItems(hole_numbers());
        hole_list_->setCurrentIndex(-1);
    }
    hole_list_->setCurrentIndex(0);
}

int16 hole_bar::listed_hole() const
{
    return int16(hole_list_->currentIndex() + 1);
}

void hole_bar::select_in_list_silently(int hole)
{
    const QSignalBlocker silence(hole_list_);
    hole_list_->setCurrentIndex(hole - 1);
}

void hole_bar::show_card(const Round_functions::hole_card& card)
{
    set_figure(*length_box_, card.yards);
    set_figure(*par_box_, card.par);
    set_figure(*stroke_index_box_, card.handicap);
}

Round_functions::hole_card hole_bar::card() const
{
    return {figure_of_box(length_box_->text()), figure_of_box(stroke_index_box_->text()),
            figure_of_box(par_box_->text())};
}

void hole_bar::show_tee_off(const QString& date, const QString& time)
{
    date_box_->setText(date);
    time_box_->setText(time);
}

void hole_bar::clear_date()
{
    date_box_->clear();
}

QString hole_bar::date() const
{
    return date_box_->text();
}

void hole_bar::lock_date()
{
    date_button_->setEnabled(false);
}

void hole_bar::set_course_name(const QString& name)
{
    course_name_box_->setText(name);
}

std::vector<QWidget*> hole_bar::tab_order() const
{
    return {hole_tabs_, hole_list_, date_button_};
}

QWidget* hole_bar::wheel_control() const
{
    return hole_list_;
}

}  // namespace verdane
