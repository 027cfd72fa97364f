#include <QTest>

#include "store/engines/source_tables.h"
#include "store/schema.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;

namespace {

/// The tables of the store as a source has them.
source_tables complete_tables()
{
    source_tables tables;
    for (const table& each : schema()) {
        for (const column& column : each.columns)
            tables[each.name.toLower()] << column.name;
    }
    return tables;
}

}  // namespace

/// The check of the tables of a registered source.
class test_source_tables : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_source_without_tables_of_the_store_has_none()
    {
        QVERIFY(check_tables({}) == tables_found::none);
        QVERIFY(check_tables({{u"invoices"_s, {u"number"_s}}}) == tables_found::none);
    }

    void a_complete_source_has_all_tables_whatever_the_case_of_names()
    {
        source_tables tables = complete_tables();
        QVERIFY(check_tables(tables) == tables_found::all);
        for (QString& name : tables[u"games"_s])
            name = name.toUpper();
        QVERIFY(check_tables(tables) == tables_found::all);
    }

    void other_tables_and_columns_after_the_last_are_ignored()
    {
        source_tables tables = complete_tables();
        tables[u"invoices"_s] << u"number"_s;
        tables[u"games"_s] << u"remark"_s;
        QVERIFY(check_tables(tables) == tables_found::all);
    }

    void a_source_that_lacks_tables_names_them()
    {
        source_tables tables = complete_tables();
        tables.remove(u"partners"_s);
        tables.remove(u"cryst_hand"_s);
        QVERIFY(check_tables(tables) == tables_found::some);
        QCOMPARE(missing_tables(tables), (QStringList{u"partners"_s, u"Cryst_hand"_s}));
    }

    void a_column_that_is_missing_renamed_or_moved_is_refused()
    {
        for (const auto& change : std::initializer_list<void (*)(QStringList&)>{
                 [](QStringList& names) { names.removeLast(); },
                 [](QStringList& names) { names[1] = u"course"_s; },
                 [](QStringList& names) { names.swapItemsAt(0, 1); },
                 [](QStringList& names) { names.prepend(u"number"_s); }}) {
            source_tables tables = complete_tables();
            change(tables[u"games"_s]);
            QVERIFY(failure_of([&] { check_tables(tables); }) == failure_kind::source_column);
        }
    }
};

QTEST_GUILESS_MAIN(test_source_tables)
#include "test_source_tables.moc"
