#include <QTemporaryDir>
#include <QTest>

#include "store/Connection1.h"
#include "store/recovery/diary_copy.h"
#include "store/schema.h"
#include "tests/server/own_server.h"
#include "tests/statistics/drawn_reports.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/full_diary.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 6;

/// A database on the server with a full diary.
store_location stored_diary_on_server()
{
    const QTemporaryDir folder;
    const store_location file = store_location::file(folder.filePath(u"Verdbase.db"_s));
    create_diary(file, rounds, true);
    clear_sixth_putts(file);
    const store_location place = new_program_store();
    Connection1 from;
    from.Open(file);
    Connection1 to;
    to.Open(place);
    copy_diary(from, to, [](const counted_table&) {});
    return place;
}

void remove_row_columns(const QString& database)
{
    for (const table& each : schema())
        administer(u"alter table %1.%2 drop column verdane_row"_s.arg(database, each.name));
}

/// Makes all rows of each report table equal, the columns that the program does not use included.
void make_fixed_rows_equal(const QString& database)
{
    for (const table& each : schema()) {
        if (each.fixed_rows < 2)
            continue;
        QStringList columns;
        for (const column& one : each.columns)
            columns << u'`' + one.name + u"` = null";
        administer(u"update %1.%2 set %3"_s.arg(database, each.name, columns.join(u", "_s)));
    }
}

}  // namespace

/// The reports of a diary before and after its source loses the column that identifies a row.
class test_reports_without_identity : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_pages_are_the_same_although_all_rows_of_a_report_table_were_equal()
    {
        const store_location store = stored_diary_on_server();
        make_fixed_rows_equal(file_of(store));
        const auto with_identity = drawn_reports(store, rounds, false);
        remove_row_columns(file_of(store));
        make_fixed_rows_equal(file_of(store));
        const auto without = drawn_reports(store, rounds, false);
        QVERIFY(with_identity.size() >= static_cast<std::size_t>(names_of_reports().size()));
        QCOMPARE(without.size(), with_identity.size());
        for (const auto& [name, page] : with_identity) {
            QVERIFY2(without.contains(name), qPrintable(name));
            QVERIFY2(without.at(name) == page, qPrintable(name));
        }
    }
};

QTEST_MAIN(test_reports_without_identity)
#include "test_reports_without_identity.moc"
