#include "store/prepared_statements.h"

#include <algorithm>

#include "store/engines/sqlite.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The name of a parameter, from 0. Qt would generate a name for an unnamed parameter each time a value is
/// bound.
const QString& place_name(std::size_t place)
{
    static std::vector<QString> names;
    while (names.size() <= place)
        names.push_back(u":v%1"_s.arg(names.size()));
    return names[place];
}

[[noreturn]] void fail(const QSqlQuery& query, const QString& text, const QString& where)
{
    throw store_failure(query.lastError(), where + u" [" + text + u']');
}

}  // namespace

void statement_with_values::add(const QVariant& value)
{
    text += place_name(values.size());
    values.push_back(value);
}

QSqlQuery& prepared_statements::ready(const QSqlDatabase& database, const QString& text, const QString& where)
{
    const auto found =
        std::find_if(kept_.begin(), kept_.end(), [&text](const auto& kept) { return kept.text == text; });
    if (found != kept_.end()) {
        kept_.splice(kept_.begin(), kept_, found);
        return kept_.front().query;
    }
    QSqlQuery fresh(database);
    if (!fresh.prepare(text))
        fail(fresh, text, where);
    if (kept_.size() == most_kept)
        kept_.pop_back();
    kept_.push_front({text, std::move(fresh)});
    return kept_.front().query;
}

QSqlQuery& prepared_statements::run(const QSqlDatabase& database, const statement_with_values& statement,
                                    const QString& where)
{
    QSqlQuery& query = ready(database, statement.text, where);
    for (std::size_t place = 0; place < statement.values.size(); ++place)
        query.bindValue(place_name(place), statement.values[place]);
    if (query.exec())
        return query;
    const QSqlQuery failed = std::move(query);
    kept_.pop_front();
    fail(failed, statement.text, where);
}

}  // namespace verdane
