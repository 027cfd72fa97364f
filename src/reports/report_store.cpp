#include "reports/report_store.h"

namespace verdane {

namespace {

store_location& store_of_reports()
{
    static store_location store;
    return store;
}

}  // namespace

void set_report_store(const store_location& store)
{
    store_of_reports() = store;
}

const store_location& report_store()
{
    return store_of_reports();
}

}  // namespace verdane
