#pragma once

#include <QByteArray>
#include <QSqlDatabase>

#include <memory>
#include <vector>

#include "store/engines/result_rows.h"

namespace verdane {

/// In which form a driver returns the characters of a text unchanged, as UTF-8.
enum class text_form {
    characters,  ///< as characters (SQL_C_CHAR); as bytes, SQLite's driver decodes the text `X'41'`
    bytes        ///< as bytes (SQL_C_BINARY); as characters, MariaDB's driver converts them by the locale
};

/// The rows of a statement on an ODBC connection, read into bound columns. Qt's plug-in reads each value by a
/// call of its own, which takes ten to thirty times as long.
class odbc_rows : public result_rows {
public:
    /// Runs the statement on an open connection of the driver `QODBC`, which must exist as long as the rows.
    /// Fails like `next`.
    odbc_rows(const QSqlDatabase& database, const QString& statement, text_form texts,
              failure_of_error failure);
    ~odbc_rows() override;

    int column_count() const override;
    QString column_name(int column) const override;
    bool next() override;
    QVariant value(int column) const override;

private:
    struct bound_column;

    void describe_columns(text_form texts);
    void bind_columns();
    /// A text of the current row that is longer than the memory bound to its column, which counts from 1.
    QByteArray whole_text(unsigned short number, short type) const;
    /// Fails unless `result` is a success.
    void check(short result) const;

    failure_of_error failure_;
    void* statement_ = nullptr;
    std::vector<bound_column> columns_;
};

}  // namespace verdane
