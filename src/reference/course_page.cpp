#include "reference/course_page.h"

#include <QGridLayout>
#include <QLabel>

#include "controls/look.h"

namespace verdane {

course_page::course_page()
{
    setFrameShape(QFrame::NoFrame);
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
}

QGridLayout* course_page::make_grid(int vertical_gap)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 2 * rhythm, 0, rhythm);
    grid->setHorizontalSpacing(2 * rhythm);
    grid->setVerticalSpacing(vertical_gap);
    return grid;
}

void make_bold(QLabel& label)
{
    QFont font = label.font();
    font.setBold(true);
    label.setFont(font);
}

}  // namespace verdane
