#include "round/parameter_boxes.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QStyledItemDelegate>

#include <algorithm>

#include "base/text.h"
#include "records/course_rows.h"
#include "scoring/Verdane_tools.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

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

course_box::course_box(QWidget* parent) : QComboBox(parent)
{
    setItemDelegate(new unpadded_lines(this));
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(shown_characters);
}

void course_box::add_course(QString name, const QString& code)
{
    const QString tee = in_capitals(Verdane_tools::tee_name(QStringView(code).right(1)));
    const QString line = Verdane_tools::pad_right(name, name_width) + u", " + tee;
    addItem(line, code);
    setItemData(count() - 1, unpadded(line), Qt::AccessibleTextRole);
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
