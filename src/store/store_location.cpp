#include "store/store_location.h"

#include "store/Connection1.h"
#include "store/engines/registered_source.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The value of `Data Source` in the connection string.
QString data_source()
{
    const QString key = u"Data Source="_s;
    const QString text = Connection1::connection_string();
    const qsizetype start = text.indexOf(key) + key.size();
    return text.sliced(start, text.indexOf(u';', start) - start);
}

}  // namespace

store_location default_store()
{
    const QString source = data_source();
    return is_registered_source(source) ? store_location::source(source)
                                        : store_location::file(Connection1::default_path());
}

}  // namespace verdane
