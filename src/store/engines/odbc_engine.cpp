#include "store/engines/odbc_engine.h"

#include <QSqlError>
#include <QSqlQuery>

#include "store/engines/sql_text.h"
#include "store/engines/stored_text.h"

namespace verdane {

using namespace Qt::StringLiterals;

void odbc_engine::add_value(statement_with_values& statement, const QVariant& value) const
{
    statement.text += literal(value);
}

QString odbc_engine::literal(const QVariant& value) const
{
    if (needs_bytes(value))
        return text_literal(value.toByteArray());
    if (value.typeId() != QMetaType::QString || value.isNull())
        return literal_of_number(value);
    return literal_of_text(value.toString());
}

QString odbc_engine::literal_of_text(const QString& text) const
{
    return is_plain_text(text) ? QString(u'\'' + text + u'\'') : text_literal(text.toUtf8());
}

QString odbc_engine::literal_in_statement(const QString& text) const
{
    return literal_of_text(text);
}

std::unique_ptr<result_rows> odbc_engine::select(const QString& statement, const QString& where) const
{
    return std::make_unique<odbc_rows>(
        database(), as_sent(statement), texts(),
        [this, where](const QSqlError& error) { return failure(error, where); });
}

int odbc_engine::change(const statement_with_values& statement, const QString& where)
{
    QSqlQuery query(database());
    if (!query.exec(statement.text))
        throw failure(query.lastError(), where + u" [" + statement.text + u']');
    return query.numRowsAffected();
}

QString odbc_engine::as_sent(const QString& statement) const
{
    return rewritten(
        statement, [this](const QString& text) { return literal_in_statement(text); },
        [this](const QString& part) { return in_dialect(part); });
}

}  // namespace verdane
