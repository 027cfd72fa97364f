#pragma once

#include <QString>
#include <QStringList>

#include <vector>

#include "reports/query/report_tables.h"

namespace verdane::testing {

/// A point, a bar or a line of the pages about the handicap and the season, in tenths of a millimetre of its
/// drawing: its kind, its colour and its numbers.
struct season_shape {
    /// "bar", "point", "end" (of a line), "polyline" or "mean".
    QString kind;
    QString colour;
    /// Of a bar left, top, width and height, of a point its centre and radius, of a line its points.
    std::vector<double> numbers;
};

/// A shape in words, for a failure.
QString words_of(const season_shape& shape);

/// The shapes of a drawing of the report, in its order, without its legend, grid and boxes.
std::vector<season_shape> shapes_in_drawing(const QString& svg);

/// The shapes that the drawings of the handicap and of the season must have, from the rows that are passed to
/// the report. They are computed by the rules that the guide and the pages state, not by the queries of the
/// layout.
std::vector<season_shape> shapes_of_handicap(const passed_rows& rows);
std::vector<season_shape> shapes_of_season(const passed_rows& rows);

}  // namespace verdane::testing
