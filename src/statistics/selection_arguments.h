#pragma once

#include <QString>

namespace verdane {

/// What the selection window hands to a statistic: which rounds, and the words for the report's head.
/// The clauses and the plain values say the same thing twice, because the statistics read some tables
/// with SQL and walk others row by row.
struct selection_arguments {
    /// Keys of the first and the last round, both included.
    QString from_key;
    QString to_key;

    /// Fragments of a WHERE clause that begin with " AND "; one blank where the choice is open.
    QString partner_clause = QStringLiteral(" ");
    QString course_clause = QStringLiteral(" ");
    QString weather_clause = QStringLiteral(" ");

    /// The choices as the report shows them.
    QString partner_text;
    QString course_text;
    QString weather_text;

    /// The choices as plain text, empty where open: the stored weather, a course's code, a partner's
    /// number.
    QString weather_value;
    QString course_code;
    QString partner_number;
};

}  // namespace verdane
