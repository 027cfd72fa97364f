#pragma once

#include <QSqlQuery>
#include <QString>
#include <QVariant>

#include <functional>

#include "base/run_time_failure.h"

class QSqlError;

namespace verdane {

/// The failure that an error of the engine means.
using failure_of_error = std::function<run_time_failure(const QSqlError& error)>;

/// The rows of a statement that runs, in the order of the engine.
class result_rows {
public:
    result_rows() = default;
    virtual ~result_rows() = default;
    result_rows(const result_rows&) = delete;
    result_rows& operator=(const result_rows&) = delete;

    virtual int column_count() const = 0;
    virtual QString column_name(int column) const = 0;

    /// Moves to the first row, then to the next one. False after the last. Fails with the kind that fits the
    /// engine's error.
    virtual bool next() = 0;

    /// A value of the current row. Null is an invalid value, a whole number has 64 bits.
    virtual QVariant value(int column) const = 0;
};

/// The rows of a statement that the toolkit runs; a derived class reads their values.
class query_rows : public result_rows {
public:
    /// Runs the statement. Fails like `next`.
    query_rows(const QSqlDatabase& database, const QString& statement, failure_of_error failure);

    int column_count() const override;
    QString column_name(int column) const override;
    bool next() override;

protected:
    const QSqlQuery& query() const { return query_; }
    run_time_failure failure_of(const QSqlError& error) const { return failure_(error); }

private:
    failure_of_error failure_;
    QSqlQuery query_;
};

}  // namespace verdane
