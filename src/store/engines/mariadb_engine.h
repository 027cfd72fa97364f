#pragma once

#include "store/engines/mariadb_tables.h"
#include "store/engines/odbc_engine.h"

namespace verdane {

/// A MariaDB server. The tables of the program have an invisible column that identifies a row. Rows of tables
/// that were made without it are identified by all their values.
class mariadb_engine : public odbc_engine {
public:
    using odbc_engine::odbc_engine;

    /// Fails with `store_locked`, `source_case`, `source_database`, `source_table`, `source_column`,
    /// `source_type`, `source_storage`, `source_read_only` or `source_silent`.
    bool open(soundness_check check) override;

    /// The server checks its indexes itself.
    QStringList damaged_indexes() override { return {}; }

    QString identity_column(QStringView table) const override;
    bool keeps_order(QStringView table) const override;
    bool has_declared_defaults(QStringView table) const override;
    QString select_with_identity(const QString& statement, const select_statement& shape,
                                 const QString& identity) const override;
    void add_comparison(statement_with_values& statement, const QString& column,
                        const QVariant& value) const override;
    int change_one(const statement_with_values& statement, const statement_with_values& condition, int before,
                   const QString& where) override;
    qint64 insert(const statement_with_values& statement, const QString& where) override;
    const commit_statements& commits() const override;
    QString table_ending(const table& declared) const override;
    bool declares_indexes() const override { return true; }
    QStringList index_names() const override;
    bool was_created_before(QStringView table) const override;
    run_time_failure failure(const QSqlError& error, const QString& where) const override;
    void tables_created() override;
    QString identity_script() const override;

protected:
    QString text_literal(const QByteArray& utf8) const override;
    text_form texts() const override { return text_form::bytes; }
    QString literal_in_statement(const QString& text) const override;
    QString in_dialect(const QString& part) const override;

private:
    bool check_source();
    void open_for_work();
    void set_session(int lock_time_out_s) const;
    void check_server() const;
    void take_lock() const;
    /// Fails unless the server has no tables of the missing names: it does not describe tables on which the
    /// account has no rights.
    void check_missing_tables() const;
    [[noreturn]] void refuse_incomplete() const;
    void read_tables();
    bool holds_rows() const;
    void check_writable() const;

    mariadb_tables tables_;
};

}  // namespace verdane
