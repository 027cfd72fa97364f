#include <QApplication>
#include <QListWidget>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "boxes.h"
#include "DataEnvironment1.h"
#include "diary.h"
#include "f_games.h"
#include "failure_guard.h"
#include "Main_module.h"
#include "round_removal.h"
#include "round_windows.h"
#include "window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// A failure between two tables is tried in a child process: this program again, with a store.
namespace {

QString list_window()
{
    return in_language(u"f_games", u"f_games_en");
}

expected_box question()
{
    return {
        in_language(u"Attention : Toutes les données de cette ronde incluant les statistiques des bâtons et "
                    "coups roulés seront supprimées. Voulez-vous continuer ?",
                    u"Attention: All data relative to this round will be removed, included associated "
                    "statistics on clubs and putts. Do you wish to continue?"),
        QMessageBox::NoIcon, default_title(), QMessageBox::Yes | QMessageBox::No};
}

expected_box notice()
{
    return {in_language(u"Ronde supprimée", u"Round removed"), QMessageBox::Information, default_title(),
            QMessageBox::Ok};
}

/// Rounds on the first days of the year, each with two shots on two holes and a row of costs.
void add_rounds(const reader& store, int count)
{
    const diary book(store);
    const diary_course course = flat_course(u"ALPHA-0"_s, 4, u"70"_s, u"113"_s);
    book.add(course);
    for (int day = 1; day <= count; ++day) {
        const QString key = key_of_day(day);
        book.add(diary_round{key, course, same_holes(hole_in(4)), 0, {}});
        for (const int hole : {2, 1}) {
            for (const int shot : {1, 2})
                book.add(diary_shot{.key = key, .hole = hole, .shot = shot});
        }
        store.write(u"insert into cost (date, fg) values ('%1', %2)"_s.arg(key).arg(day));
    }
}

/// The days of the month that each of the four tables has rows of.
QString days_stored(const reader& store)
{
    QStringList tables;
    for (const QString& table : {u"games"_s, u"games2"_s, u"Stat_rounds"_s, u"cost"_s})
        tables << store.text(u"select ifnull(group_concat(distinct substr(date, 8, 1)), '') from "
                             "(select date from %1 order by date)"_s.arg(table));
    return tables.join(u" | ");
}

void in_list(const std::function<void(hand&)>& script)
{
    play([] { run_event([] { f_games().show_modal(); }); },
         [&](hand& user) {
             user.wait_for_window(list_window());
             script(user);
             user.wait_until_gone(list_window());
         });
}

void leave(hand& user)
{
    user.click(u"Command1_2"_s);
}

void remove(hand& user)
{
    user.click(u"Command1_3"_s);
    user.answer(question(), QMessageBox::Yes);
    user.answer(notice());
    user.wait_for_window(list_window());
}

QString lines(hand& user)
{
    QStringList days;
    for (const QString& line : user.entries(u"List1"_s))
        days << line.left(10);
    return days.join(u' ');
}

/// Removes the second round of three from a store that refuses it in one table.
int run_child(const QString& path)
{
    language_is_settled = true;
    data_environment().connection.Open(path);
    const recording_frame frame;
    in_list([](hand& user) {
        user.click_row(u"List1"_s, 1);
        user.click(u"Command1_3"_s);
        user.answer(question(), QMessageBox::Yes);
        user.answer({failure_words(failure_kind::store_other).in(true), QMessageBox::Critical, u"Verdane"_s,
                     QMessageBox::Ok});
    });
    return 77;  // not reached: the process has ended with the failure
}

void lay_down_store_that_refuses(const QString& path, const QString& table)
{
    {
        Connection1 connection;
        connection.Open(path);
    }
    const reader store(path);
    add_rounds(store, 3);
    store.write(u"create trigger refuse before delete on %1 when old.date = '%2' begin "
                "select raise(abort, 'refused by the test'); end"_s.arg(table, key_of_day(2)));
}

}  // namespace

