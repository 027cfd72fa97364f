#pragma once

#include "store/engines/engine.h"
#include "store/engines/odbc_rows.h"

namespace verdane {

/// What the engines of registered data sources share: the link through Qt's ODBC plug-in, and values as
/// literals, because bound values have different results with different drivers. Statements contain only
/// ASCII: one of the drivers has no functions for other texts.
class odbc_engine : public store_engine {
public:
    using store_engine::store_engine;

    void add_value(statement_with_values& statement, const QVariant& value) const override;
    std::unique_ptr<result_rows> select(const QString& statement, const QString& where) const override;
    int change(const statement_with_values& statement, const QString& where) override;
    QString as_sent(const QString& statement) const override;

protected:
    /// A text that is not plain, as a literal of the engine.
    virtual QString text_literal(QStringView text) const = 0;
    /// A text of a statement, as a literal with which the engine compares texts character by character.
    virtual QString literal_in_statement(const QString& text) const;
    /// A part of a statement outside its texts, in the dialect of the engine.
    virtual QString in_dialect(const QString& part) const { return part; }

    /// How the driver returns a text unchanged.
    virtual text_form texts() const = 0;

    QString literal(const QVariant& value) const;

private:
    QString literal_of_text(const QString& text) const;
};

enum class source_kind { mariadb, sqlite, unsupported };

/// Which engine a source belongs to. `server` is the value of `version()`, `sqlite` that of
/// `sqlite_version()`; empty if the source has no such function. MariaDB before 10.5 is unsupported.
source_kind kind_of_source(const QString& server, const QString& sqlite);

/// Opens a registered source and returns the engine for it, which is then still to be opened itself. Its
/// statements have the time-out of the opening until then. Fails
/// like `open_link`, like `check_store_files` for a file, with `source_engine` if the source belongs to
/// another engine, and with `source_silent` or `source_stopped` if the server does not run its first query.
std::unique_ptr<store_engine> engine_of_source(const QString& name, const store_location& where);

}  // namespace verdane
