#include "tests/reports/page_pictures.h"

#include <algorithm>
#include <vector>

#include "reports/report_document.h"

namespace verdane::testing {

namespace {

/// The side of a square, and the distance from one to the next, in dots.
constexpr int side = 6;
constexpr int stride = 2;

const QRgb* row_of(const QImage& picture, int y)
{
    return reinterpret_cast<const QRgb*>(picture.constScanLine(y));
}

/// The shades of one colour around a dot.
struct shade_range {
    int least = 255;
    int most = 0;

    void take(int shade)
    {
        least = std::min(least, shade);
        most = std::max(most, shade);
    }
    int distance_to(int shade) const { return std::max({0, least - shade, shade - most}); }
};

/// The distance of a dot's colour from those at the same place and beside it in the other picture.
int dot_difference(QRgb dot, const QImage& other, const QPoint& place)
{
    if (dot == row_of(other, place.y())[place.x()])
        return 0;
    const QRect around = QRect(place, place).adjusted(-1, -1, 1, 1).intersected(other.rect());
    shade_range red, green, blue;
    for (int y = around.top(); y <= around.bottom(); ++y)
        for (int x = around.left(); x <= around.right(); ++x) {
            const QRgb near = row_of(other, y)[x];
            red.take(qRed(near));
            green.take(qGreen(near));
            blue.take(qBlue(near));
        }
    return std::max(
        {red.distance_to(qRed(dot)), green.distance_to(qGreen(dot)), blue.distance_to(qBlue(dot))});
}

/// The differences of all dots of an area, row by row.
std::vector<int> dot_differences(const QImage& one, const QImage& other, const QRect& area)
{
    std::vector<int> dots;
    dots.reserve(static_cast<std::size_t>(area.width() * area.height()));
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            dots.push_back(dot_difference(row_of(one, y)[x], other, {x, y}));
    return dots;
}

int sum_of_square(const std::vector<int>& dots, int width, int left, int top)
{
    int sum = 0;
    for (int y = top; y < top + side; ++y)
        for (int x = left; x < left + side; ++x)
            sum += dots[static_cast<std::size_t>(y * width + x)];
    return sum;
}

double most_different_square(const QImage& one, const QImage& other, const QRect& area)
{
    const std::vector<int> dots = dot_differences(one, other, area);
    int most = 0;
    for (int top = 0; top + side <= area.height(); top += stride)
        for (int left = 0; left + side <= area.width(); left += stride)
            most = std::max(most, sum_of_square(dots, area.width(), left, top));
    return double(most) / (side * side);
}

}  // namespace

QImage picture_of(const report_document& document, int page)
{
    return document.page_image(page, 80).convertToFormat(QImage::Format_RGB32);
}

double largest_difference(const QImage& one, const QImage& other, const QRect& area)
{
    const QRect inside = area.intersected(one.rect());
    // Compares in both directions: one finds what is missing in the other picture, the other what is new.
    return std::max(most_different_square(one, other, inside), most_different_square(other, one, inside));
}

}  // namespace verdane::testing
