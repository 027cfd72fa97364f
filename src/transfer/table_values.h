#pragma once

#include <QString>
#include <QVariant>

#include "base/csv.h"
#include "store/schema.h"

/// The values of the columns of a table in a CSV file.
namespace verdane {

/// A value for the store, where Null is an invalid one.
struct value_of_file {
    QVariant value;
    /// Why the column cannot have it, in the current language; empty if it can.
    QString fault;
};

/// A number with the digits with which it is read back unchanged, with a point as decimal mark.
QString text_of_number(double value);

/// A value that was exported. Without quotes it is a number in a column of numbers and a text in the others;
/// with quotes it is a text everywhere: a store can have any value in any column.
value_of_file exported_value(const csv_value& value, const column& where);

/// A value of a file that was edited. A number, with or without quotes, is in the range of the column's type.
/// The counts of a table of rounds are not negative, and the key of a round has 14 digits.
value_of_file edited_value(const csv_value& value, const table& of, const column& where);

/// True for the tables that have the rows of rounds.
bool is_table_of_rounds(const table& tested);

}  // namespace verdane
