#pragma once

#include <QString>

#include "tests/support/test_store.h"

namespace verdane::testing {

/// A fresh store, which the program has open for the life of this object. The destructor closes all
/// recordsets. The constructor sets the run-wide values to those of a start in the given language.
class store_folder {
public:
    explicit store_folder(bool french = true);
    ~store_folder();

    const store_location& location() const { return place_.location(); }
    /// The file of a store of the embedded engine.
    QString path() const { return place_.path(); }

private:
    test_store place_;
};

}  // namespace verdane::testing
