#include "reports/query/report_snapshot.h"

#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUuid>

#include "base/run_time_failure.h"
#include "controls/lock_box.h"
#include "reports/query/kept_queries.h"
#include "reports/query/report_tables.h"
#include "reports/template/page_limits.h"
#include "reports/template/query_text.h"
#include "store/table_copy.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The statement as a continuation of the list of queries above it; a leading `with` becomes a comma.
QString as_next_of_list(const QString& sql)
{
    static const QRegularExpression leading_with(u"^\\s*with\\s+(recursive\\s+)?"_s,
                                                 QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = leading_with.match(sql);
    if (!match.hasMatch())
        return u"\n"_s + sql;
    return u",\n"_s + sql.sliced(match.capturedEnd());
}

store_location& store_of_reports()
{
    static store_location store;
    return store;
}

}  // namespace

void set_report_store(const store_location& store)
{
    store_of_reports() = store;
}

const store_location& report_store()
{
    return store_of_reports();
}

qsizetype characters_in(const std::vector<QVariant>& row)
{
    qsizetype sum = 0;
    for (const QVariant& value : row)
        sum += value.toString().size();
    return sum;
}

report_snapshot::report_snapshot(const template_file& source, const continue_check& may_continue,
                                 const passed_rows& passed)
    : source_(source)
{
    const QString name = u"verdane_reports_"_s + QUuid::createUuid().toString();
    database_ = QSqlDatabase::addDatabase(u"QSQLITE"_s, name);
    database_.setDatabaseName(u":memory:"_s);
    database_.setConnectOptions(u"QSQLITE_OPEN_URI"_s);
    try {
        open(passed);
        guard_ = std::make_unique<query_guard>(database_, may_continue);
    } catch (...) {
        database_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(name);
        throw;
    }
}

report_snapshot::~report_snapshot()
{
    guard_.reset();
    const QString name = database_.connectionName();
    database_.close();
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

void report_snapshot::open(const passed_rows& passed)
{
    const store_location& store = report_store();
    const auto fail = [&](failure_kind kind, const QString& why) {
        throw run_time_failure(kind, u"%1: %2: %3"_s.arg(source_.file_name, store.name, why));
    };
    if (store.name.isEmpty() || !database_.open())
        fail(failure_kind::store_unreachable, database_.lastError().text());
    try {
        copy_tables(store, {stored_tables(), most_text_characters}, database_, make_lock_box);
    } catch (const run_time_failure& failure) {
        fail(failure.kind(), failure.details());
    }
    create_passed_tables(database_, passed);
}

QStringList report_snapshot::parameters_of(const template_query& query)
{
    static const QRegularExpression parameter(u":([A-Za-z_]\\w*)"_s);
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
        if (!kept_.contains(earlier.name) && parameters_of(earlier).isEmpty())
            above.append(u"%1 as (\n%2\n)"_s.arg(earlier.name, earlier.sql));
    }
    if (above.isEmpty())
        return query.sql;
    return u"with recursive "_s + above.join(u", "_s) + as_next_of_list(query.sql);
}

report_rows report_snapshot::rows(const template_query& query, const report_parameters& parameters) const
{
    if (!parameters_of(query).isEmpty())
        return run(query, parameters);
    auto known = known_.find(query.name);
    if (known == known_.end()) {
        known = known_.emplace(query.name, run(query, {})).first;
        keep_for_queries_below(query, known->second.columns);
    }
    return known->second;
}

/// If this fails, the queries below run the query again, which fails in the same way or reports a stop.
void report_snapshot::keep_for_queries_below(const template_query& query, const QStringList& columns) const
{
    if (is_named_below(source_, query) && may_be_kept(query, columns) &&
        guard_->keep_rows(query.name, statement_for(query)))
        kept_.append(query.name);
}

report_rows report_snapshot::run(const template_query& query, const report_parameters& parameters) const
{
    check_time(query);
    guard_->take_refusal();
    QSqlQuery statement(database_);
    statement.setForwardOnly(true);
    bool well = statement.prepare(statement_for(query));
    for (const QString& name : parameters_of(query)) {
        const auto found = parameters.find(name);
        statement.bindValue(u":"_s + name, found == parameters.end() ? QVariant() : found->second);
    }
    well = well && statement.exec();
    if (!well || !statement.isSelect())
        fail(query, statement);
    return fetched(query, statement);
}

report_rows report_snapshot::fetched(const template_query& query, QSqlQuery& statement) const
{
    report_rows result;
    const QSqlRecord record = statement.record();
    for (int column = 0; column < record.count(); ++column)
        result.columns.append(record.fieldName(column));
    qsizetype characters = 0;
    while (statement.next()) {
        std::vector<QVariant> row;
        for (int column = 0; column < record.count(); ++column)
            row.push_back(statement.isNull(column) ? QVariant() : statement.value(column));
        characters += characters_in(row);
        result.rows.push_back(std::move(row));
        if (result.rows.size() > most_rows_of_query)
            fail_template(source_.at(query.line),
                          u"query %1: more than %2 rows"_s.arg(query.name).arg(most_rows_of_query));
        if (characters > most_placed_characters)
            fail_template(source_.at(query.line),
                          u"query %1: more than %2 characters"_s.arg(query.name).arg(most_placed_characters));
    }
    if (statement.lastError().isValid())
        fail(query, statement);
    return result;
}

void report_snapshot::fail(const template_query& query, const QSqlQuery& statement) const
{
    static const QString no_table = u"no such table: "_s;
    check_time(query);
    const QSqlError error = statement.lastError();
    QString refusal = guard_->take_refusal();
    if (refusal.isEmpty() && error.databaseText().startsWith(no_table))
        refusal = u"%1 is none of them"_s.arg(error.databaseText().sliced(no_table.size()));
    if (refusal.isEmpty() && !error.isValid())
        refusal = u"any other statement is refused"_s;
    if (!refusal.isEmpty())
        refusal =
            u"a query can only select from the report tables and the queries above it; %1"_s.arg(refusal);
    fail_template(source_.at(query.line),
                  u"query %1: %2"_s.arg(query.name, refusal.isEmpty() ? error.text() : refusal));
}

void report_snapshot::check_time(const template_query& query) const
{
    if (!guard_->may_continue())
        throw report_stopped(u"%1:%2: query %3"_s.arg(source_.layout_name).arg(query.line).arg(query.name));
}

}  // namespace verdane
