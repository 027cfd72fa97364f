#include "round/parameters_pane.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>

#include "base/language.h"
#include "base/text.h"
#include "controls/control_array.h"
#include "controls/Form.h"
#include "controls/list_box.h"
#include "controls/look.h"
#include "records/course_rows.h"
#include "scoring/Verdane_tools.h"
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

constexpr std::int16_t name_width = 195;
constexpr int shown_characters = 20;

/// An entry without the padding between name and tee.
QString unpadded(const QString& line)
{
    const auto tee = line.lastIndexOf(u',');
    return trimmed_blanks(QStringView(line).left(tee)) + QStringView(line).mid(tee);
}

/// Draws the lines of the open list.
class unpadded_lines : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale&) const override
    {
        return unpadded(value.toString());
    }
};

constexpr int coldest = -30;
constexpr int hottest = 50;

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

void parameters_pane::fill_courses(const std::vector<course_line>& courses)
{
    const QSignalBlocker silence(courses_);
    courses_->clear();
    for (const course_line& course : courses)
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

course_box::course_box(QWidget* parent) : QComboBox(parent)
{
    setItemDelegate(new unpadded_lines(this));
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(shown_characters);
}

void course_box::add_course(QString name, const QString& code)
{
    const QString tee = in_capitals(Verdane_tools::tee_name(QStringView(code).right(1)));
    addItem(QString(Verdane_tools::pad_right(name, name_width) + u", " + tee), code);
}

int course_box::index_of(const QString& code) const
{
    return std::max(0, findData(code));
}

QString course_box::course() const
{
    return currentIndex() < 0 ? QString() : unpadded(currentText());
}

void course_box::showPopup()
{
    QComboBox::showPopup();
    QWidget* list = view()->window();
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int wanted = std::max(width(), view()->sizeHintForColumn(0) + bar);
    const int rightmost = screen()->availableGeometry().right() - wanted;
    list->setGeometry(std::min(mapToGlobal(QPoint(0, 0)).x(), rightmost), list->y(), wanted, list->height());
}

temperature_box::temperature_box(QWidget* parent) : QSpinBox(parent)
{
    setRange(coldest, hottest);
    setFocusPolicy(Qt::StrongFocus);
    lineEdit()->setObjectName(u"Text1"_s);
    lineEdit()->setText(textFromValue(0));
    setAlignment(Qt::AlignRight);
    // The size hint allows for the two blanks only.
    const int figures = fontMetrics().horizontalAdvance(u"-30 C"_s);
    setMinimumWidth(sizeHint().width() + figures);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { touched_ = true; });
    connect(this, &QSpinBox::valueChanged, this, [this](int celsius) {
        // While the user types, the text changes only when the box loses the focus.
        if (!touched_ && !lineEdit()->isModified())
            show_value(celsius);
    });
}

void temperature_box::show_value(int celsius)
{
    touched_ = true;
    setValue(celsius);
}

QString temperature_box::textFromValue(int value) const
{
    return touched_ ? QString(QString::number(value) + u" C") : u"  "_s;
}

int temperature_box::valueFromText(const QString& text) const
{
    static const QRegularExpression number(u"-?[0-9]+"_s);
    const auto found = number.match(text);
    return found.hasMatch() ? found.captured().toInt() : value();
}

QValidator::State temperature_box::validate(QString& text, int&) const
{
    static const QRegularExpression whole(u"^ *(-?[0-9]{1,2})? *C?$"_s);
    static const QRegularExpression begun(u"^ *- *C?$"_s);
    if (begun.match(text).hasMatch())
        return QValidator::Intermediate;
    const auto found = whole.match(text);
    if (!found.hasMatch())
        return QValidator::Invalid;
    const int celsius = found.captured(1).toInt();
    return celsius < coldest || celsius > hottest ? QValidator::Intermediate : QValidator::Acceptable;
}

void temperature_box::stepBy(int steps)
{
    touched_ = true;
    QSpinBox::stepBy(steps);
}

}  // namespace verdane
