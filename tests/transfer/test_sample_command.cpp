#include <QTemporaryDir>
#include <QTest>

#include "store/Connection1.h"
#include "tests/support/reader.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString count_rounds = u"select count(*) from games"_s;

QStringList sample_arguments(const store_location& store)
{
    return {u"sample"_s, argument_of_store(store)};
}

}  // namespace

/// `verdane-store sample` as a child process.
class test_sample_command : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_sample_in_a_new_store_has_no_problems_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("output");
        QTest::addColumn<QString>("words");
        QTest::newRow("French") << u"fr_CA.UTF-8"_s << u"Saison inventée : 26 rondes dans "_s
                                << u"Approche,Long,Putt"_s;
        QTest::newRow("English") << u"en_GB.UTF-8"_s << u"Invented season: 26 rounds in "_s
                                 << u"Approach,Long,Putt"_s;
    }

    void a_sample_in_a_new_store_has_no_problems()
    {
        QFETCH(QString, language);
        QFETCH(QString, output);
        const test_store place;
        const reader store(place.location());
        store_run run(sample_arguments(place.location()));
        run.set_language(language);
        QCOMPARE(run.run(), status(exit_status::done));
        QCOMPARE(run.output(), output + argument_of(place) + u'\n');
        QCOMPARE(store.number(count_rounds), 26);
        QCOMPARE(store.number(u"select count(distinct date) from Stat_rounds"_s), 13);
        QCOMPARE(store.number(u"select count(distinct CODEF) from games"_s), 3);
        QCOMPARE(store.number(u"select count(*) from partners"_s), 4);
        QVERIFY(store.number(u"select min(fg) from cost"_s) > 0);
        QTEST(
            store.text(u"select group_concat(word) from (select distinct shot_type as word from Stat_rounds "
                       "order by word)"_s),
            "words");
        store_run check({u"check"_s, argument_of(place)});
        QCOMPARE(check.run(), status(exit_status::done));
        QVERIFY2(check.output().startsWith(u"No problem: 26 rounds, "), qUtf8Printable(check.output()));
    }

    void every_hole_of_a_sample_has_a_plausible_number_of_strokes()
    {
        const test_store place;
        const reader store(place.location());
        QCOMPARE(store_run(sample_arguments(place.location())).run(), status(exit_status::done));
        for (int hole = 1; hole <= 18; ++hole) {
            const QString strokes =
                u"(long_%1 + approach_%1 + putt_%1 + pen_rule_%1 + pen_water_%1 + pen_bounds_%1 + pen_lost_%1)"_s
                    .arg(hole);
            QCOMPARE(
                store.number(u"select count(*) from games where not %1 between 2 and 13 or putt_%2 > 3"_s.arg(
                    strokes, QString::number(hole))),
                0);
        }
    }

    void two_runs_write_the_same_sample()
    {
        const QTemporaryDir folder;
        const QString first = folder.filePath(u"first.db"_s);
        const QString second = folder.filePath(u"second.db"_s);
        for (const QString& path : {first, second})
            QCOMPARE(store_run(sample_arguments(store_location::file(path))).run(),
                     status(exit_status::done));
        QCOMPARE(all_rows(second), all_rows(first));
    }

    void an_empty_store_is_filled_and_keeps_its_language()
    {
        const test_store place;
        Connection1().Open(place.location());
        const reader store(place.location());
        store.write(u"update settings set language = 2"_s);
        QCOMPARE(store_run(sample_arguments(place.location())).run(), status(exit_status::done));
        QCOMPARE(store.number(count_rounds), 26);
        QCOMPARE(store.number(u"select language from settings"_s), 2);
    }

    void a_store_with_rows_is_refused_and_not_changed()
    {
        const copied_folder folder;
        const QStringList before = all_rows(folder.diary);
        store_run run(sample_arguments(store_location::file(folder.diary)));
        QCOMPARE(run.run(), status(exit_status::not_empty));
        QVERIFY2(run.errors().contains(u"is not empty: table games has 12 rows. Nothing was changed."),
                 "another reason");
        QCOMPARE(all_rows(folder.diary), before);
    }

    void a_store_in_use_is_refused()
    {
        const test_store place;
        Connection1 user;
        user.Open(place.location());
        QCOMPARE(store_run(sample_arguments(place.location())).run(), status(exit_status::in_use));
        QCOMPARE(reader(place.location()).number(count_rounds), 0);
    }

    void a_wrong_command_line_is_refused()
    {
        QCOMPARE(store_run({u"sample"_s, u"a.db"_s}).run(), status(exit_status::usage));
        QCOMPARE(store_run({u"sample"_s, u"file:a"_s, u"file:b"_s}).run(), status(exit_status::usage));
    }
};

QTEST_GUILESS_MAIN(test_sample_command)
#include "test_sample_command.moc"
