#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <map>
#include <vector>

#include "template_file.h"

namespace verdane {

/// Tells the report host where the store is. The program does so once, when it starts.
void set_report_store(const QString& path);
QString report_store();

/// The rows that a query gave, null values as invalid variants.
struct report_rows {
    QStringList columns;
    std::vector<std::vector<QVariant>> rows;
};

/// The values that an inner query takes from the rows around it, by their column's name.
using report_parameters = std::map<QString, QVariant>;

/// The store as a report sees it: a connection of its own that can only read, and one moment of the
/// committed rows for all of a report's queries. It lives as long as the report is being filled.
class report_snapshot {
public:
    /// Fails with `store_unreachable` when the store cannot be opened.
    explicit report_snapshot(const template_file& source);
    ~report_snapshot();
    report_snapshot(const report_snapshot&) = delete;
    report_snapshot& operator=(const report_snapshot&) = delete;

    /// The rows of a query of the template. One that takes nothing from the rows around it runs once, at
    /// the first call. Fails with `report_template`, at the query's line, with the engine's own words.
    report_rows rows(const template_query& query, const report_parameters& parameters = {}) const;

    /// The names that a query takes from the rows around it (`:line` in its text).
    static QStringList parameters_of(const template_query& query);

private:
    QString statement_for(const template_query& query) const;
    report_rows run(const template_query& query, const report_parameters& parameters) const;

    const template_file& source_;
    QSqlDatabase database_;
    /// By the query's name. A section may stand in several places, and every query is tried before.
    mutable std::map<QString, report_rows> known_;
};

}  // namespace verdane