class test_round_removal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void yes_removes_the_round_from_the_four_tables_data() { both_languages(); }
    void yes_removes_the_round_from_the_four_tables()
    {
        QFETCH(bool, french);
        const round_store store(french);
        add_rounds(store.store, 3);
        in_list([](hand& user) {
            user.click_row(u"List1"_s, 1);
            remove(user);
            user.same(lines(user), u"2003-01-01 2003-01-03"_s, u"lines"_s);
            user.same(user.selected(u"List1"_s), 0, u"selected"_s);
            leave(user);
        });
        QCOMPARE(days_stored(store.store), u"1,3 | 1,3 | 1,3 | 1,3"_s);
        QCOMPARE(store.number(u"select count(*) from Stat_rounds"_s), 8);
        QCOMPARE(open_recordsets(), QStringList());
    }

    void any_round_of_the_list_can_go_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("kept");
        QTest::newRow("the first") << 0 << u"2,3"_s;
        QTest::newRow("the last") << 2 << u"1,2"_s;
    }
    void any_round_of_the_list_can_go()
    {
        QFETCH(int, row);
        QFETCH(QString, kept);
        const round_store store;
        add_rounds(store.store, 3);
        in_list([&](hand& user) {
            user.click_row(u"List1"_s, row);
            remove(user);
            user.same(user.selected(u"List1"_s), 0, u"selected"_s);
            leave(user);
        });
        QCOMPARE(days_stored(store.store), QStringList(4, kept).join(u" | "));
    }

    void no_leaves_tables_and_list_as_they_were_data() { both_languages(); }
    void no_leaves_tables_and_list_as_they_were()
    {
        QFETCH(bool, french);
        const round_store store(french);
        add_rounds(store.store, 2);
        in_list([](hand& user) {
            user.click_row(u"List1"_s, 1);
            user.click(u"Command1_3"_s);
            user.answer(question(), QMessageBox::No);
            user.wait_for_window(list_window());
            user.same(lines(user), u"2003-01-01 2003-01-02"_s, u"lines"_s);
            user.same(user.selected(u"List1"_s), 1, u"selected"_s);
            leave(user);
        });
        QCOMPARE(days_stored(store.store), u"1,2 | 1,2 | 1,2 | 1,2"_s);
    }

    void escape_at_the_question_is_no_yes()
    {
        const round_store store;
        add_rounds(store.store, 1);
        in_list([](hand& user) {
            user.click(u"Command1_3"_s);
            user.wait_for_window(u"message_box"_s);
            user.key(Qt::Key_Escape);
            user.wait_for_window(list_window());
            leave(user);
        });
        QCOMPARE(days_stored(store.store), u"1 | 1 | 1 | 1"_s);
    }

    void without_a_round_nothing_is_asked()
    {
        const round_store store;
        add_rounds(store.store, 1);
        in_list([](hand& user) {
            remove(user);
            user.same(lines(user), QString(), u"lines"_s);
            user.same(user.selected(u"List1"_s), -1, u"selected"_s);
            for (const auto& button : {u"Command1_3"_s, u"Command1_0"_s}) {
                user.click(button);
                user.check(!user.is_open(u"message_box"_s) && user.is_open(list_window()), u"nothing"_s);
            }
            leave(user);
        });
        QCOMPARE(days_stored(store.store), u" |  |  | "_s);
    }

    void rows_that_a_round_lacks_are_not_missed_data()
    {
        QTest::addColumn<QString>("table");
        QTest::newRow("no shots") << u"Stat_rounds"_s;
        QTest::newRow("no costs") << u"cost"_s;
        QTest::newRow("no situation") << u"games2"_s;
    }
    void rows_that_a_round_lacks_are_not_missed()
    {
        QFETCH(QString, table);
        for (const bool empty : {false, true}) {
            const round_store store;
            add_rounds(store.store, 2);
            store.store.write(u"delete from %1 where date = '%2'%3"_s.arg(table, key_of_day(1),
                                                                          empty ? u" or 1"_s : QString()));
            in_list([](hand& user) {
                remove(user);
                leave(user);
            });
            const QString kept = store.text(u"select group_concat(distinct date) from games"_s);
            QCOMPARE(kept, key_of_day(2));
            QCOMPARE(store.number(u"select count(*) from %1"_s.arg(table)),
                     empty ? 0 : (table == u"Stat_rounds" ? 4 : 1));
        }
    }

    void the_key_is_taken_for_the_rest_of_the_run_and_free_after_a_restart()
    {
        const round_store store;
        add_rounds(store.store, 2);
        Main_module::append_round_key(key_of_keyed_round());
        store.store.write(
            u"update games set date = '%1' where date = '%2'"_s.arg(key_of_keyed_round(), key_of_day(2)));
        in_list([](hand& user) {
            user.click_row(u"List1"_s, 1);
            remove(user);
            leave(user);
        });
        QCOMPARE(Main_module::round_keys[0], key_of_keyed_round());
        QCOMPARE(plain(Main_module::round_key_count), 1);
        in_new_round([](hand& user) {
            fill_tee_off(user, u"9"_s, u"30"_s, u"00"_s);
            user.answer(refusal_of_moment());
            user.key(Qt::Key_Escape);
        });
    }

    void a_round_can_be_opened_and_added_after_a_removal_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("opened") << u"Command1_0"_s;
        QTest::newRow("added") << u"Command1_1"_s;
    }
    void a_round_can_be_opened_and_added_after_a_removal()
    {
        QFETCH(QString, button);
        const round_store store;
        add_rounds(store.store, 2);
        // The round window would ask for the clubs of these shots.
        store.store.write(u"delete from Stat_rounds where date = '%1'"_s.arg(key_of_day(2)));
        in_list([&](hand& user) {
            remove(user);
            user.click(button);
            if (button == u"Command1_0"_s) {
                user.wait_for_window(round_window());
                user.same(user.text(u"text_2"_s), u"2003-01-02"_s, u"date"_s);
                user.same(user.text(u"text_7"_s), u"2"_s, u"costs"_s);
            } else {
                tee_off(user, u"9"_s, u"30"_s, u"00"_s);
                user.wait_for_window(round_window());
            }
            accept(user);
        });
        QCOMPARE(store.text(u"select min(date) from games"_s), key_of_day(2));
        QCOMPARE(open_recordsets(), QStringList());
    }

    void a_failure_between_two_tables_leaves_the_rest_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("left");
        QTest::newRow("at the strokes") << u"games"_s << u"1,2,3 | 1,2,3 | 1,2,3 | 1,2,3"_s;
        QTest::newRow("at the situation") << u"games2"_s << u"1,3 | 1,2,3 | 1,2,3 | 1,2,3"_s;
        QTest::newRow("at the shots") << u"Stat_rounds"_s << u"1,3 | 1,3 | 1,2,3 | 1,2,3"_s;
        QTest::newRow("at the costs") << u"cost"_s << u"1,3 | 1,3 | 1,3 | 1,2,3"_s;
    }
    void a_failure_between_two_tables_leaves_the_rest()
    {
        QFETCH(QString, table);
        QFETCH(QString, left);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"verdbase.sqlite"_s);
        lay_down_store_that_refuses(path, table);
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {u"--child"_s, path});
        QVERIFY(child.waitForFinished(120000));
        const QByteArray said = child.readAllStandardError();
        QVERIFY2(!said.contains("FAIL!"), said.constData());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
        QCOMPARE(days_stored(reader(path)), left);
    }

    void the_statements_stay_the_sources_of_their_recordsets()
    {
        const round_store store;
        add_rounds(store.store, 1);
        remove_round(key_of_day(1));
        QCOMPARE(data_environment().rsStat_rounds.Source(),
                 u"select * from Stat_rounds order by date,hole"_s);
        QCOMPARE(data_environment().rscost.Source(), u"select * from cost order by date"_s);
        QCOMPARE(open_recordsets(), QStringList());
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (application.arguments().value(1) == u"--child")
        return run_child(application.arguments().value(2));
    test_round_removal test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_round_removal.moc"
