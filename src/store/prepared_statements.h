#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

#include <list>
#include <vector>

namespace verdane {

/// A statement in the making: its text, and the values for the places in it.
struct statement_with_values {
    QString text;
    std::vector<QVariant> values;

    /// Appends a place that takes a value.
    void add(const QVariant& value);
};

/// The writing statements that a connection ran last, kept ready to run again: to prepare one takes as
/// long as to run it. Only so many are kept; the one that was not needed for longest goes.
class prepared_statements {
public:
    /// More than leaving a hole takes; a statistic writes its table with one.
    static constexpr std::size_t most_kept = 24;

    /// Runs a statement, prepared anew where it is not at hand, and gives what `outcome` reads from it
    /// before the engine lets go of it. Fails with the kind that fits the engine's error, `where` and the
    /// statement in its details; such a statement is not kept.
    template <typename Outcome>
    auto run(const QSqlDatabase& database, const statement_with_values& statement, const QString& where,
             Outcome outcome)
    {
        QSqlQuery& query = run(database, statement, where);
        const auto result = outcome(query);
        query.finish();
        return result;
    }

    /// Before the connection is closed: what is kept holds on to it.
    void forget() { kept_.clear(); }

private:
    struct kept_statement {
        QString text;
        QSqlQuery query;
    };

    QSqlQuery& run(const QSqlDatabase& database, const statement_with_values& statement,
                   const QString& where);
    QSqlQuery& ready(const QSqlDatabase& database, const QString& text, const QString& where);

    /// The one that ran last comes first.
    std::list<kept_statement> kept_;
};

}  // namespace verdane
