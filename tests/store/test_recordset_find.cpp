#include <QTest>

#include "store/find_criterion.h"
#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;
using testing::store_fixture;

class test_recordset_find : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_criterion_compares_a_number_as_a_number_and_a_text_as_a_text_data()
    {
        QTest::addColumn<QString>("criterion");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("matches");
        const auto row = [](const char* criterion, const QVariant& value, bool matches) {
            QTest::addRow("%s on %s", criterion, qPrintable(value.toString()))
                << QString::fromUtf8(criterion) << value << matches;
        };
        const auto text = [](const char* t) { return QVariant(QString::fromUtf8(t)); };
        row("date='20030614093000'", text("20030614093000"), true);
        row("Date ='20030614093000'", text("20030614093000"), true);
        row("date=20030614093000", text("20030614093000"), true);
        row("date=20030614093000", text("20030614093001"), false);
        row("CODE = 'BOIS VERT-0'", text("BOIS VERT-0"), true);
        row("CODE = 'BOIS VERT-0'", text("Bois Vert-0"), false);
        row("CODE = 'BOIS VERT-0'", text("BOIS VERT-0 "), false);
        row("name='l''allée'", text("l'allée"), true);
        row("name=''", text(""), true);
        row("Date >='20030101000000'", text("20030614093000"), true);
        row("Date >='20030614093000'", text("20030614093000"), true);
        row("Date >'20030614093000'", text("20030614093000"), false);
        row("Date <='20030614093000'", text("20030614092959"), true);
        row("Date < '20030614093000'", text("20030614093000"), false);
        row("Date<>'20030614093000'", text("20030614093001"), true);
        row("name >= '9'", text("10"), false);
        row("hole = 9", 9, true);
        row("hole = '9'", 9, true);
        row("hole > 9", 10, true);
        row("hnd >= 1.5", 1.5, true);
        row("hnd < 1.5", 10.25, false);
        row("ts = True", true, true);
        row("ts = -1", true, true);
        row("ts = 0", false, true);
        row("name = 'x'", QVariant(), false);
        row("name <> 'x'", QVariant(), false);
    }

    void a_criterion_compares_a_number_as_a_number_and_a_text_as_a_text()
    {
        QFETCH(QString, criterion);
        QFETCH(QVariant, value);
        QFETCH(bool, matches);
        QCOMPARE(find_criterion(criterion).matches(value), matches);
    }

    void a_text_that_is_no_criterion_is_a_misuse_data()
    {
        QTest::addColumn<QString>("criterion");
        for (const char* criterion : {"", "date", "='x'", "date='x", "date='"})
            QTest::addRow("<%s>", criterion) << QString::fromLatin1(criterion);
    }

    void a_text_that_is_no_criterion_is_a_misuse()
    {
        QFETCH(QString, criterion);
        store_fixture store;
        const auto games = store.opened(u"select * from games"_s);
        QVERIFY(failure_of([&] { games->Find(criterion); }) == failure_kind::misuse);
    }

    void a_forward_search_starts_at_the_current_row()
    {
        store_fixture store;
        store.add_partners({u"a"_s, u"b"_s, u"a"_s});
        const auto partners = store.opened(u"select * from partners"_s);
        partners->Find(u"name='a'"_s);
        QCOMPARE(partners->position(), 0);
        partners->MoveNext();
        partners->Find(u"name='a'"_s);
        QCOMPARE(partners->position(), 2);
        partners->MoveNext();
        QVERIFY(partners->eof());
        partners->Find(u"name='a'"_s);
        QVERIFY(partners->eof());
    }

    void after_a_search_for_an_absent_value_the_recordset_is_at_the_end()
    {
        store_fixture store;
        store.add_partners({u"a"_s, u"b"_s});
        const auto partners = store.opened(u"select * from partners"_s);
        for (const auto direction : {search_direction::forward, search_direction::backward}) {
            partners->MoveFirst();
            partners->Find(u"name='z'"_s, direction);
            QVERIFY(partners->eof());
            QVERIFY(!partners->bof());
        }
    }

    void a_backward_search_finds_every_row_after_a_move_to_the_first()
    {
        store_fixture store;
        store.add_partners({u"a"_s, u"b"_s, u"c"_s});
        const auto partners = store.opened(u"select * from partners"_s);
        for (const char* name : {"a", "b", "c"}) {
            partners->MoveFirst();
            partners->Find(u"NAME = '%1'"_s.arg(QString::fromLatin1(name)), search_direction::backward);
            QCOMPARE(partners->Fields(u"name").text(), QString::fromLatin1(name));
        }
    }

    void a_backward_search_finds_the_nearest_row_before()
    {
        store_fixture store;
        store.add_partners({u"a"_s, u"a"_s, u"b"_s, u"a"_s});
        const auto partners = store.opened(u"select * from partners"_s);
        partners->MoveTo(2);
        partners->Find(u"name='a'"_s, search_direction::backward);
        QCOMPARE(partners->position(), 1);
        partners->Find(u"name='a'"_s, search_direction::backward);
        QCOMPARE(partners->position(), 1);
        partners->MoveLast();
        partners->MoveNext();
        partners->Find(u"name='b'"_s, search_direction::backward);
        QCOMPARE(partners->position(), 2);
    }

    void a_search_in_an_empty_recordset_stays_at_the_end()
    {
        store_fixture store;
        const auto games = store.opened(u"select * from games"_s);
        games->Find(u"date='x'"_s);
        QVERIFY(games->eof());
        games->Find(u"date='x'"_s, search_direction::backward);
        QVERIFY(games->eof());
    }

    void a_search_commits_the_row_that_it_leaves()
    {
        store_fixture store;
        store.add_partners({u"a"_s, u"b"_s});
        const auto partners = store.opened(u"select * from partners"_s);
        partners->Fields(u"name").set(u"changed"_s);
        partners->Find(u"name='b'"_s);
        QCOMPARE(testing::stored_names(store), u"changed b"_s);
    }

    void a_search_finds_the_pending_values_of_a_batch()
    {
        store_fixture store;
        store.add_partners({u"a"_s});
        const auto partners = store.opened(u"select * from partners"_s, lock_type::batch_optimistic);
        partners->AddNew();
        partners->Fields(u"name").set(u"new"_s);
        partners->MoveFirst();
        partners->Find(u"name='new'"_s);
        QCOMPARE(partners->position(), 1);
    }

    void a_missing_column_is_reported_as_missing()
    {
        store_fixture store;
        const auto games = store.opened(u"select * from games"_s);
        QVERIFY(failure_of([&] { games->Find(u"golfer='x'"_s); }) == failure_kind::missing_table);
    }
};

QTEST_GUILESS_MAIN(test_recordset_find)
#include "test_recordset_find.moc"
