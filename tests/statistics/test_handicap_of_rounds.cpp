#include <QTest>

#include "base/numbers.h"
#include "statistics/round_handicap.h"
#include "store/DataEnvironment1.h"
#include "tests/support/failures.h"
#include "tests/support/stored_diary.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString reference_code = u"REFERENCE-0"_s;

/// A course on which a differential is the gross less 72.
diary_course reference_course()
{
    return flat_course(reference_code, 4, u"72"_s, u"113"_s);
}

/// A round of that gross: everything on the first hole.
diary_round round_of(int day, const diary_course& course, int gross)
{
    hole_entry first;
    first.long_shots = gross;
    eighteen holes{};
    holes.front() = first;
    return {key_of_day(day), course, holes, 0, {}};
}

selection_arguments whole_year()
{
    selection_arguments chosen;
    chosen.from_key = key_of_day(1);
    chosen.to_key = key_of_day(1000);
    return chosen;
}

QString handicap_of(const selection_arguments& chosen)
{
    return Statistics::compute_handicap(chosen).text;
}

}  // namespace

class test_handicap_of_rounds : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_number_of_rounds_gives_the_number_of_best_differentials_that_count_data()
    {
        QTest::addColumn<int>("rounds");
        QTest::addColumn<QString>("expected");
        // Differentials 1, 2, 3, ... : the mean of the best `take` is (take + 1) / 2.
        QTest::newRow("4: none") << 4 << "N/A";
        QTest::newRow("5: the best one, whole") << 5 << " 1";
        QTest::newRow("6: 2") << 6 << " 1.4";  // 1.5 * 0.96 = 1.44
        QTest::newRow("7: 2") << 7 << " 1.4";
        QTest::newRow("8: 3") << 8 << " 1.9";     // 2 * 0.96 = 1.92
        QTest::newRow("10: 4") << 10 << " 2.4";   // 2.5 * 0.96 = 2.4
        QTest::newRow("13: 5") << 13 << " 2.9";   // 3 * 0.96 = 2.88
        QTest::newRow("15: 6") << 15 << " 3.4";   // 3.5 * 0.96 = 3.36
        QTest::newRow("17: 7") << 17 << " 3.8";   // 4 * 0.96 = 3.84
        QTest::newRow("18: 8") << 18 << " 4.3";   // 4.5 * 0.96 = 4.32
        QTest::newRow("19: 9") << 19 << " 4.8";   // 5 * 0.96 = 4.8
        QTest::newRow("20: 10") << 20 << " 5.3";  // 5.5 * 0.96 = 5.28
        QTest::newRow("21: 10") << 21 << " 5.3";
        QTest::newRow("50: the 10 best of all") << 50 << " 5.3";
    }
    void the_number_of_rounds_gives_the_number_of_best_differentials_that_count()
    {
        QFETCH(int, rounds);
        const stored_diary store;
        const diary_course course = reference_course();
        store.book.add(course);
        std::vector<diary_round> all;
        // The worst come first: the order of time is not that of the figures.
        for (int i = 0; i < rounds; ++i)
            all.push_back(round_of(i + 1, course, 72 + rounds - i));
        store.book.add(all);
        QTEST(handicap_of(whole_year()), "expected");
        QCOMPARE(store.store.number(u"select count(*) from hand"_s), rounds);
        QCOMPARE(store.store.number(u"select min(hnd) from hand"_s), 1);
    }

    void the_figure_is_rounded_once_and_a_single_differential_has_no_factor_data()
    {
        QTest::addColumn<QStringList>("ratings");
        QTest::addColumn<QString>("expected");
        const QStringList rest(3, u"20"_s);
        // Every round has a gross of 80, so the rating determines the differential.
        QTest::newRow("10.44 alone is 10.4") << (QStringList{"69.56", "60"} + rest) << " 10.4";
        QTest::newRow("12.25 alone is rounded to the even tenth")
            << (QStringList{"67.75", "60"} + rest) << " 12.2";
        QTest::newRow("10 and 12 make 10.56") << (QStringList{"70", "68", "60"} + rest) << " 10.6";
        QTest::newRow("below the rating") << (QStringList{"85", "84", "60"} + rest) << "-4.3";
        QTest::newRow("less than one") << (QStringList{"79.5", "60"} + rest) << " .5";
        QTest::newRow("a true handicap of 0") << (QStringList{"80", "60"} + rest) << "N/A";
        QTest::newRow("two that cancel out") << (QStringList{"83", "77", "60"} + rest) << "N/A";
    }
    void the_figure_is_rounded_once_and_a_single_differential_has_no_factor()
    {
        QFETCH(QStringList, ratings);
        const stored_diary store;
        for (qsizetype i = 0; i < ratings.size(); ++i) {
            const diary_course course = flat_course(u"COURSE%1-0"_s.arg(i), 4, ratings.at(i), u"113"_s);
            store.book.add(course);
            store.book.add(round_of(static_cast<int>(i) + 1, course, 80));
        }
        QTEST(handicap_of(whole_year()), "expected");
    }

    void a_differential_near_a_tie_is_rounded_by_its_double_data()
    {
        QTest::addColumn<QString>("rating");
        QTest::addColumn<QString>("expected");
        // With a slope of 100 and a gross of 80 the differential is (80 - rating) * 1.13.
        QTest::newRow("5.65") << "75"
                              << " 5.7";
        QTest::newRow("-5.65") << "85"
                               << "-5.7";
        QTest::newRow("16.95") << "65"
                               << " 16.9";
        QTest::newRow("-16.95") << "95"
                                << "-16.9";
    }
    void a_differential_near_a_tie_is_rounded_by_its_double()
    {
        QFETCH(QString, rating);
        const stored_diary store;
        const diary_course course = flat_course(reference_code, 4, rating, u"100"_s);
        const diary_course other = flat_course(u"EASY-0"_s, 4, u"20"_s, u"113"_s);
        store.book.add(course);
        store.book.add(other);
        store.book.add(round_of(1, course, 80));
        for (int day = 2; day <= 5; ++day)
            store.book.add(round_of(day, other, 80));
        QTEST(handicap_of(whole_year()), "expected");
    }

    void rounds_on_published_courses_have_the_differentials_computed_by_hand()
    {
        const stored_diary store;
        const diary_course pebble = course_of(u"Pebble Beach"_s, u"Blue"_s);
        const diary_course links = course_of(u"North Berwick West Links"_s, u"Red"_s);
        store.book.add(pebble);
        store.book.add(links);
        for (int day = 1; day <= 5; ++day)
            store.book.add(round_of(day, pebble, 90 + day));
        store.book.add(round_of(6, links, 80));
        // Pebble Beach, blue: (91 - 74.9) * 113 / 144 = 12.634...; North Berwick, red:
        // (80 - 69.1) * 113 / 121 = 10.179...; their mean 11.4067 * 0.96 = 10.950 -> 11 (10.95042)
        QCOMPARE(handicap_of(whole_year()), u" 11"_s);
        const auto rows = store.store.rows(u"select hnd from hand order by hnd"_s);
        QCOMPARE(rows.size(), std::size_t(6));
        QCOMPARE(rows.at(0).at(0).toDouble(), (80 - 69.1) * 113 / 121);
        QCOMPARE(rows.at(1).at(0).toDouble(), (91 - 74.9) * 113 / 144);
    }

    void with_a_slope_of_0_or_none_there_is_no_handicap_data()
    {
        QTest::addColumn<QString>("slope");
        QTest::newRow("0") << "0";
        QTest::newRow("empty") << "";
    }
    void with_a_slope_of_0_or_none_there_is_no_handicap()
    {
        QFETCH(QString, slope);
        const stored_diary store;
        const diary_course course = flat_course(reference_code, 4, u"70"_s, slope);
        store.book.add(course);
        for (int day = 1; day <= 6; ++day)
            store.book.add(round_of(day, course, 90));
        QCOMPARE(handicap_of(whole_year()), u"N/A"_s);
    }

    void a_round_counts_if_date_course_weather_and_partner_match_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("course");
        QTest::addColumn<QString>("weather");
        QTest::addColumn<QString>("partner");
        QTest::addColumn<QList<int>>("days");
        QTest::newRow("all") << 1 << 8 << ""
                             << ""
                             << "" << QList<int>{1, 2, 3, 4, 5, 6, 7, 8};
        QTest::newRow("both ends included") << 2 << 4 << ""
                                            << ""
                                            << "" << QList<int>{2, 3, 4};
        QTest::newRow("one round") << 3 << 3 << ""
                                   << ""
                                   << "" << QList<int>{3};
        QTest::newRow("a course") << 1 << 8 << "OTHER-1"
                                  << ""
                                  << "" << QList<int>{5, 6, 7, 8};
        QTest::newRow("a code of one character filters nothing") << 1 << 8 << "O"
                                                                 << ""
                                                                 << "" << QList<int>{1, 2, 3, 4, 5, 6, 7, 8};
        QTest::newRow("sunny") << 1 << 8 << ""
                               << "0"
                               << "" << QList<int>{4, 8};
        QTest::newRow("rainy") << 1 << 8 << ""
                               << "2"
                               << "" << QList<int>{2, 6};
        QTest::newRow("partner 12 is found in 112 too") << 1 << 8 << ""
                                                        << ""
                                                        << "12" << QList<int>{1, 2, 6};
        QTest::newRow("partner 112") << 1 << 8 << ""
                                     << ""
                                     << "112" << QList<int>{2};
        QTest::newRow("all of them") << 1 << 8 << "OTHER-1"
                                     << "2"
                                     << "12" << QList<int>{6};
    }
    void a_round_counts_if_date_course_weather_and_partner_match()
    {
        QFETCH(QList<int>, days);
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QString, course);
        QFETCH(QString, weather);
        QFETCH(QString, partner);
        const stored_diary store;
        const diary_course reference = reference_course();
        const diary_course other = flat_course(u"OTHER-1"_s, 4, u"72"_s, u"113"_s);
        store.book.add(reference);
        store.book.add(other);
        const QHash<int, QString> partners{{1, u"12-7-"_s}, {2, u"112-"_s}, {6, u"5-12-"_s}};
        for (int day = 1; day <= 8; ++day) {
            diary_round round = round_of(day, day < 5 ? reference : other, 72 + day);
            round.weather = day % 4;
            round.partners = partners.value(day);
            store.book.add(round);
        }
        selection_arguments chosen;
        chosen.from_key = key_of_day(from);
        chosen.to_key = key_of_day(to);
        chosen.course_code = course;
        chosen.weather_value = weather;
        chosen.partner_number = partner;
        QCOMPARE(Statistics::compute_handicap(chosen).missing, missing_row::none);
        QList<int> seen;
        for (const auto& row : store.store.rows(u"select hnd from hand order by hnd"_s))
            seen << row.at(0).toInt();
        QCOMPARE(seen, days);
    }

    void a_run_closes_every_recordset_and_leaves_the_statements_on_whole_tables()
    {
        const stored_diary store;
        store.book.add(reference_course());
        store.book.add(round_of(1, reference_course(), 90));
        handicap_of(whole_year());
        for (Recordset& recordset : data_environment().recordsets())
            QVERIFY2(!recordset.is_open(), qPrintable(recordset.name()));
        QCOMPARE(data_environment().rsgames.Source(), u"Select * from games"_s);
        QCOMPARE(data_environment().rshand.Source(), u"select * from hand"_s);
    }

    void a_round_without_one_of_its_rows_ends_the_run_data()
    {
        QTest::addColumn<QString>("loss");
        QTest::addColumn<int>("number");
        QTest::newRow("its course") << "delete from vrd_fields" << 1;
        QTest::newRow("another course") << "update vrd_fields set code = 'OTHER-0'" << 1;
        QTest::newRow("the holes") << "delete from field_info" << 2;
        QTest::newRow("games2") << "delete from games2" << 3;
    }
    void a_round_without_one_of_its_rows_ends_the_run()
    {
        QFETCH(QString, loss);
        QFETCH(int, number);
        const stored_diary store;
        store.book.add(reference_course());
        store.book.add(round_of(1, reference_course(), 90));
        store.store.write(loss);
        const Statistics::handicap_result result = Statistics::compute_handicap(whole_year());
        QCOMPARE(static_cast<int>(result.missing), number);
        QVERIFY(result.text.isEmpty());
        for (Recordset& recordset : data_environment().recordsets())
            QVERIFY2(!recordset.is_open(), qPrintable(recordset.name()));
        QCOMPARE(data_environment().rsgames.Source(), u"Select * from games"_s);
    }

    void the_367th_round_fails()
    {
        const stored_diary store;
        store.book.add(reference_course());
        std::vector<diary_round> rounds;
        for (int day = 1; day <= 366; ++day)
            rounds.push_back(round_of(day, reference_course(), 73));
        store.book.add(rounds);
        QCOMPARE(handicap_of(whole_year()), u" 1"_s);  // 1 * 0.96 = 0.96
        store.book.add(round_of(367, reference_course(), 73));
        QCOMPARE(failure_of([] { handicap_of(whole_year()); }), failure_kind::subscript);
    }

    void a_round_with_missing_holes_counts_with_its_gross()
    {
        const stored_diary store;
        store.book.add(reference_course());
        diary_round round = round_of(1, reference_course(), 40);
        for (std::size_t i = 1; i < 18; ++i)
            round.holes.at(i).stored = false;
        store.book.add(round);
        handicap_of(whole_year());
        QCOMPARE(store.store.number(u"select hnd from hand"_s), 40 - 72);
    }
};

QTEST_GUILESS_MAIN(test_handicap_of_rounds)
#include "test_handicap_of_rounds.moc"
