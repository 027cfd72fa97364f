#include <QTest>

#include "store/DataEnvironment1.h"
#include "store/orphan_shots.h"
#include "tests/support/diary.h"
#include "tests/support/failures.h"
#include "tests/support/refused_change.h"
#include "tests/support/store_folder.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A new store with its rounds and shots.
struct shot_store {
    void add_round(int day) const
    {
        book.store.write(u"insert into games (date) values ('%1')"_s.arg(key_of_day(day)));
    }
    /// A shot on each of the first holes.
    void add_shots(int day, int holes) const
    {
        for (int hole = 1; hole <= holes; ++hole)
            book.add(diary_shot{.key = key_of_day(day), .hole = hole});
    }
    int shots() const { return book.store.number(u"select count(*) from Stat_rounds"_s); }
    QString text(const QString& statement) const { return book.store.text(statement); }

    store_folder folder;
    diary book{folder.location()};
};

/// Removes the orphan shots and returns the texts that were shown.
QStringList removal()
{
    QStringList shown;
    remove_orphan_shots([&](const QString& text) { shown << text; });
    return shown;
}

QString nth_key(int number)
{
    return u"19990101%1"_s.arg(number, 6, 10, QChar(u'0'));
}

}  // namespace

class test_orphan_shots : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void without_orphans_only_the_number_0_is_shown()
    {
        const shot_store store;
        for (const int day : {1, 2}) {
            store.add_round(day);
            store.add_shots(day, 3);
        }
        QCOMPARE(removal(), QStringList{u"0"_s});
        QCOMPARE(store.shots(), 6);
        QCOMPARE(open_recordsets(), QStringList());
    }

    void a_missing_round_is_shown_once_and_all_its_shots_are_removed()
    {
        const shot_store store;
        store.add_round(2);
        store.add_shots(2, 1);
        store.add_shots(5, 18);
        QCOMPARE(removal(), (QStringList{key_of_day(5), u"1"_s}));
        QCOMPARE(store.shots(), 1);
        QCOMPARE(store.text(u"select date from Stat_rounds"_s), key_of_day(2));
    }

    void orphans_before_between_and_after_rounds_are_removed_in_time_order()
    {
        const shot_store store;
        for (const int day : {3, 6})
            store.add_round(day);
        for (const int day : {9, 6, 5, 3, 1})
            store.add_shots(day, 2);
        QCOMPARE(removal(), (QStringList{key_of_day(1), key_of_day(5), key_of_day(9), u"3"_s}));
        QCOMPARE(
            store.text(
                u"select group_concat(date) from (select distinct date from Stat_rounds order by date)"_s),
            QString(key_of_day(3) + u',' + key_of_day(6)));
        QCOMPARE(store.shots(), 4);
        QCOMPARE(removal(), QStringList{u"0"_s});
        QCOMPARE(store.shots(), 4);
    }

    void the_other_tables_are_not_changed()
    {
        const shot_store store;
        store.add_round(1);
        store.add_shots(4, 1);
        store.book.store.write({u"insert into games2 (date) values ('%1')"_s.arg(key_of_day(4)),
                                u"insert into cost (date) values ('%1')"_s.arg(key_of_day(4))});
        QCOMPARE(removal(), (QStringList{key_of_day(4), u"1"_s}));
        for (const QString& table : {u"games"_s, u"games2"_s, u"cost"_s})
            QCOMPARE(store.book.store.number(u"select count(*) from "_s + table), 1);
    }

    void a_key_is_shown_before_its_shots_are_removed()
    {
        const shot_store store;
        store.add_round(1);
        store.add_shots(2, 3);
        store.add_shots(3, 2);
        QStringList shown;
        remove_orphan_shots([&](const QString& text) { shown << text << QString::number(store.shots()); });
        QCOMPARE(shown, (QStringList{key_of_day(2), u"5"_s, key_of_day(3), u"2"_s, u"2"_s, u"0"_s}));
    }

    void the_recordsets_are_open_while_the_number_is_shown_and_closed_at_the_end()
    {
        const shot_store store;
        store.add_round(1);
        store.add_shots(1, 1);
        QStringList open;
        remove_orphan_shots([&](const QString&) { open = open_recordsets(); });
        QCOMPARE(open.join(u' '), u"rsgames rsStat_rounds"_s);
        QCOMPARE(open_recordsets(), QStringList());
    }

    void the_last_statements_delete_by_the_last_key_only()
    {
        const shot_store store;
        store.add_round(1);
        store.add_shots(1, 1);
        store.add_shots(4, 1);
        store.add_shots(6, 1);
        remove_orphan_shots([&](const QString& text) {
            // Shots that are added after the walk are deleted by those statements alone.
            if (text == u"2") {
                store.add_shots(4, 2);
                store.add_shots(6, 2);
            }
        });
        QCOMPARE(store.text(u"select group_concat(date) from Stat_rounds"_s),
                 QStringList({key_of_day(1), key_of_day(4), key_of_day(4)}).join(u','));
    }

    void a_shot_that_cannot_be_deleted_is_a_failure_and_the_earlier_ones_remain_deleted()
    {
        const shot_store store;
        store.add_round(1);
        store.add_shots(2, 2);
        store.add_shots(3, 3);
        store.book.store.write(
            refuse(u"delete"_s, u"Stat_rounds"_s, u"old.date = '%1' and old.hole = 2"_s.arg(key_of_day(3))));
        QStringList shown;
        const auto failure =
            failure_of([&] { remove_orphan_shots([&](const QString& text) { shown << text; }); });
        QCOMPARE(failure, failure_kind::store_other);
        QCOMPARE(shown, (QStringList{key_of_day(2), key_of_day(3)}));
        QCOMPARE(store.text(u"select group_concat(hole) from Stat_rounds"_s), u"2,3"_s);
    }

    void a_shot_without_a_key_is_an_orphan()
    {
        const shot_store store;
        store.add_round(1);
        store.add_shots(1, 1);
        store.book.store.write(u"insert into Stat_rounds (hole) values (3)"_s);
        QCOMPARE(removal(), (QStringList{QString(), u"1"_s}));
        QCOMPARE(store.text(u"select date from Stat_rounds"_s), key_of_day(1));
    }

    void all_rounds_are_searched_whatever_the_source_of_the_recordset_was()
    {
        const shot_store store;
        store.add_round(1);
        store.add_shots(1, 1);
        data_environment().rsgames.set_Source(u"select * from games where date = 'none'"_s);
        QCOMPARE(removal(), QStringList{u"0"_s});
        QCOMPARE(store.shots(), 1);
    }

    void a_store_without_shots_or_rounds_is_a_failure_data()
    {
        QTest::addColumn<bool>("rounds");
        QTest::newRow("no shots") << true;
        QTest::newRow("no rounds") << false;
    }
    void a_store_without_shots_or_rounds_is_a_failure()
    {
        QFETCH(bool, rounds);
        const shot_store store;
        if (rounds)
            store.add_round(1);
        else
            store.add_shots(1, 2);
        QCOMPARE(failure_of(removal), failure_kind::misuse);
        QCOMPARE(store.shots(), rounds ? 0 : 2);
    }

    void the_501st_missing_round_is_a_failure_and_the_earlier_shots_remain_deleted()
    {
        const shot_store store;
        store.add_round(1);
        QStringList statements{u"begin"_s};
        for (int i = 1; i <= 501; ++i)
            statements << u"insert into Stat_rounds (date, hole) values ('%1', 1)"_s.arg(nth_key(i));
        store.book.store.write(statements << u"commit"_s);
        QStringList shown;
        const auto failure =
            failure_of([&] { remove_orphan_shots([&](const QString& text) { shown << text; }); });
        QCOMPARE(failure, failure_kind::subscript);
        QCOMPARE(shown.size(), 500);
        QCOMPARE(shown.first(), nth_key(1));
        QCOMPARE(shown.last(), nth_key(500));
        QCOMPARE(store.shots(), 1);
    }
};

QTEST_MAIN(test_orphan_shots)
#include "test_orphan_shots.moc"
