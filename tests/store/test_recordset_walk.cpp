#include <QTest>

#include "tests/store/store_fixture.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failures.h"
#include "tests/support/recordset_columns.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::names_of;
using testing::store_fixture;

namespace {

const QStringList three{u"a"_s, u"b"_s, u"c"_s};
const QString all_partners = u"select * from partners"_s;

}  // namespace

class test_recordset_walk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void after_open_the_first_row_is_current()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        QCOMPARE(partners->position(), 0);
        QCOMPARE(partners->RecordCount(), 3);
        QVERIFY(!partners->bof());
        QVERIFY(!partners->eof());
        QVERIFY(!partners->empty());
        QCOMPARE(names_of(*partners), u"a b c"_s);
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

    void next_and_previous_do_not_move_beyond_the_ends()
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
        QCOMPARE(partners->Fields(u"name").text(), u"c"_s);
        partners->MoveFirst();
        partners->MovePrevious();
        QVERIFY(partners->bof());
        QVERIFY(!partners->eof());
        partners->MovePrevious();
        QVERIFY(partners->bof());
        partners->MoveNext();
        QCOMPARE(partners->position(), 0);
    }

    void move_moves_by_a_number_of_rows_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("steps");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("end");
        QTest::newRow("forward") << 0 << 2 << 2 << QString();
        QTest::newRow("back") << 2 << -1 << 1 << QString();
        QTest::newRow("nowhere") << 1 << 0 << 1 << QString();
        QTest::newRow("past the end") << 0 << 9 << -1 << u"eof"_s;
        QTest::newRow("just past the end") << 2 << 1 << -1 << u"eof"_s;
        QTest::newRow("before the first") << 1 << -5 << -1 << u"bof"_s;
        QTest::newRow("farther than any number") << 1 << std::numeric_limits<int>::max() << -1 << u"eof"_s;
    }

    void move_moves_by_a_number_of_rows()
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
        partners->set_Source(u"select * from partners where name='b'"_s);
        partners->Open();
        QCOMPARE(names_of(*partners), u"b"_s);
        partners->Close();
        partners->Open();
        QCOMPARE(names_of(*partners), u"b"_s);
        partners->Close();
        QCOMPARE(partners->Source(), u"select * from partners where name='b'"_s);
        QCOMPARE(partners->settings().source, all_partners);
    }

    void a_source_written_while_open_is_run_by_the_requery()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->set_Source(u"select * from partners where name='c'"_s);
        QCOMPARE(partners->RecordCount(), 3);
        partners->Requery();
        QCOMPARE(names_of(*partners), u"c"_s);
    }

    void requery_no_longer_shows_rows_that_a_statement_deleted()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->MoveLast();
        store.connection.Execute(u"delete from partners where name='a'"_s);
        QCOMPARE(partners->RecordCount(), 3);
        partners->Requery();
        QCOMPARE(partners->position(), 0);
        QCOMPARE(names_of(*partners), u"b c"_s);
    }

    void a_requery_that_fails_does_not_change_the_rows()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->set_Source(u"select * from golfers"_s);
        QVERIFY(failure_of([&] { partners->Requery(); }) == testing::missing_part_of_engine());
        QVERIFY(partners->is_open());
        QCOMPARE(names_of(*partners), u"a b c"_s);
    }

    void fields_are_reached_by_ordinal_or_by_name_in_any_case()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        QCOMPARE(partners->Fields(0).text(), u"a"_s);
        QCOMPARE(partners->Fields(u"Name").text(), u"a"_s);
        QCOMPARE(plain(partners->Fields(u"CODE").to_int32()), 1);
        QCOMPARE(testing::column_count(*partners), 7);
        QCOMPARE(partners->field_type(6), column_type::amount);
    }

    void a_join_has_the_ordinals_of_its_own_list_and_is_read_only()
    {
        store_fixture store;
        store.connection.Execute(u"insert into games2 (date) values ('20030614093000')"_s);
        store.connection.Execute(
            u"insert into stat_rounds (date, hole, verges, ts) values ('20030614093000', 4, 380, 1)"_s);
        const auto shots =
            store.opened(u"select STAT_ROUNDS.date, hole, games2.date, verges, ts from STAT_ROUNDS, GAMES2 "
                         u"where STAT_ROUNDS.date=games2.date"_s);
        QCOMPARE(testing::column_count(*shots), 5);
        QCOMPARE(plain(shots->Fields(1).to_int16()), 4);
        QCOMPARE(plain(shots->Fields(3).to_int16()), 380);
        QVERIFY(shots->Fields(4).yes());
        QVERIFY(failure_of([&] { shots->Fields(1).set(5); }) == failure_kind::misuse);
        QVERIFY(failure_of([&] { shots->AddNew(); }) == failure_kind::misuse);
        QVERIFY(failure_of([&] { shots->Delete(); }) == failure_kind::misuse);
    }

    void a_value_of_any_row_is_read_without_a_move()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->Fields(0).set(u"typed"_s);
        QCOMPARE(partners->value_at(2, 0), QVariant(u"c"_s));
        QCOMPARE(partners->value_at(0, 0), QVariant(u"typed"_s));
        QVERIFY(!partners->value_at(1, 1).isValid());
        QVERIFY(partners->pending());
        QVERIFY(failure_of([&] { partners->value_at(3, 0); }) == failure_kind::misuse);
    }
};

QTEST_GUILESS_MAIN(test_recordset_walk)
#include "test_recordset_walk.moc"
