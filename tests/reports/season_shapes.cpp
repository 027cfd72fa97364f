#include "tests/reports/season_shapes.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

const QString green = u"#1f7a4d"_s;
const QString dark = u"#3d4843"_s;

/// The largest radius of a point. Half a point fits beside the first and the last round of a chart.
constexpr double most_radius = 11;

/// A value of the round at `place`, counted from 1.
struct round_value {
    int place = 0;
    double value = 0;
    bool is_strong = true;
};
using round_values = std::vector<round_value>;

/// The area of a chart and its scale, for the rounds of the report.
class chart {
public:
    chart(double left, double top, double width, double height, bool from_zero, int rounds,
          const round_values& values)
        : left_(left), top_(top), height_(height), pitch_((width - 2 * most_radius) / rounds)
    {
        double lowest = from_zero ? 0 : values.front().value;
        double highest = lowest;
        for (const round_value& each : values) {
            lowest = std::min(lowest, each.value);
            highest = std::max(highest, each.value);
        }
        if (!from_zero && lowest == highest) {
            --lowest;
            ++highest;
        }
        const double step = step_for(highest - lowest);
        bottom_value_ = step * std::floor(lowest / step);
        top_value_ = std::max(step * std::ceil(highest / step), bottom_value_ + step);
    }

    double x(int place) const { return left_ + most_radius + (place - 0.5) * pitch_; }
    double y(double value) const
    {
        return top_ + height_ * (top_value_ - value) / (top_value_ - bottom_value_);
    }
    double pitch() const { return pitch_; }
    double radius() const { return std::clamp(pitch_ * 0.38, 3.0, most_radius); }

private:
    /// At most six steps of 1, 2 or 5, or ten, hundred and so on times as much.
    static double step_for(double range)
    {
        for (double size = 1;; size *= 10)
            for (const int factor : {1, 2, 5})
                if (size * factor * 6 >= range)
                    return size * factor;
    }

    double left_, top_, height_, pitch_;
    double bottom_value_ = 0;
    double top_value_ = 0;
};

const std::vector<passed_row>& table(const passed_rows& rows, const QString& name)
{
    static const std::vector<passed_row> none;
    const auto found = rows.find(name);
    return found == rows.end() ? none : found->second;
}

int rounds_of(const passed_rows& rows)
{
    return static_cast<int>(table(rows, u"season_rounds"_s).size());
}

/// A column of the rounds that have a value there; with `of_played`, of those with a hole played.
round_values values_of(const passed_rows& rows, const QString& column, const QString& strong, bool of_played)
{
    round_values values;
    for (const passed_row& row : table(rows, u"season_rounds"_s)) {
        const QVariant value = row.at(column);
        if (!value.isValid() || (of_played && row.at(u"holes"_s).toInt() == 0))
            continue;
        const bool is_strong = strong.isEmpty() || row.at(strong).toInt() > 0;
        values.push_back({row.at(u"place"_s).toInt(), value.toDouble(), is_strong});
    }
    return values;
}

season_shape line_through(const chart& area, const round_values& values)
{
    season_shape line{u"polyline"_s, green, {}};
    for (const round_value& each : values) {
        line.numbers.push_back(area.x(each.place));
        line.numbers.push_back(area.y(each.value));
    }
    return line;
}

season_shape mean_line(double left, double width, double y)
{
    return {u"mean"_s, u"#1c2320"_s, {left, y, left + width, y}};
}

/// The charts of the season: the column, and what is below the first one.
struct season_chart {
    QString column;
    double left;
    double width;
    bool from_zero;
};

/// The bars of the best and the most difficult holes, below charts that end at `bottom`.
std::vector<season_shape> hole_bars(const passed_rows& rows, double bottom)
{
    const auto& holes = table(rows, u"season_holes"_s);
    double most = 0.01;
    for (const passed_row& hole : holes)
        most = std::max(most, std::abs(hole.at(u"mean_over"_s).toDouble()));
    std::vector<season_shape> bars;
    for (const passed_row& hole : holes) {
        const double over = hole.at(u"mean_over"_s).toDouble();
        const double left = hole.at(u"is_best"_s).toInt() == 1 ? 820 : 2160;
        const double top = bottom + 310 + 42 * hole.at(u"rank"_s).toInt();
        bars.push_back({u"bar"_s, over <= 0 ? green : dark, {left, top, 300 * std::abs(over) / most, 22}});
    }
    return bars;
}

double number(const QXmlStreamAttributes& attributes, const char* name)
{
    return attributes.value(QString::fromLatin1(name)).toDouble();
}

