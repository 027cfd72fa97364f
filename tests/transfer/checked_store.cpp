#include "tests/transfer/checked_store.h"

#include <QDir>

#include "tests/support/engine_of_tests.h"

namespace verdane::testing {

QString drop_index()
{
    const QString statement = u"drop index shots_by_hole"_s;
    return engine_of_tests() == test_engine::mariadb ? statement + u" on Stat_rounds" : statement;
}

QStringList kept_copies(const QString& folder)
{
    const QDir copies(folder + u"/copies");
    QStringList paths;
    for (const QString& name : copies.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        paths << copies.filePath(name);
    return paths;
}

}  // namespace verdane::testing
