#include <QApplication>
#include <QTest>

#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "management/store_clean_up.h"
#include "store/DataEnvironment1.h"
#include "tests/support/diary.h"
#include "tests/support/failures.h"
#include "tests/support/hand.h"
#include "tests/support/store_folder.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

expected_box notice(const QString& text)
{
    return {text, QMessageBox::NoIcon, default_title(), QMessageBox::Ok};
}

void add_round(const diary& book, int day)
{
    book.store.write(u"insert into games (date) values ('%1')"_s.arg(key_of_day(day)));
}

void add_shots(const diary& book, int day, int holes)
{
    for (int hole = 1; hole <= holes; ++hole)
        book.add(diary_shot{.key = key_of_day(day), .hole = hole});
}

/// Cleans up, answering boxes with these texts and no others.
void clean_up(const QStringList& told)
{
    play([] { run_event(clean_up_store); },
         [&](hand& user) {
             for (const QString& text : told)
                 user.answer(notice(text));
         });
}

int shots(const diary& book)
{
    return book.store.number(u"select count(*) from Stat_rounds"_s);
}

}  // namespace

class test_store_clean_up : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void without_orphans_only_the_count_and_the_end_are_told_data() { both_languages(); }
    void without_orphans_only_the_count_and_the_end_are_told()
    {
        QFETCH(bool, french);
        const store_folder store(french);
        const diary book(store.path());
        for (const int day : {1, 2}) {
            add_round(book, day);
            add_shots(book, day, 3);
        }
        clean_up({u"0"_s, u"Fin"_s});
        QCOMPARE(shots(book), 6);
        QCOMPARE(open_recordsets(), QStringList());
    }

    void a_missing_round_is_told_once_and_all_its_shots_go()
    {
        const store_folder store;
        const diary book(store.path());
        add_round(book, 2);
        add_shots(book, 2, 1);
        add_shots(book, 5, 18);
        clean_up({key_of_day(5), u"1"_s, u"Fin"_s});
        QCOMPARE(shots(book), 1);
        QCOMPARE(book.store.text(u"select date from Stat_rounds"_s), key_of_day(2));
    }

    void orphans_before_between_and_behind_rounds_go_in_time_order()
    {
        const store_folder store;
        const diary book(store.path());
        for (const int day : {3, 6})
            add_round(book, day);
        for (const int day : {9, 6, 5, 3, 1})
            add_shots(book, day, 2);
        clean_up({key_of_day(1), key_of_day(5), key_of_day(9), u"3"_s, u"Fin"_s});
        QCOMPARE(book.store.text(u"select group_concat(distinct date) from Stat_rounds"_s),
                 QString(key_of_day(3) + u',' + key_of_day(6)));
        QCOMPARE(shots(book), 4);
        clean_up({u"0"_s, u"Fin"_s});
        QCOMPARE(shots(book), 4);
    }

    void rounds_themselves_are_never_touched()
    {
        const store_folder store;
        const diary book(store.path());
        add_round(book, 1);
        add_shots(book, 4, 1);
        book.store.write({u"insert into games2 (date) values ('%1')"_s.arg(key_of_day(4)),
                          u"insert into cost (date) values ('%1')"_s.arg(key_of_day(4))});
        clean_up({key_of_day(4), u"1"_s, u"Fin"_s});
        QCOMPARE(book.store.number(u"select count(*) from games"_s), 1);
        QCOMPARE(book.store.number(u"select count(*) from games2"_s), 1);
        QCOMPARE(book.store.number(u"select count(*) from cost"_s), 1);
    }

    void a_key_is_told_before_its_shots_go()
    {
        const store_folder store;
        const diary book(store.path());
        add_round(book, 1);
        add_shots(book, 2, 3);
        add_shots(book, 3, 2);
        play([] { run_event(clean_up_store); },
             [&](hand& user) {
                 user.wait_for_window(u"message_box"_s);
                 user.same(shots(book), 5, u"shots at the first key"_s);
                 user.answer(notice(key_of_day(2)));
                 user.wait_for_window(u"message_box"_s);
                 user.same(shots(book), 2, u"shots at the second key"_s);
                 user.answer(notice(key_of_day(3)));
                 user.wait_for_window(u"message_box"_s);
                 user.same(shots(book), 0, u"shots at the number"_s);
                 user.answer(notice(u"2"_s));
                 user.answer(notice(u"Fin"_s));
             });
    }

    void the_recordsets_are_closed_between_the_number_and_the_end()
    {
        const store_folder store;
        const diary book(store.path());
        add_round(book, 1);
        add_shots(book, 1, 1);
        const auto open_at = [](hand& user, const QString& text) {
            user.wait_for_window(u"message_box"_s);
            QString open;
            user.look([&open] { open = open_recordsets().join(u' '); });
            user.answer(notice(text));
            return open;
        };
        play([] { run_event(clean_up_store); },
             [&](hand& user) {
                 user.same(open_at(user, u"0"_s), u"rsgames rsStat_rounds"_s, u"open at the number"_s);
                 user.same(open_at(user, u"Fin"_s), QString(), u"open at the end"_s);
             });
    }

    void the_last_statements_name_the_last_key_only()
    {
        const store_folder store;
        const diary book(store.path());
        add_round(book, 1);
        add_shots(book, 1, 1);
        add_shots(book, 4, 1);
        add_shots(book, 6, 1);
        play([] { run_event(clean_up_store); },
             [&](hand& user) {
                 user.answer(notice(key_of_day(4)));
                 user.answer(notice(key_of_day(6)));
                 user.wait_for_window(u"message_box"_s);
                 // What comes in behind the walk's back is met by those statements alone.
                 add_shots(book, 4, 2);
                 add_shots(book, 6, 2);
                 user.answer(notice(u"2"_s));
                 user.answer(notice(u"Fin"_s));
             });
        QCOMPARE(book.store.text(u"select group_concat(date) from Stat_rounds"_s),
                 QStringList({key_of_day(1), key_of_day(4), key_of_day(4)}).join(u','));
    }

    void a_shot_that_the_store_keeps_ends_it_and_what_went_stays_gone()
    {
        const store_folder store;
        const diary book(store.path());
        add_round(book, 1);
        add_shots(book, 2, 2);
        add_shots(book, 3, 3);
        book.store.write(
            u"create trigger refuse before delete on Stat_rounds when old.date = '%1' and "
            "old.hole = 2 begin select raise(abort, 'refused by the test'); end"_s.arg(key_of_day(3)));
        std::optional<failure_kind> failure;
        play([&] { failure = failure_of(clean_up_store); },
             [](hand& user) {
                 user.answer(notice(key_of_day(2)));
                 user.answer(notice(key_of_day(3)));
             });
        QCOMPARE(failure, failure_kind::store_other);
        QCOMPARE(book.store.text(u"select group_concat(hole) from Stat_rounds"_s), u"2,3"_s);
    }

    void a_shot_without_a_key_is_an_orphan_too()
    {
        const store_folder store;
        const diary book(store.path());
        add_round(book, 1);
        add_shots(book, 1, 1);
        book.store.write(u"insert into Stat_rounds (hole) values (3)"_s);
        clean_up({QString(), u"1"_s, u"Fin"_s});
        QCOMPARE(book.store.text(u"select date from Stat_rounds"_s), key_of_day(1));
    }

    void all_rounds_are_looked_at_whatever_list_was_read_last()
    {
        const store_folder store;
        const diary book(store.path());
        add_round(book, 1);
        add_shots(book, 1, 1);
        data_environment().rsgames.set_Source(u"select * from games where date = 'none'"_s);
        clean_up({u"0"_s, u"Fin"_s});
        QCOMPARE(shots(book), 1);
    }

    void a_store_without_shots_or_rounds_fails_data()
    {
        QTest::addColumn<bool>("rounds");
        QTest::newRow("no shots") << true;
        QTest::newRow("no rounds") << false;
    }
    void a_store_without_shots_or_rounds_fails()
    {
        QFETCH(bool, rounds);
        const store_folder store;
        const diary book(store.path());
        if (rounds)
            add_round(book, 1);
        else
            add_shots(book, 1, 2);
        QCOMPARE(failure_of(clean_up_store), failure_kind::misuse);
        QCOMPARE(shots(book), rounds ? 0 : 2);
    }

    void past_500_missing_rounds_it_fails_and_what_went_stays_gone()
    {
        const store_folder store;
        const diary book(store.path());
        add_round(book, 1);
        QStringList statements{u"begin"_s};
        for (int i = 1; i <= 501; ++i)
            statements << u"insert into Stat_rounds (date, hole) values ('19990101%1', 1)"_s.arg(i, 6, 10,
                                                                                                 QChar(u'0'));
        book.store.write(statements << u"commit"_s);
        std::optional<failure_kind> failure;
        play([&] { failure = failure_of(clean_up_store); },
             [&](hand& user) {
                 for (int i = 1; i <= 500; ++i)
                     user.answer(notice(u"19990101%1"_s.arg(i, 6, 10, QChar(u'0'))));
             });
        QCOMPARE(failure, failure_kind::subscript);
        QCOMPARE(shots(book), 1);
    }
};

QTEST_MAIN(test_store_clean_up)
#include "test_store_clean_up.moc"
