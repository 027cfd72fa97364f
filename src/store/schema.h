#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <QVariant>

#include <vector>

/// The tables of the store, column by column. The order of the columns is part of the format: every
/// reader reaches them by ordinal.
namespace verdane {

/// A `count` has 16 bits, an `amount` 32; `any` is a place that nothing reads or writes.
enum class column_type { text, count, amount, real, yes_no, any };

struct column {
    QString name;
    column_type type = column_type::any;
    /// What a fresh row holds where nothing was written; an invalid QVariant is Null.
    QVariant default_value;
};

struct table {
    QString name;
    std::vector<column> columns;
    /// How many rows the store is laid down with, for the grids of fixed size (0 for the others).
    int fixed_rows = 0;
};

/// Every table of the store, in the order in which they are laid down.
const std::vector<table>& schema();

/// The table of that name, capitals or not; null when the store has none of that name.
const table* find_table(QStringView name);

/// The names that the 14 clubs have in a fresh store; the last is the putter.
const QStringList& fresh_club_names();

/// A value brought into a column's type, as the engine's own conversion would: a text written to a
/// number column gives its leading number, rounded to nearest (ties to even) and checked against the
/// column's bits (`overflow`). Null stays Null.
QVariant converted(const QVariant& value, column_type type);

}  // namespace verdane
