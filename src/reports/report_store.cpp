#include "reports/report_store.h"

namespace verdane {

namespace {

QString& store_path()
{
    static QString path;
    return path;
}

}  // namespace

void set_report_store(const QString& path)
{
    store_path() = path;
}

QString report_store()
{
    return store_path();
}

}  // namespace verdane
