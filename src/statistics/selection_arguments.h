#pragma once

#include <QString>

namespace verdane {

/// The arguments of a statistic: the selected rounds, and the texts for the report's heading. Each filter is
/// present both as a clause and as a plain value, because the statistics read some tables with SQL and walk
/// others row by row.
struct selection_arguments {
    /// Keys of the first and the last round, both included.
    QString from_key;
    QString to_key;

    /// Fragments of a WHERE clause that begin with " AND "; one blank where the filter is off.
    QString partner_clause = QStringLiteral(" ");
    QString course_clause = QStringLiteral(" ");
    QString weather_clause = QStringLiteral(" ");

    /// The filters as the report shows them.
    QString partner_text;
    QString course_text;
    QString weather_text;

    /// The filters as plain text, empty where off: the stored weather, a course's code, a partner's
    /// number.
    QString weather_value;
    QString course_code;
    QString partner_number;
};

}  // namespace verdane
