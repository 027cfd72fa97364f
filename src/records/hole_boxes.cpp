#include "records/hole_boxes.h"

#include "base/numbers.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

const hole_boxes* open_boxes = nullptr;

}  // namespace

void set_hole_boxes(const hole_boxes* boxes)
{
    open_boxes = boxes;
}

hole_figures figures_from_boxes()
{
    if (open_boxes == nullptr)
        throw run_time_failure(failure_kind::misuse, u"a hole's boxes were read with no round window open"_s);
    return open_boxes->figures();
}

int16 figure_of_box(QStringView text)
{
    return to_int16(text);
}

QString sum_of_boxes(std::initializer_list<QString> texts)
{
    double sum = 0;
    for (const QString& text : texts)
        sum += leading_number(text);
    return number_text(sum);
}

}  // namespace verdane
