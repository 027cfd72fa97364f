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
    /// A text that is not plain, in UTF-8, as a literal of the engine.
    virtual QString text_literal(const QByteArray& utf8) const = 0;
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

}  // namespace verdane
