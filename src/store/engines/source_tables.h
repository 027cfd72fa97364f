#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include "store/engines/column_content.h"

/// The check of the tables that a registered source has.
namespace verdane {

/// A column of a table, with the engine's name of its type, and the values that it can store.
struct source_column {
    QString name;
    QString type = {};
    column_content content = column_content::anything;
    /// True if the column refuses Null. The columns of a primary key are excepted.
    bool not_null = false;
    /// What the engine sets in a new row, in its own words; empty if it has no default.
    QString default_value = {};
    /// True if the engine computes the value, so that no other one can be written.
    bool computed = false;
    /// The most characters that the engine stores; 0 if it has no such limit.
    qlonglong characters = 0;
};

/// The columns of each table in their order, by the name of the table in small letters.
using source_tables = QHash<QString, QList<source_column>>;

/// How many tables of the store a source has.
enum class tables_found { none, some, all };

/// Compares the tables of the store with those of a source; other tables are ignored. The names and types of
/// columns after the last declared one are ignored, as is the case of names. Fails with `source_column` if a
/// column is missing, has another name or is in another place, and with `source_type` if its type does not
/// fit the values of the program, if the engine computes its value, if it is too short for a key, or if it
/// refuses Null and a new row has no other value there, which applies to further columns, too; the details
/// name the table, the place and the difference.
tables_found check_tables(const source_tables& found);

/// The tables of the store, in small letters, in which a column that an insertion leaves out does not get the
/// default that the program declares. To be used after `check_tables`.
QStringList tables_with_other_defaults(const source_tables& found);

/// True if the source has the first tables of the store in the order in which they are created, and not the
/// others: the creation of the tables was interrupted, unless they contain rows.
bool are_first_tables(const source_tables& found);

/// The tables of the store that a source lacks.
QStringList missing_tables(const source_tables& found);

}  // namespace verdane
