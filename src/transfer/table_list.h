#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>

#include "store/schema.h"
#include "transfer/csv_file.h"

/// `tables.csv`, which is exported with the tables: a first line with the names of its columns, then a line
/// for each table with its name, the number of its rows and the checksum of its file. It shows whether a file
/// lost its last lines, and whether it was edited.
namespace verdane {

struct listed_table {
    /// The line of the list, from 1.
    int line = 0;
    int rows = 0;
    /// SHA-256 in hexadecimal digits; any text in a list that was edited.
    QString checksum;
};

/// The tables of the list by their names.
using table_list = std::map<QString, listed_table>;

QString path_of_list(const QString& folder);

/// The first line, with its line end.
QString heads_of_list();

/// The line of a table, with its line end.
QString line_of_list(const table& listed, int rows, const QByteArray& file);

/// The checksum of a file, as in the list.
QString checksum_of(const QByteArray& file);

/// Reads the list of a folder, which has a line for every table of the store. Every wrong line is added to
/// `faults`.
table_list read_list(const QString& folder, bad_lines& faults);

}  // namespace verdane
