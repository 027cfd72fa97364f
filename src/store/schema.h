#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <QVariant>

#include <vector>

#include "store/tables/declaration.h"

/// The tables of the store as they are at run time: every column of every declaration by name.
namespace verdane {

struct column {
    QString name;
    column_type type = column_type::any;
    /// The value in a new row when nothing was written; an invalid QVariant is Null.
    QVariant default_value;
    /// The declared number of characters of a text; 0 for any number.
    int characters = 0;
    fixed_value fixed = fixed_value::by_type;
    /// The place in a numbered group, from 0.
    int place = 0;
};

struct table {
    QString name;
    std::vector<column> columns;
    /// The rows of a table of fixed size, which are created with it; 0 for the others.
    int fixed_rows = 0;
    /// Both empty for a table without an index.
    QString index_name;
    QStringList indexed_columns;
};

/// Every table of the store, in the order in which they are created.
const std::vector<table>& schema();

/// The table of that name, in any case; null if the store has none.
const table* find_table(QStringView name);

/// The type of a column in the statement that creates its table.
QString declared_type(const column& column);

/// A name as it is written in statements. Some of the columns are reserved words in one of the engines.
QString in_back_quotes(const QString& name);

/// The columns of a table as they are listed in statements.
QString columns_of(const table& listed);

}  // namespace verdane
