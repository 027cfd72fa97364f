#pragma once

#include <QString>

#include <array>
#include <vector>

namespace verdane::testing {

/// A published scorecard: one course played from one tee.
struct scorecard {
    QString name;
    QString tee;  ///< "White", "Blue", ... as printed
    QString rating;
    QString slope;
    std::array<int, 18> yards{};
    std::array<int, 18> par{};
    std::array<int, 18> stroke_index{};
};

/// The published scorecards in `tests/data/courses.csv`.
const std::vector<scorecard>& published_scorecards();

/// A scorecard by name and tee; ends the test if there is none.
const scorecard& published_scorecard(const QString& name, const QString& tee);

/// The tee's code, 0 (white) to 7 (black).
int tee_code(const QString& tee);

}  // namespace verdane::testing
