#include <QTest>

#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"

using namespace verdane;
using testing::failure_of;
using testing::names_of;
using testing::store_fixture;

namespace {

const QStringList three{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
const QString all_partners = QStringLiteral("select * from partners");

}  // namespace

class test_recordset_walk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void open_stands_on_the_first_row()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        QCOMPARE(partners->position(), 0);
        QCOMPARE(partners->RecordCount(), 3);
        QVERIFY(!partners->bof());
        QVERIFY(!partners->eof());
        QVERIFY(!partners->empty());
        QCOMPARE(names_of(*partners), QStringLiteral("a b c"));
    }

    void an_empty_recordset_is_at_both_ends()
    {
        store_fixture store;
        const auto partners = store.opened(all_partners);
        QVERIFY(partners->bof());
        QVERIFY(partners->eof());
        QVERIFY(partners->empty());
        QCOMPARE(partners->RecordCount(), 0);
        QCOMPARE(partners->position(), -1);
        partners->MoveNext();
        partners->MovePrevious();
        QVERIFY(partners->bof());
        QVERIFY(partners->eof());
    }

    void next_and_previous_stop_behind_the_ends()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->MoveLast();
        partners->MoveNext();
        QVERIFY(partners->eof());
        partners->MoveNext();
        QVERIFY(partners->eof());
        partners->MovePrevious();
        QCOMPARE(partners->Fields(u"name").text(), QStringLiteral("c"));
        partners->MoveFirst();
        partners->MovePrevious();
        QVERIFY(partners->bof());
        QVERIFY(!partners->eof());
        partners->MovePrevious();
        QVERIFY(partners->bof());
        partners->MoveNext();
        QCOMPARE(partners->position(), 0);
    }

    void move_goes_by_so_many_rows_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("steps");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("end");
        QTest::newRow("forward") << 0 << 2 << 2 << QString();
        QTest::newRow("back") << 2 << -1 << 1 << QString();
        QTest::newRow("nowhere") << 1 << 0 << 1 << QString();
        QTest::newRow("past the end") << 0 << 9 << -1 << QStringLiteral("eof");
        QTest::newRow("just past the end") << 2 << 1 << -1 << QStringLiteral("eof");
        QTest::newRow("before the first") << 1 << -5 << -1 << QStringLiteral("bof");
        QTest::newRow("farther than any number")
            << 1 << std::numeric_limits<int>::max() << -1 << QStringLiteral("eof");
    }

    void move_goes_by_so_many_rows()
    {
        QFETCH(int, from);
        QFETCH(int, steps);
        QFETCH(int, to);
        QFETCH(QString, end);
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->MoveTo(from);
        partners->Move(steps);
        QCOMPARE(partners->position(), to);
        QCOMPARE(partners->eof(), end == u"eof");
        QCOMPARE(partners->bof(), end == u"bof");
    }

    void a_source_stays_in_force_until_the_next_one()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.recordset(all_partners);
        partners->set_Source(QStringLiteral("select * from partners where name='b'"));
        partners->Open();
        QCOMPARE(names_of(*partners), QStringLiteral("b"));
        partners->Close();
        partners->Open();
        QCOMPARE(names_of(*partners), QStringLiteral("b"));
        partners->Close();
        QCOMPARE(partners->Source(), QStringLiteral("select * from partners where name='b'"));
        QCOMPARE(partners->settings().source, all_partners);
    }

    void a_source_written_while_open_counts_at_the_requery()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->set_Source(QStringLiteral("select * from partners where name='c'"));
        QCOMPARE(partners->RecordCount(), 3);
        partners->Requery();
        QCOMPARE(names_of(*partners), QStringLiteral("c"));
    }

    void requery_no_longer_shows_rows_that_a_statement_deleted()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->MoveLast();
        store.connection.Execute(QStringLiteral("delete from partners where name='a'"));
        QCOMPARE(partners->RecordCount(), 3);
        partners->Requery();
        QCOMPARE(partners->position(), 0);
        QCOMPARE(names_of(*partners), QStringLiteral("b c"));
    }

    void a_requery_that_fails_leaves_the_rows_as_they_were()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->set_Source(QStringLiteral("select * from golfers"));
        QVERIFY(failure_of([&] { partners->Requery(); }) == failure_kind::missing_table);
        QVERIFY(partners->is_open());
        QCOMPARE(names_of(*partners), QStringLiteral("a b c"));
    }

    void fields_are_reached_by_place_or_by_name_in_any_case()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        QCOMPARE(partners->Fields(0).text(), QStringLiteral("a"));
        QCOMPARE(partners->Fields(u"Name").text(), QStringLiteral("a"));
        QCOMPARE(plain(partners->Fields(u"CODE").to_int32()), 1);
        QCOMPARE(partners->field_count(), 7);
        QCOMPARE(partners->field_type(6), column_type::amount);
    }

    void a_join_has_the_ordinals_of_its_own_list_and_is_read_only()
    {
        store_fixture store;
        store.connection.Execute(QStringLiteral("insert into games2 (date) values ('20030614093000')"));
        store.connection.Execute(QStringLiteral(
            "insert into stat_rounds (date, hole, verges, ts) values ('20030614093000', 4, 380, 1)"));
        const auto shots = store.opened(
            QStringLiteral("select STAT_ROUNDS.date, hole, games2.date, verges, ts from STAT_ROUNDS, GAMES2 "
                           "where STAT_ROUNDS.date=games2.date"));
        QCOMPARE(shots->field_count(), 5);
        QCOMPARE(plain(shots->Fields(1).to_int16()), 4);
        QCOMPARE(plain(shots->Fields(3).to_int16()), 380);
        QVERIFY(shots->Fields(4).yes());
        QVERIFY(failure_of([&] { shots->Fields(1).set(5); }) == failure_kind::misuse);
        QVERIFY(failure_of([&] { shots->AddNew(); }) == failure_kind::misuse);
        QVERIFY(failure_of([&] { shots->Delete(); }) == failure_kind::misuse);
    }

    void any_rows_value_is_read_without_leaving_the_current_row()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->Fields(0).set(QStringLiteral("typed"));
        QCOMPARE(partners->value_at(2, 0), QVariant(QStringLiteral("c")));
        QCOMPARE(partners->value_at(0, 0), QVariant(QStringLiteral("typed")));
        QVERIFY(!partners->value_at(1, 1).isValid());
        QVERIFY(partners->pending());
        QVERIFY(failure_of([&] { partners->value_at(3, 0); }) == failure_kind::misuse);
    }
};

QTEST_GUILESS_MAIN(test_recordset_walk)
#include "test_recordset_walk.moc"