/// The shape of an element; nothing for one of the legend, the grid or the boxes.
std::optional<season_shape> shape_of(const QStringView element, const QXmlStreamAttributes& a)
{
    const QString fill = a.value(u"fill"_s).toString();
    const double y = number(a, "y");
    if (element == u"rect" && y > 280)
        return season_shape{u"bar"_s, fill, {number(a, "x"), y, number(a, "width"), number(a, "height")}};
    if (element == u"circle" && number(a, "cy") != 18) {
        const QString kind = fill == green && a.value(u"r"_s) == u"11" ? u"end"_s : u"point"_s;
        return season_shape{kind, fill, {number(a, "cx"), number(a, "cy"), number(a, "r")}};
    }
    const bool is_dashed = a.hasAttribute(u"stroke-dasharray"_s);
    if (element == u"line" && is_dashed && number(a, "x2") - number(a, "x1") > 60)
        return season_shape{u"mean"_s,
                            a.value(u"stroke"_s).toString(),
                            {number(a, "x1"), number(a, "y1"), number(a, "x2"), number(a, "y2")}};
    if (element != u"polyline")
        return std::nullopt;
    season_shape line{u"polyline"_s, a.value(u"stroke"_s).toString(), {}};
    for (const QString& point : a.value(u"points"_s).toString().split(u' ')) {
        line.numbers.push_back(point.section(u',', 0, 0).toDouble());
        line.numbers.push_back(point.section(u',', 1).toDouble());
    }
    return line;
}

}  // namespace

QString words_of(const season_shape& shape)
{
    QStringList numbers;
    for (const double each : shape.numbers)
        numbers << QString::number(each, 'f', 1);
    return shape.kind + u' ' + shape.colour + u' ' + numbers.join(u", "_s);
}

std::vector<season_shape> shapes_in_drawing(const QString& svg)
{
    std::vector<season_shape> shapes;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (auto shape = shape_of(reader.name(), reader.attributes()))
            shapes.push_back(std::move(*shape));
    }
    return shapes;
}

std::vector<season_shape> shapes_of_handicap(const passed_rows& rows)
{
    const int rounds = rounds_of(rows);
    const int lines = rounds > 40 ? 0 : (rounds + 1) / 2;
    const double height = rounds > 40 ? 1250 : std::min(700, 1250 - 38 * lines);
    const round_values values = values_of(rows, u"differential"_s, u"counting"_s, false);
    const chart area(95, 290, 2535, height, true, rounds, values);
    const double half = std::min(area.pitch() * 0.4, 60.0);
    std::vector<season_shape> shapes;
    for (const round_value& each : values) {
        const double y = area.y(each.value);
        const double zero = area.y(0);
        shapes.push_back(
            {u"bar"_s,
             each.is_strong ? green : u"#b9c8c0"_s,
             {area.x(each.place) - half, std::min(y, zero), 2 * half, std::max(std::abs(y - zero), 2.0)}});
    }
    const passed_row& handicap = table(rows, u"season_handicap"_s).at(0);
    if (handicap.at(u"take"_s).toInt() > 0)
        shapes.push_back(mean_line(95, 2535, area.y(handicap.at(u"mean"_s).toDouble())));
    return shapes;
}

std::vector<season_shape> shapes_of_season(const passed_rows& rows)
{
    const int rounds = rounds_of(rows);
    const int courses = static_cast<int>(table(rows, u"season_courses"_s).size());
    const int free = (courses > 10 ? 1650 : 1610 - 38 * courses) - 575;
    const int main = free * 11 / 20;
    const int small = free * 9 / 20;
    const passed_row& season = table(rows, u"season"_s).at(0);
    std::vector<season_shape> means, points, lines, handicaps, ends;
    for (const season_chart& each : std::initializer_list<season_chart>{{u"over"_s, 95, 2535, true},
                                                                        {u"putts"_s, 75, 555, false},
                                                                        {u"greens"_s, 742, 555, true},
                                                                        {u"penalties"_s, 1408, 555, true},
                                                                        {u"handicap"_s, 2075, 555, false}}) {
        const bool is_first = each.column == u"over";
        const bool is_handicap = each.column == u"handicap";
        const round_values values =
            values_of(rows, each.column, is_handicap ? QString() : u"whole"_s, !is_handicap);
        if (values.empty())
            continue;
        const chart area(each.left, is_first ? 60 : 185 + main, each.width, is_first ? main : small,
                         each.from_zero, rounds, values);
        if (!is_handicap && season.at(each.column).isValid())
            means.push_back(mean_line(each.left, each.width, area.y(season.at(each.column).toDouble())));
        for (const round_value& value : values) {
            const QString colour = is_handicap ? green : value.is_strong ? dark : u"#ffffff"_s;
            (is_handicap ? handicaps : points)
                .push_back({u"point"_s, colour, {area.x(value.place), area.y(value.value), area.radius()}});
        }
        const round_values line = is_first      ? values_of(rows, u"moving_mean"_s, {}, false)
                                  : is_handicap ? values
                                                : round_values();
        if (line.empty())
            continue;
        lines.push_back(line_through(area, line));
        ends.push_back(
            {u"end"_s, green, {area.x(line.back().place), area.y(line.back().value), most_radius}});
    }
    std::vector<season_shape> all = means;
    for (const auto& part : {points, lines, handicaps, ends, hole_bars(rows, main + small)})
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace verdane::testing
