#include "round/course_box.h"

#include <QAbstractItemView>
#include <QScreen>
#include <QStyledItemDelegate>

#include <algorithm>

#include "base/text.h"
#include "records/course_rows.h"
#include "scoring/Verdane_tools.h"

namespace verdane {

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

}  // namespace verdane
