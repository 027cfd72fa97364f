#include "report_store.h"

#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUuid>

#include "query_text.h"
#include "run_time_failure.h"

namespace verdane {

namespace {

QString& store_path()
{
    static QString path;
    return path;
}

/// A statement's own `with` joins the list of the queries above it.
QString as_next_of_list(const QString& sql)
{
    static const QRegularExpression leading_with(QStringLiteral("^\\s*with\\s+(recursive\\s+)?"),
                                                 QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = leading_with.match(sql);
    if (!match.hasMatch())
        return QStringLiteral("\n") + sql;
    return QStringLiteral(",\n") + sql.sliced(match.capturedEnd());
}

report_rows fetched(QSqlQuery& query)
{
    report_rows result;
    const QSqlRecord record = query.record();
    for (int column = 0; column < record.count(); ++column)
        result.columns.append(record.fieldName(column));
    while (query.next()) {
        std::vector<QVariant> row;
        for (int column = 0; column < record.count(); ++column)
            row.push_back(query.isNull(column) ? QVariant() : query.value(column));
        result.rows.push_back(std::move(row));
    }
    return result;
}

}  // namespace

void set_report_store(const QString& path)
{
    store_path() = path;
}

QString report_store()
{
    return store_path();
}

report_snapshot::report_snapshot(const template_file& source) : source_(source)
{
    const QString name = QStringLiteral("verdane_reports_") + QUuid::createUuid().toString();
    database_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    database_.setDatabaseName(report_store());
    database_.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=5000"));
    if (!report_store().isEmpty() && database_.open() && database_.transaction())
        return;
    const QString words = database_.lastError().text();
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
    throw run_time_failure(failure_kind::store_unreachable,
                           QStringLiteral("%1: %2: %3").arg(source.file_name, report_store(), words));
}

report_snapshot::~report_snapshot()
{
    const QString name = database_.connectionName();
    database_.rollback();
    database_.close();
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

QStringList report_snapshot::parameters_of(const template_query& query)
{
    static const QRegularExpression parameter(QStringLiteral(":([A-Za-z_]\\w*)"));
    QStringList names;
    auto matches = parameter.globalMatch(without_literals(query.sql));
    while (matches.hasNext())
        names.append(matches.next().captured(1));
    names.removeDuplicates();
    return names;
}

QString report_snapshot::statement_for(const template_query& query) const
{
    QStringList above;
    for (const template_query& earlier : source_.queries) {
        if (earlier.name == query.name)
            break;
        if (parameters_of(earlier).isEmpty())
            above.append(QStringLiteral("%1 as (\n%2\n)").arg(earlier.name, earlier.sql));
    }
    if (above.isEmpty())
        return query.sql;
    return QStringLiteral("with recursive ") + above.join(QStringLiteral(", ")) + as_next_of_list(query.sql);
}

report_rows report_snapshot::rows(const template_query& query, const report_parameters& parameters) const
{
    if (!parameters_of(query).isEmpty())
        return run(query, parameters);
    const auto known = known_.find(query.name);
    return known != known_.end() ? known->second : known_.emplace(query.name, run(query, {})).first->second;
}

report_rows report_snapshot::run(const template_query& query, const report_parameters& parameters) const
{
    QSqlQuery statement(database_);
    statement.setForwardOnly(true);
    bool well = statement.prepare(statement_for(query));
    for (const QString& name : parameters_of(query)) {
        const auto found = parameters.find(name);
        statement.bindValue(QStringLiteral(":") + name,
                            found == parameters.end() ? QVariant() : found->second);
    }
    well = well && statement.exec();
    if (!well)
        fail_template(source_.at(query.line),
                      QStringLiteral("query %1: %2").arg(query.name, statement.lastError().text()));
    return fetched(statement);
}

}  // namespace verdane
