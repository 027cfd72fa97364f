#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <exception>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "reports/query/query_guard.h"
#include "reports/query/report_tables.h"
#include "reports/template/template_file.h"
#include "store/store_location.h"

class QSqlQuery;

namespace verdane {

/// The rows that a query gave, null values as invalid variants.
struct report_rows {
    QStringList columns;
    std::vector<std::vector<QVariant>> rows;
};

/// The values that an inner query takes from the rows around it, by their column's name.
using report_parameters = std::map<QString, QVariant>;

/// The characters of all values of a row, as they are printed.
qsizetype characters_in(const std::vector<QVariant>& row);

/// Thrown when the user stops a report. It is no failure: nothing was changed, and the program continues.
class report_stopped : public std::exception {
public:
    /// `where` is "file.rpt:LINE: query NAME".
    explicit report_stopped(QString where) : where_(std::move(where)), what_(where_.toStdString()) {}

    const QString& where() const { return where_; }
    const char* what() const noexcept override { return what_.c_str(); }

private:
    QString where_;
    std::string what_;
};

/// Sets the store that reports read. The program calls this once, at the start; before, there is none.
void set_report_store(const store_location& store);
inline void set_report_store(const QString& file)
{
    set_report_store(store_location::file(file));
}
const store_location& report_store();

/// The committed rows of the report tables at one moment, copied into a database in memory, and the rows that
/// a statistic has passed, so that a report can read nothing else and write nothing. It exists while the
/// report is filled.
class report_snapshot {
public:
    /// Fails with `store_unreachable` when the store cannot be opened, `store_damaged` when it cannot be
    /// read, and `store_locked` when another program locks it for longer than `lock_wait::default_time_out_s`
    /// or the user gives up waiting; with `misuse` when the passed rows do not fit their tables.
    /// `may_continue` is called while queries run.
    explicit report_snapshot(const template_file& source, const continue_check& may_continue = {},
                             const passed_rows& passed = {});
    ~report_snapshot();
    report_snapshot(const report_snapshot&) = delete;
    report_snapshot& operator=(const report_snapshot&) = delete;

    /// The rows of a query of the template. One that takes nothing from the rows around it runs once, at
    /// the first call. Fails with `report_template`, at the query's line, with the message of the engine, on
    /// a statement or table that a template may not use, and on more rows than `page_limits.h` allows. Throws
    /// `report_stopped` when the user stops the report.
    report_rows rows(const template_query& query, const report_parameters& parameters = {}) const;

    /// The names that a query takes from the rows around it (`:line` in its text).
    static QStringList parameters_of(const template_query& query);

private:
    void open(const passed_rows& passed);
    QString statement_for(const template_query& query) const;
    void keep_for_queries_below(const template_query& query, const QStringList& columns) const;
    report_rows run(const template_query& query, const report_parameters& parameters) const;
    report_rows fetched(const template_query& query, QSqlQuery& statement) const;
    [[noreturn]] void fail(const template_query& query, const QSqlQuery& statement) const;
    void check_time(const template_query& query) const;

    const template_file& source_;
    QSqlDatabase database_;
    std::unique_ptr<query_guard> guard_;
    /// By the name of the query. Several sections may use one query, and `template_scope` runs each first.
    mutable std::map<QString, report_rows> known_;
    /// The queries whose rows are in a table of the same name.
    mutable QStringList kept_;
};

}  // namespace verdane
