#pragma once

#include <QString>

namespace verdane::testing {

using namespace Qt::StringLiterals;

/// Another program that locks a store from its construction to `let_go`, on a connection of its own: by
/// default for writing. For one thread.
class other_program {
public:
    explicit other_program(const QString& store_path, const QString& lock = u"BEGIN IMMEDIATE"_s);
    ~other_program();
    other_program(const other_program&) = delete;
    other_program& operator=(const other_program&) = delete;

    void let_go();

private:
    QString name_;
};

}  // namespace verdane::testing
