#pragma once

#include <QString>

namespace verdane::testing {

using namespace Qt::StringLiterals;

/// Locks a store like another program, on a separate connection, from construction to `release`; by default
/// for writing. To be used in one thread.
class other_program {
public:
    explicit other_program(const QString& store_path, const QString& lock = u"BEGIN IMMEDIATE"_s);
    ~other_program();
    other_program(const other_program&) = delete;
    other_program& operator=(const other_program&) = delete;

    void release();

private:
    QString name_;
};

}  // namespace verdane::testing
