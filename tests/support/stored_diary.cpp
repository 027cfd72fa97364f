#include "tests/support/stored_diary.h"

namespace verdane::testing {

QString stored_diary::text(const QString& statement) const
{
    const QVariant value = store.value(statement);
    return value.isNull() ? u"null"_s : value.toString();
}

}  // namespace verdane::testing
