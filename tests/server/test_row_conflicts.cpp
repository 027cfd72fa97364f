#include <QTest>

#include "store/Recordset.h"
#include "tests/server/foreign_source.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// Rows of tables without the identity column that are equal, or that someone else has changed.
class test_row_conflicts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void one_of_two_equal_rows_is_changed()
    {
        foreign_source bare;
        bare.open();
        remove_row_columns(bare);
        bare.reopen();
        Recordset partners(bare.connection, partners_settings(lock_type::batch_optimistic));
        partners.Open();
        add_partner(partners, u"a"_s, 1);
        add_partner(partners, u"a"_s, 1);
        partners.UpdateBatch();
        partners.MoveFirst();
        partners.Fields(u"code").set(2);
        partners.UpdateBatch();
        QCOMPARE(stored_partners(bare), u"a:1:null a:2:null"_s);
        partners.MoveFirst();
        partners.Delete();
        partners.UpdateBatch();
        QCOMPARE(stored_partners(bare), u"a:1:null"_s);
    }

    void a_row_that_someone_changed_meanwhile_is_not_overwritten()
    {
        foreign_source bare;
        bare.open();
        remove_row_columns(bare);
        bare.reopen();
        Recordset partners(bare.connection, partners_settings());
        partners.Open();
        add_partner(partners, u"a"_s, 1);
        bare.change(u"update %1.partners set code = 5"_s);
        partners.Fields(u"TEL").set(u"1"_s);
        QVERIFY(failure_of([&] { partners.Update(); }) == failure_kind::misuse);
        QCOMPARE(stored_partners(bare), u"a:5:null"_s);
    }

    void deleting_a_row_that_someone_changed_meanwhile_fails_and_keeps_it_data()
    {
        QTest::addColumn<lock_type>("lock");
        QTest::newRow("at once") << lock_type::optimistic;
        QTest::newRow("as a batch") << lock_type::batch_optimistic;
    }
    void deleting_a_row_that_someone_changed_meanwhile_fails_and_keeps_it()
    {
        QFETCH(lock_type, lock);
        foreign_source bare;
        bare.open();
        remove_row_columns(bare);
        bare.reopen();
        Recordset partners(bare.connection, partners_settings(lock));
        partners.Open();
        add_partner(partners, u"a"_s, 1);
        partners.UpdateBatch();
        bare.change(u"update %1.partners set code = 5"_s);
        const auto delete_it = [&partners] {
            partners.Delete();
            partners.UpdateBatch();
        };
        QVERIFY(failure_of(delete_it) == failure_kind::misuse);
        QCOMPARE(stored_partners(bare), u"a:5:null"_s);
    }
};

QTEST_GUILESS_MAIN(test_row_conflicts)
#include "test_row_conflicts.moc"
