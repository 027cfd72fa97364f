#include "store/engines/result_rows.h"

#include <QSqlError>
#include <QSqlRecord>

#include <utility>

namespace verdane {

query_rows::query_rows(const QSqlDatabase& database, const QString& statement, failure_of_error failure)
    : failure_(std::move(failure)), query_(database)
{
    query_.setForwardOnly(true);
    if (!query_.exec(statement))
        throw failure_(query_.lastError());
}

int query_rows::column_count() const
{
    return query_.record().count();
}

QString query_rows::column_name(int column) const
{
    return query_.record().fieldName(column);
}

bool query_rows::next()
{
    if (query_.next())
        return true;
    if (query_.lastError().isValid())
        throw failure_(query_.lastError());
    return false;
}

}  // namespace verdane
