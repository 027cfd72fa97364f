#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <memory>

#include "base/run_time_failure.h"
#include "store/engines/commit_statements.h"
#include "store/engines/result_rows.h"
#include "store/prepared_statements.h"
#include "store/select_statement.h"
#include "store/store_location.h"

class QSqlError;

namespace verdane {

struct table;

/// All that differs between the engines a store can be on. One object for each open connection; `Connection1`
/// owns it. Nothing outside this library depends on which engine is open.
class store_engine {
public:
    /// `name` is Qt's name of the connection, `where` what is opened.
    store_engine(QString name, store_location where);
    virtual ~store_engine();
    store_engine(const store_engine&) = delete;
    store_engine& operator=(const store_engine&) = delete;

    /// Opens the store and takes the lock that excludes a second program. True if the store has its tables,
    /// false if they are still to be created. After a failure the caller calls `abandon`.
    virtual bool open(soundness_check check) = 0;

    /// Closes the connection and releases the lock. Does nothing on a closed connection.
    virtual void close();

    /// Closes after opening, creating the tables or filling them has failed. Removes the file that `open` has
    /// created, and releases the lock afterwards.
    virtual void abandon() { close(); }

    bool is_open() const;

    /// Checks the stored data for damage without changing them. Fails with `store_damaged`.
    virtual void check_soundness() {}
    /// The same unless they have been checked. Called before every statement that writes.
    virtual void need_soundness() {}

    /// The names of the indexes that differ from their tables; empty if the stored data are sound. Fails with
    /// `store_damaged` if anything else is damaged.
    virtual QStringList damaged_indexes();
    /// Builds all indexes anew, and commits that if the stored data are sound then. Fails with
    /// `store_damaged` otherwise; nothing is changed.
    virtual void rebuild_indexes();

    /// The column that identifies a row of a table and is not among the columns of `select *`; empty if the
    /// table has none.
    virtual QString identity_column(QStringView table) const = 0;

    /// True if the engine returns the rows of a table in the order in which they were inserted.
    virtual bool keeps_order(QStringView) const { return true; }

    /// True if a column of the table that an insertion leaves out gets the default that the program declares.
    virtual bool has_declared_defaults(QStringView) const { return true; }

    /// A statement whose rows can be written, with the column that identifies a row before the others.
    virtual QString select_with_identity(const QString& statement, const select_statement& shape,
                                         const QString& identity) const;

    /// A statement in the dialect of the engine. Statements are written for the embedded engine.
    virtual QString as_sent(const QString& statement) const { return statement; }

    /// Appends a value to a statement, as a parameter or as a literal.
    virtual void add_value(statement_with_values& statement, const QVariant& value) const = 0;

    /// Appends a condition that holds if a column has that value, which may be Null. Texts are equal if all
    /// their characters are.
    virtual void add_comparison(statement_with_values& statement, const QString& column,
                                const QVariant& value) const;

    /// Runs a statement that selects rows. Fails like `change`; so do the functions of the result.
    virtual std::unique_ptr<result_rows> select(const QString& statement, const QString& where) const = 0;

    /// Runs a statement that changes or deletes rows, and returns the number of rows that matched. Fails with
    /// the kind that fits the engine's error; its details contain `where` and the statement.
    virtual int change(const statement_with_values& statement, const QString& where) = 0;

    /// Runs a statement that changes or deletes one row of a table without a column that identifies a row.
    /// `statement` ends before its condition. Of the rows for which `condition` holds, the one is changed
    /// that has `before` of them before it in the order in which the engine returns the table. Returns the
    /// number of rows that matched. Fails like `change`. Only for an engine that has such tables.
    virtual int change_one(const statement_with_values& statement, const statement_with_values& condition,
                           int before, const QString& where);

    /// Runs a statement that inserts one row, and returns the value of its identity column. Fails like
    /// `change`.
    virtual qint64 insert(const statement_with_values& statement, const QString& where) = 0;

    virtual const commit_statements& commits() const = 0;

    /// What follows the columns in the statement that creates a table, the closing parenthesis included. An
    /// index that it does not declare is created by a statement of its own.
    virtual QString table_ending(const table& declared) const;
    virtual bool declares_indexes() const { return false; }

    /// The names of all indexes of the store. Fails like `select`.
    virtual QStringList index_names() const;

    /// True for a table that an interrupted creation of the tables has left. Its fixed rows may be
    /// incomplete.
    virtual bool was_created_before(QStringView) const { return false; }

    /// Called after the tables have been created. Fails with `source_table` if one of them is missing.
    virtual void tables_created() {}

    /// Statements that add the column that identifies a row to the tables that lack it; empty if none does.
    virtual QString identity_script() const { return {}; }

    /// The failure that an error means. `where` names the statement and the recordset.
    virtual run_time_failure failure(const QSqlError& error, const QString& where) const = 0;

    /// Qt's handle of the connection.
    QSqlDatabase database() const;

protected:
    /// Runs a statement without result rows. Fails like `change`.
    void run(const QString& statement) const;
    /// The first value of the first row. Fails like `change`, and if there is no row.
    QString first_value(const QString& question) const;
    /// The first values of all rows. Fails like `change`.
    QStringList first_values(const QString& question) const;

    const QString name_;
    const store_location where_;
};

}  // namespace verdane
