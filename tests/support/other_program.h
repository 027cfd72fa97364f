#pragma once

#include <QSqlDatabase>
#include <QString>

#include <memory>

#include "store/store_location.h"

namespace verdane::testing {

class outside_connection;

/// What another program keeps Verdane from.
enum class kept_from { writing, reading_and_writing };

/// Locks a store like another program, on a separate connection, from construction to `release`. To be used
/// in one thread.
class other_program {
public:
    explicit other_program(const store_location& store, kept_from what = kept_from::writing);
    ~other_program();
    other_program(const other_program&) = delete;
    other_program& operator=(const other_program&) = delete;

    void release();

private:
    std::unique_ptr<outside_connection> connection_;
};

}  // namespace verdane::testing
