#include "course_box.h"

#include <QStyledItemDelegate>

#include <algorithm>

#include "text.h"
#include "Verdane_tools.h"

namespace verdane {

namespace {

constexpr std::int16_t name_width = 195;
constexpr int shown_characters = 20;

/// Shows a line of the open list without the padding between the name and the tee.
class unpadded_lines : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale&) const override
    {
        const QString line = value.toString();
        const auto tee = line.lastIndexOf(u',');
        return trimmed_blanks(QStringView(line).left(tee)) + QStringView(line).mid(tee);
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

int course_box::place_of(const QString& code) const
{
    return std::max(0, findData(code));
}

}  // namespace verdane
