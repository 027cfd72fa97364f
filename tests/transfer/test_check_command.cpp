#include <QTest>

#include <optional>

#include "store/Connection1.h"
#include "tests/support/engine_of_tests.h"
#include "tests/transfer/checked_store.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// What is refused when a source is opened is found in a file.
exit_status status_of_structure()
{
    return engine_of_tests() == test_engine::embedded ? exit_status::problems : exit_status::failed;
}

}  // namespace

/// `verdane-store check` as a child process.
class test_check_command : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// The copies of a source are in the data folder of the user.
    void initTestCase() { qputenv("XDG_DATA_HOME", data_.path().toUtf8()); }

    void a_diary_without_problems_is_reported_with_its_size()
    {
        const checked_store checked;
        store_run english(checked.arguments());
        QCOMPARE(english.run(), status(exit_status::done));
        const int shots = checked.store.number(u"select count(*) from Stat_rounds"_s);
        QCOMPARE(english.output(), u"No problem: 2 rounds, %1 shots.\n"_s.arg(shots));
        store_run french(checked.arguments());
        french.set_language(u"fr_CA.UTF-8"_s);
        QCOMPARE(french.run(), status(exit_status::done));
        QCOMPARE(french.output(), u"Aucun problème : 2 rondes, %1 coups.\n"_s.arg(shots));
    }

    void a_full_diary_without_problems_is_checked()
    {
        const test_store place;
        create_diary(place.location(), rounds_of_full_diary, true);
        store_run run({u"check"_s, argument_of(place)});
        QCOMPARE(run.run(), status(exit_status::done));
        QVERIFY2(run.output().startsWith(u"No problem: 366 rounds, "), qUtf8Printable(run.output()));
    }

    void a_problem_is_found_and_repaired_if_no_choice_is_needed_data()
    {
        QTest::addColumn<QString>("damage");
        QTest::addColumn<QString>("reported");
        QTest::addColumn<bool>("repaired");
        const auto row = [](const char* name, const QString& damage, const QString& reported, bool repaired) {
            QTest::newRow(name) << damage << reported << repaired;
        };
        row("no situation", u"delete from games2"_s, u"every round has one row of games2 (2 : "_s, true);
        row("no costs", u"delete from cost"_s, u"every round has one row of cost (2 : "_s, true);
        row("situation of no round", u"insert into games2 (date) values ('20200101000000')"_s,
            u"every row of games2 has its round (1 : 20200101000000)"_s, true);
        row("costs of no round", u"insert into cost (date) values (null)"_s,
            u"every row of cost has its round (1 : )"_s, true);
        row("two situations", u"insert into games2 (date) values ('%1')"_s.arg(key_in_diary(1)),
            u"no round has two rows of games2 (1 : "_s + key_in_diary(1), false);
        row("two rounds of a key", u"insert into games (date) values ('%1')"_s.arg(key_in_diary(1)),
            u"every key has one round (1 : "_s, false);
        row("a key with a letter",
            u"insert into games (date) values ('2020010100000x');"
            "insert into games2 (date) values ('2020010100000x');"
            "insert into cost (date) values ('2020010100000x')"_s,
            u"every key has 14 digits (1 : 2020010100000x)"_s, false);
        row("kind", u"update Stat_rounds set shot_type = 'x' where shot = 1"_s,
            u"the kind in words is the kind in code (36 : "_s, true);
        row("position", u"update Stat_rounds set fairval = 1, faireway = 'x' where shot = 1"_s,
            u"the position in words is the position in code (36 : "_s, true);
        row("position of a putt", u"update Stat_rounds set faireway = 'Left' where shot_type_value = 3"_s,
            u"a putt without a code of its position has no word ("_s, true);
        row("penalty", u"update Stat_rounds set penval = 3, addpen = 1, penality = 'x' where shot = 1"_s,
            u"the penalty in words is the penalty in code (36 : "_s, true);
        row("strokes of a penalty", u"update Stat_rounds set addpen = 7 where shot = 1"_s,
            u"a penalty adds one stroke (36 : "_s, true);
        row("unit", u"update Stat_rounds set unit = 'm' where shot = 1"_s,
            u"units are words of one of the languages (36 : "_s, false);
        row("distance", u"update Stat_rounds set after = -1 where shot = 1"_s,
            u"no distance is below zero (36 : "_s, false);
        row("hole", u"update Stat_rounds set hole = 19 where hole = 18"_s, u"every shot is on a hole ("_s,
            false);
        row("number of a shot", u"update Stat_rounds set shot = 1 where shot = 2"_s,
            u"no two shots of a hole have one number (36 : "_s, false);
        row("club", u"update Stat_rounds set stickval = 15 where shot = 1"_s,
            u"codes of shots are in their sets (36 : "_s, false);
        row("rows of a report table", u"delete from stats"_s, u"(1 : stats: 0 ≠ 34)"_s, true);
        row("one row of settings", u"delete from settings"_s, u"(1 : settings: 0 ≠ 1)"_s, true);
        row("two rows of names", u"insert into sticknames (club_1) values ('x')"_s,
            u"(1 : sticknames: 2 ≠ 1)"_s, false);
        row("index", drop_index(), u"an index is missing (1 : shots_by_hole)"_s, true);
    }

    void a_problem_is_found_and_repaired_if_no_choice_is_needed()
    {
        QFETCH(QString, damage);
        QFETCH(QString, reported);
        QFETCH(bool, repaired);
        const checked_store checked;
        checked.store.write(damage.split(u';'));
        store_run found(checked.arguments());
        QCOMPARE(found.run(), status(exit_status::problems));
        QVERIFY2(found.output().contains(reported), qUtf8Printable(found.output()));
        QVERIFY2(found.output().contains(u"\n    --repair repairs it\n") == repaired,
                 qUtf8Printable(found.output()));
        store_run repair(checked.arguments({u"--repair"_s}));
        QCOMPARE(repair.run(), status(repaired ? exit_status::done : exit_status::problems));
    }

    void a_row_that_only_a_copy_can_correct_is_not_changed_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("damage");
        QTest::addColumn<QString>("reported");
        const auto row = [](const char* name, const QString& table, const QString& damage,
                            const QString& reported) { QTest::newRow(name) << table << damage << reported; };
        row("temperature of no round", u"games2"_s,
            u"insert into games2 (date, temperature) values ('20200101000000', 20)"_s,
            u"no row of games2 with values is without its round (1 : 20200101000000)"_s);
        row("partners of no round", u"games2"_s, u"insert into games2 (PARTNERS) values ('1-')"_s,
            u"no row of games2 with values is without its round (1 : )"_s);
        row("spare value of no round", u"games2"_s,
            u"insert into games2 (date, games2_spare_1) values ('20200101000000', '7')"_s,
            u"no row of games2 with values is without its round (1 : 20200101000000)"_s);
        row("costs of no round", u"cost"_s, u"insert into cost (date, au) values ('20200101000000', 5)"_s,
            u"no row of cost with values is without its round (1 : 20200101000000)"_s);
        row("course without its holes", u"field_info"_s,
            u"delete from field_info where FIELD_CODE in (select max(code) from vrd_fields)"_s,
            u"every course has its holes in field_info (1 : "_s);
        row("unknown course of a round", u"games"_s,
            u"update games set CODEF = 'unknown' where date = '%1'"_s.arg(key_in_diary(1)),
            u"the course of every round exists (1 : %1)"_s.arg(key_in_diary(1)));
        row("unknown course of a situation", u"games2"_s,
            u"update games2 set FC = 'unknown' where date = '%1'"_s.arg(key_in_diary(1)),
            u"the course of every round exists (1 : %1)"_s.arg(key_in_diary(1)));
        row("two rounds of a key", u"games"_s,
            u"insert into games (date) values ('%1')"_s.arg(key_in_diary(1)),
            u"every key has one round (1 : %1)"_s.arg(key_in_diary(1)));
        for (const QString& table : {u"games2"_s, u"cost"_s})
            row(qPrintable(u"two rows of "_s + table), table,
                u"insert into %1 (date) values ('%2')"_s.arg(table, key_in_diary(1)),
                u"no round has two rows of %1 (1 : %2)"_s.arg(table, key_in_diary(1)));
        // MariaDB drops a blank after the 14 characters of the column.
        if (engine_of_tests() == test_engine::mariadb)
            return;
        for (const QString& table : {u"games2"_s, u"cost"_s, u"Stat_rounds"_s})
            row(qPrintable(u"blank in a key of "_s + table), table,
                u"update %1 set date = '%2 ' where date = '%2'"_s.arg(table, key_in_diary(1)),
                u"no key begins or ends with a blank (1 : %1 )"_s.arg(key_in_diary(1)));
    }

    void a_row_that_only_a_copy_can_correct_is_not_changed()
    {
        QFETCH(QString, table);
        QFETCH(QString, damage);
        QFETCH(QString, reported);
        const checked_store checked;
        checked.store.write({damage, u"update Stat_rounds set addpen = 7"_s});
        const QString count = u"select count(*) from "_s + table;
        const int before = checked.store.number(count);
        store_run repair(checked.arguments({u"--repair"_s}));
        const std::optional<int> ended = repair.run();
        const QString printed = repair.output();
        const qsizetype place = printed.lastIndexOf(reported);
        const qsizetype line = printed.indexOf(u'\n', place);
        QVERIFY2(place >= 0 && printed.sliced(line).startsWith(u"\n    put a copy back in place (restore)\n"),
                 qUtf8Printable(printed));
        QVERIFY2(repair.output().endsWith(u"Problems: 1.\n"), qUtf8Printable(repair.output()));
        QCOMPARE(ended, status(exit_status::problems));
        QCOMPARE(checked.store.number(count), before);
        QCOMPARE(checked.store.number(u"select count(*) from Stat_rounds where addpen = 7"_s), 0);
    }

    void a_repair_adds_one_row_for_two_rounds_of_a_key()
    {
        const checked_store checked;
        const QString key = key_in_diary(1);
        checked.lose({u"games2"_s, u"cost"_s});
        checked.store.write(
            u"insert into games (date, CODEF) select '%1', max(code) from vrd_fields"_s.arg(key));
        store_run repair(checked.arguments({u"--repair"_s}));
        QCOMPARE(repair.run(), status(exit_status::problems));
        QVERIFY2(repair.output().endsWith(u"Problems: 1.\n"), qUtf8Printable(repair.output()));
        for (const QString& table : {u"games2"_s, u"cost"_s})
            QCOMPARE(checked.store.number(u"select count(*) from %1 where date = '%2'"_s.arg(table, key)), 1);
    }

    void a_table_or_column_that_is_missing_is_not_repaired_data()
    {
        QTest::addColumn<QString>("damage");
        QTest::newRow("table") << u"drop table hand"_s;
        QTest::newRow("column") << u"alter table hand rename column hnd to other"_s;
    }

    void a_table_or_column_that_is_missing_is_not_repaired()
    {
        QFETCH(QString, damage);
        const checked_store checked;
        checked.store.write(damage);
        store_run run(checked.arguments({u"--repair"_s}));
        QCOMPARE(run.run(), status(status_of_structure()));
        const QString printed = run.output() + run.errors();
        QVERIFY2(printed.contains(u"hand"), qUtf8Printable(printed));
    }

    void a_number_of_one_is_followed_by_the_singular()
    {
        const test_store place;
        create_diary(place.location(), 1, true);
        reader(place.location()).write(u"delete from Stat_rounds where hole > 1 or shot > 1"_s);
        store_run english({u"check"_s, argument_of(place)});
        QCOMPARE(english.run(), status(exit_status::done));
        QCOMPARE(english.output(), u"No problem: 1 round, 1 shot.\n"_s);
        reader(place.location()).write(u"delete from Stat_rounds"_s);
        store_run french({u"check"_s, argument_of(place)});
        french.set_language(u"fr_CA.UTF-8"_s);
        QCOMPARE(french.run(), status(exit_status::done));
        QCOMPARE(french.output(), u"Aucun problème : 1 ronde, 0 coup.\n"_s);
    }

    void a_diary_in_use_is_refused()
    {
        const checked_store checked;
        Connection1 user;
        user.Open(checked.place.location());
        QCOMPARE(store_run(checked.arguments({u"--repair"_s})).run(), status(exit_status::in_use));
    }

    void a_store_without_tables_is_no_diary()
    {
        const test_store place;
        QCOMPARE(store_run({u"check"_s, argument_of(place)}).run(), status(exit_status::no_diary));
    }

    void a_wrong_command_line_is_refused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("two stores") << QStringList{u"file:a"_s, u"file:b"_s};
        QTest::newRow("no store") << QStringList{u"--repair"_s};
        QTest::newRow("rounds without repair") << QStringList{u"file:a"_s, u"--make-rounds"_s};
        QTest::newRow("unknown option") << QStringList{u"file:a"_s, u"--mend"_s};
    }

    void a_wrong_command_line_is_refused()
    {
        QFETCH(QStringList, arguments);
        QCOMPARE(store_run(QStringList{u"check"_s} + arguments).run(), status(exit_status::usage));
    }

private:
    QTemporaryDir data_;
};

QTEST_GUILESS_MAIN(test_check_command)
#include "test_check_command.moc"
