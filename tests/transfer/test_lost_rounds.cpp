#include <QTest>

#include "tests/transfer/checked_store.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// `verdane-store check --repair --make-rounds` as a child process.
class test_lost_rounds : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// The copies of a source are in the data folder of the user.
    void initTestCase() { qputenv("XDG_DATA_HOME", data_.path().toUtf8()); }

    void a_round_is_made_of_shots_that_have_none_if_that_is_wanted()
    {
        const checked_store checked;
        const QVariantList games = checked.row(u"games"_s);
        const QVariantList games2 = checked.row(u"games2"_s);
        checked.lose({u"games"_s});
        store_run found(checked.arguments({u"--repair"_s}));
        QCOMPARE(found.run(), status(exit_status::problems));
        QVERIFY2(found.output().contains(u"--repair --make-rounds makes rounds of them"),
                 qUtf8Printable(found.output()));
        QCOMPARE(checked.store.number(u"select count(*) from games"_s), 1);
        store_run made(checked.arguments({u"--repair"_s, u"--make-rounds"_s}));
        QCOMPARE(made.run(), status(exit_status::done));
        QVERIFY2(made.output().contains(u"Round made of its shots: " + key_in_diary(1)),
                 qUtf8Printable(made.output()));
        QCOMPARE(checked.row(u"games"_s), games);
        QCOMPARE(checked.row(u"games2"_s), games2);
    }

    void the_situation_of_a_round_is_made_of_its_shots_too()
    {
        const checked_store checked;
        QVariantList games2 = checked.row(u"games2"_s);
        checked.lose({u"games"_s, u"games2"_s, u"cost"_s});
        QCOMPARE(store_run(checked.arguments({u"--make-rounds"_s, u"--repair"_s})).run(),
                 status(exit_status::done));
        QVariantList made = checked.row(u"games2"_s);
        // Weather, partners and temperature are lost.
        for (const qsizetype column : {1, 2, 201})
            made[column] = games2[column] = 0;
        QCOMPARE(made, games2);
        QCOMPARE(checked.store.number(u"select count(*) from cost"_s), rounds);
    }

    void a_round_of_a_full_diary_is_made_and_all_its_shots_are_repaired()
    {
        const test_store place;
        create_diary(place.location(), rounds_of_full_diary, true);
        const reader store(place.location());
        const int shots = store.number(u"select count(*) from Stat_rounds"_s);
        store.write({u"delete from games where date = '%1'"_s.arg(key_in_diary(200)), u"delete from cost"_s,
                     u"update Stat_rounds set addpen = 7"_s});
        QCOMPARE(store_run({u"check"_s, argument_of(place), u"--repair"_s, u"--make-rounds"_s}).run(),
                 status(exit_status::done));
        for (const QString& table : {u"games"_s, u"games2"_s, u"cost"_s})
            QCOMPARE(store.number(u"select count(*) from "_s + table), rounds_of_full_diary);
        QCOMPARE(store.number(u"select count(*) from Stat_rounds where addpen <> 7"_s), shots);
    }

    void no_round_is_made_of_shots_whose_course_is_not_known()
    {
        const checked_store checked;
        checked.lose({u"games"_s});
        checked.store.write(u"update Stat_rounds set verges = 1 where hole = 7"_s);
        store_run run(checked.arguments({u"--repair"_s, u"--make-rounds"_s}));
        QCOMPARE(run.run(), status(exit_status::problems));
        QVERIFY2(run.output().contains(u"no course has these pars and lengths"),
                 qUtf8Printable(run.output()));
        QVERIFY2(!run.output().contains(u"Repaired"), qUtf8Printable(run.output()));
        QCOMPARE(checked.store.number(u"select count(*) from games"_s), 1);
    }

    void no_round_is_made_of_shots_without_par_or_length_data()
    {
        QTest::addColumn<QString>("damage");
        QTest::newRow("no par") << u"update Stat_rounds set normal = null"_s;
        QTest::newRow("no length") << u"update Stat_rounds set verges = null"_s;
        QTest::newRow("neither") << u"update Stat_rounds set normal = null, verges = null"_s;
    }

    void no_round_is_made_of_shots_without_par_or_length()
    {
        QFETCH(QString, damage);
        const checked_store checked;
        checked.lose({u"games"_s});
        // With a single course, every shot without values would fit it.
        checked.store.write(
            {damage, u"delete from vrd_fields where code not in (select CODEF from games)"_s});
        store_run run(checked.arguments({u"--repair"_s, u"--make-rounds"_s}));
        QCOMPARE(run.run(), status(exit_status::problems));
        QVERIFY2(run.output().contains(u"no course has these pars and lengths"),
                 qUtf8Printable(run.output()));
        QCOMPARE(checked.store.number(u"select count(*) from games"_s), 1);
    }

    void no_round_is_made_of_shots_on_some_of_its_holes_data()
    {
        QTest::addColumn<QString>("damage");
        QTest::newRow("no shots") << u"delete from Stat_rounds where hole in (3, 18)"_s;
        QTest::newRow("shots without a kind")
            << u"update Stat_rounds set shot_type_value = 0 where hole in (3, 18)"_s;
    }

    void no_round_is_made_of_shots_on_some_of_its_holes()
    {
        QFETCH(QString, damage);
        const checked_store checked;
        checked.lose({u"games"_s});
        checked.store.write(damage);
        const QString count = u"select count(*) from Stat_rounds"_s;
        const int shots = checked.store.number(count);
        store_run run(checked.arguments({u"--repair"_s, u"--make-rounds"_s}));
        QCOMPARE(run.run(), status(exit_status::problems));
        QVERIFY2(run.output().contains(u"No round for the shots of " + key_in_diary(1) +
                                       u": shots are missing on these holes: 3, 18\n"),
                 qUtf8Printable(run.output()));
        QCOMPARE(checked.store.number(u"select count(*) from games"_s), 1);
        QCOMPARE(checked.store.number(count), shots);
    }

    void without_a_repair_there_is_no_copy_and_no_report_of_one()
    {
        const copied_folder folder;
        reader(folder.diary).write(u"update Stat_rounds set verges = 1"_s);
        reader(folder.diary).write(u"delete from games where date = '%1'"_s.arg(key_in_diary(1)));
        store_run run({u"check"_s, file_argument(folder.diary), u"--repair"_s, u"--make-rounds"_s});
        QCOMPARE(run.run(), status(exit_status::problems));
        QVERIFY2(run.output().contains(u"No round for the shots of "), qUtf8Printable(run.output()));
        QVERIFY2(!run.output().contains(u"Repaired"), qUtf8Printable(run.output()));
        QCOMPARE(kept_copies(folder.folder.path()), QStringList());
    }

private:
    QTemporaryDir data_;
};

QTEST_GUILESS_MAIN(test_lost_rounds)
#include "test_lost_rounds.moc"
