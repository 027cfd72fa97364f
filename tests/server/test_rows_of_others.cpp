#include <QTest>

#include "store/Connection1.h"
#include "tests/server/own_server.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/outside_connection.h"
#include "tests/support/reader.h"
#include "tests/transfer/archived_folder.h"
#include "tests/transfer/killed_run.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

int count_of(const test_store& store, const QString& condition)
{
    return reader(store.location()).number(u"select count(*) from "_s + condition);
}

}  // namespace

/// Rows that another connection commits while `verdane-store` works on a server.
class test_rows_of_others : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_row_of_an_archived_round_that_is_committed_meanwhile_is_not_deleted()
    {
        const test_store place;
        create_diary(place.location(), 4, false);
        const QTemporaryDir folder;
        const QString target = folder.filePath(u"old.db"_s);
        const QString costs = u"cost where date = '%1'"_s.arg(key_in_diary(1));
        const auto insert = [&] {
            outside_connection(place.location())
                .run(u"insert into cost (date) values ('%1')"_s.arg(key_in_diary(1)));
        };
        QCOMPARE(run_with_step({u"archive"_s, argument_of(place), u"2023-01-03"_s, file_argument(target)},
                               file_use::name, target, insert),
                 status(exit_status::failed));
        QCOMPARE(count_of(place, costs), 2);
        QCOMPARE(count_of(place, u"games"_s), 4);
        QCOMPARE(count_of(place, u"games2"_s), 4);
    }

    void a_row_that_is_committed_to_the_target_of_a_copy_meanwhile_is_not_deleted()
    {
        const copied_folder folder;
        const test_store target;
        Connection1().Open(target.location());
        store_run run({u"copy"_s, file_argument(folder.diary), argument_of(target)});
        {
            const outside_connection lock(store_location::source(administrator_source()));
            lock.run_unchanged(u"lock tables %1.Stat_rounds read"_s.arg(file_of(target.location())));
            run.start();
            wait_until_a_table_is_awaited();
            outside_connection(target.location())
                .run(u"insert into partners (NAME, code) values ('other', 7)"_s);
        }
        QVERIFY(run.exit_status().has_value());
        QCOMPARE(count_of(target, u"partners where NAME = 'other'"_s), 1);
    }
};

QTEST_GUILESS_MAIN(test_rows_of_others)
#include "test_rows_of_others.moc"
