#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

#include "tests/support/outside_connection.h"

/// The tables of a server's database, as the server describes them.
namespace verdane::testing {

struct server_column {
    QString name;
    /// The type in small letters, as `smallint`.
    QString type;

    bool is_text() const { return type == u"text" || type == u"varchar"; }
    bool is_whole_number() const { return type.endsWith(u"int"); }
    bool operator==(const server_column&) const = default;
};

using server_columns = std::vector<server_column>;

/// The names of the tables, in their order.
QStringList tables_of(const outside_connection& server);

/// The columns of some tables in their order, invisible ones included, by the name of the table. `names` are
/// words in small letters; those that are no tables are left out.
QHash<QString, server_columns> columns_of_tables(const outside_connection& server, const QStringList& names);

/// A value that differs if any value of any row differs: the number of rows, and the sum of 60-bit hashes of
/// them. The server computes it much faster than it sends the rows.
QString fingerprint(const outside_connection& server, const QString& table, const server_columns& columns);

}  // namespace verdane::testing
