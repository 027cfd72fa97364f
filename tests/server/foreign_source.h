#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

#include "store/Connection1.h"
#include "store/Recordset.h"
#include "store/recordset_settings.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/reader.h"

namespace verdane::testing {

/// A new database on the server and the connection of the program to it.
struct foreign_source {
    store_location place = new_program_store();
    Connection1 connection;

    QString database() const { return file_of(place); }
    reader outside() const { return reader(place); }
    void open() { connection.Open(place); }
    void reopen();
    /// The result of a question that the server itself computes, with its own comparison of numbers.
    int number(const QString& question) const;
    /// The first column of the rows that the server returns, in its order.
    QStringList stored(const QString& question) const;
    /// Runs a statement as the administrator, in which %1 is the database.
    void change(const QString& statement) const;
};

/// Removes the column that identifies a row from every table.
void remove_row_columns(const foreign_source& from);

/// An open recordset of a statement.
std::unique_ptr<Recordset> opened(foreign_source& from, const QString& statement,
                                  lock_type lock = lock_type::optimistic);

recordset_settings partners_settings(lock_type lock = lock_type::optimistic);

/// Adds a row and commits it, or keeps it pending in a batch.
void add_partner(Recordset& partners, const QString& name, const QVariant& code);

/// The stored partners in the order of their values, each as "NAME:code:TEL".
QString stored_partners(const foreign_source& from);

}  // namespace verdane::testing
