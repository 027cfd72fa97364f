#include "tests/support/test_store.h"

#include "tests/support/engine_of_tests.h"

namespace verdane::testing {

test_store::test_store() : location_(new_store_place(folder_.path())) {}

test_store::~test_store()
{
    remove_store_place(location_);
}

QString test_store::path() const
{
    if (location_.where != store_location::place::file)
        qFatal("the store is not a file");
    return location_.name;
}

}  // namespace verdane::testing
