#include "round/parameters_pane.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <initializer_list>

#include "base/language.h"
#include "controls/control_array.h"
#include "controls/Form.h"
#include "controls/list_box.h"
#include "controls/look.h"
#include "round/parameter_boxes.h"
#include "scoring/words.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int money_digits = 6;
constexpr int visible_partners = 4;

void add_block(QBoxLayout& frame, const QString& caption, QWidget* control, int stretch = 0)
{
    auto* block = new QVBoxLayout;
    block->setSpacing(rhythm / 2);
    block->addWidget(make_label(caption, control));
    block->addWidget(control, stretch);
    frame.addLayout(block, stretch);
}

/// A line with the caption of the first control on the left and the controls on the right.
void add_line(QBoxLayout& frame, const QString& caption, std::initializer_list<QWidget*> controls)
{
    auto* line = new QHBoxLayout;
    line->setSpacing(rhythm);
    line->addWidget(make_label(caption, *controls.begin()));
    line->addStretch();
    for (QWidget* control : controls)
        line->addWidget(control);
    frame.addLayout(line);
}

/// The height of a list that shows that many whole lines.
int height_of_lines(QListWidget& list, int lines)
{
    list.addItem(u"X"_s);
    const int line = list.sizeHintForRow(0) + 2 * list.spacing();
    list.clear();
    return lines * line + 2 * list.frameWidth();
}

QListWidget* make_partner_list()
{
    auto* list = named(new QListWidget, u"pList");
    list->setSelectionMode(QAbstractItemView::MultiSelection);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    list->setSpacing(rhythm / 4);
    list->setMinimumHeight(height_of_lines(*list, visible_partners));
    return list;
}

}  // namespace

parameters_pane::parameters_pane(const Form& window)
    : QGroupBox(window.caption(u"Paramètres", u"Parameters")),
      courses_(named(new course_box, u"cmb_courses")),
      weathers_(named(new QComboBox, u"conditions")),
      temperature_(named(new temperature_box, u"UpDown1")),
      partners_(make_partner_list()),
      costs_box_(named(make_figure(money_digits), u"text_7")),
      costs_button_(named(make_button(window.caption(u"Détails", u"Details")), u"Command2")),
      blocks_(new QVBoxLayout(this))
{
    setObjectName(u"Frame8"_s);
    // Side by side, the two lists are on one line.
    weathers_->setMinimumHeight(courses_->sizeHint().height());
    lay_out(window);
    connect(courses_, &QComboBox::currentIndexChanged, this, &parameters_pane::course_changed);
    connect(costs_button_, &QPushButton::clicked, this, &parameters_pane::costs_clicked);
}

void parameters_pane::lay_out(const Form& window)
{
    blocks_->setContentsMargins(rhythm, rhythm, rhythm, rhythm);
    blocks_->setSpacing(rhythm + rhythm / 2);
    add_block(*blocks_, window.caption(u"Terrain", u"Golf Course"), courses_);
    add_block(*blocks_, window.caption(u"Conditions atmosphériques", u"Weather Conditions "), weathers_);
    add_line(*blocks_, u"Temp. :"_s, {temperature_});
    add_block(*blocks_, window.caption(u"Partenaires", u"Partners"), partners_, 1);
    show_text_when_empty(*partners_, window.caption(u"Aucun partenaire", u"No partner"));
    add_line(*blocks_, window.caption(u"Coûts", u"Costs"), {costs_box_, costs_button_});
}

void parameters_pane::fill_courses(const std::vector<listed_course>& courses)
{
    const QSignalBlocker silence(courses_);
    courses_->clear();
    for (const listed_course& course : courses)
        courses_->add_course(course.name, course.code);
    courses_->setCurrentIndex(-1);
}

void parameters_pane::select_course(int list_index)
{
    courses_->setCurrentIndex(list_index);
}

void parameters_pane::select_course(const QString& code)
{
    courses_->setCurrentIndex(courses_->index_of(code));
}

int parameters_pane::course_index() const
{
    return courses_->currentIndex();
}

QString parameters_pane::course() const
{
    return courses_->course();
}

void parameters_pane::fill_partners(const std::vector<partner_line>& partners)
{
    for (const partner_line& partner : partners) {
        auto* line = new QListWidgetItem(partner.text, partners_);
        line->setData(Qt::UserRole, partner.number);
        line->setSelected(partner.selected);
    }
}

QStringList parameters_pane::selected_partners() const
{
    QStringList numbers;
    for (int row = 0; row < partners_->count(); ++row) {
        const QListWidgetItem* line = partners_->item(row);
        if (line->isSelected())
            numbers << line->data(Qt::UserRole).toString();
    }
    return numbers;
}

void parameters_pane::fill_weathers(bool french)
{
    for (const text_pair& weather : weather_words)
        weathers_->addItem(weather.in(french));
    weathers_->setCurrentIndex(0);
}

void parameters_pane::show_weather(int index)
{
    weathers_->setCurrentIndex(index);
}

int parameters_pane::weather_index() const
{
    return weathers_->currentIndex();
}

QString parameters_pane::weather() const
{
    return weathers_->currentText();
}

void parameters_pane::show_temperature(int celsius)
{
    temperature_->show_value(celsius);
}

int parameters_pane::temperature() const
{
    return temperature_->value();
}

void parameters_pane::show_costs(const QString& total)
{
    costs_box_->setText(total);
}

void parameters_pane::arrange(Qt::Orientation orientation)
{
    const bool below_each_other = orientation == Qt::Vertical;
    blocks_->setDirection(below_each_other ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    for (int block = 0; block < blocks_->count(); ++block)
        blocks_->itemAt(block)->setAlignment(below_each_other ? Qt::Alignment() : Qt::AlignBottom);
    // Side by side, the list of partners is limited to the height of a few lines.
    partners_->setMaximumHeight(below_each_other ? QWIDGETSIZE_MAX : partners_->minimumHeight());
    // Without this the window uses the minimum size of the other arrangement until the next event.
    updateGeometry();
}

std::vector<QWidget*> parameters_pane::tab_order() const
{
    return {courses_, weathers_, temperature_, partners_, costs_button_};
}

std::vector<QWidget*> parameters_pane::wheel_controls() const
{
    return {courses_, weathers_, temperature_};
}

}  // namespace verdane
