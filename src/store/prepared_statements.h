#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

#include <list>
#include <vector>

namespace verdane {

/// The text of a statement and the values of its parameters.
struct statement_with_values {
    QString text;
    std::vector<QVariant> values;

    /// Appends a parameter with its value.
    void add(const QVariant& value);
};

/// The statements that a connection used last to write rows. They stay prepared, because preparing takes as
/// long as running. Of more than `most_kept` the least recently used one is freed.
class prepared_statements {
public:
    /// More than are used when a hole is stored; a statistic uses one.
    static constexpr std::size_t most_kept = 24;

    /// Runs a statement, which is prepared if it is not kept, and returns the result of `outcome`, which is
    /// called before the query is finished. Fails with the kind that fits the engine's error; its details
    /// contain `where` and the statement. A statement that failed is not kept.
    template <typename Outcome>
    auto run(const QSqlDatabase& database, const statement_with_values& statement, const QString& where,
             Outcome outcome)
    {
        QSqlQuery& query = run(database, statement, where);
        const auto result = outcome(query);
        query.finish();
        return result;
    }

    /// Called before the connection is closed, because prepared statements keep it open.
    void forget() { kept_.clear(); }

private:
    struct kept_statement {
        QString text;
        QSqlQuery query;
    };

    QSqlQuery& run(const QSqlDatabase& database, const statement_with_values& statement,
                   const QString& where);
    QSqlQuery& ready(const QSqlDatabase& database, const QString& text, const QString& where);

    /// The most recently used one is first.
    std::list<kept_statement> kept_;
};

}  // namespace verdane
