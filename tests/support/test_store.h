#pragma once

#include <QString>
#include <QTemporaryDir>

#include "store/store_location.h"

namespace verdane::testing {

/// The place of one store for a test, on the engine of the tests. It has no tables until it is opened, and is
/// removed with this object.
class test_store {
public:
    test_store();
    ~test_store();
    test_store(const test_store&) = delete;
    test_store& operator=(const test_store&) = delete;

    const store_location& location() const { return location_; }
    /// The file. Ends the test on other engines than the embedded one.
    QString path() const;

private:
    QTemporaryDir folder_;
    store_location location_;
};

}  // namespace verdane::testing
