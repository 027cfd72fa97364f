#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <map>

#include "base/numbers.h"
#include "base/text.h"
#include "round/places_left.h"
#include "scoring/handicap.h"
#include "scoring/limits.h"
#include "scoring/putt_bands.h"
#include "scoring/round_totals.h"
#include "scoring/season_rounds.h"
#include "scoring/words.h"
#include "store/recovery/copy_days.h"
#include "tests/guide/guide_pages.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The whole numbers of a text: "40 to 49" gives 40 and 49.
std::vector<int> numbers_in(const QString& text)
{
    static const QRegularExpression digits(u"\\d+"_s);
    std::vector<int> numbers;
    for (const QRegularExpressionMatch& match : digits.globalMatch(text))
        numbers.push_back(match.captured().toInt());
    return numbers;
}

double decimal_in(QString text)
{
    static const QRegularExpression decimal(u"\\d+(\\.\\d+)?"_s);
    return decimal.match(text.replace(u',', u'.')).captured().toDouble();
}

/// The limits of a band are quoted as "40 to 49", those of the outer bands as "50 or more" and "below 5" or
/// "0 or 1". The last band has the shortest lengths.
void verify_band(const QString& quoted, int band, int (*band_of)(int16))
{
    const std::vector<int> limits = numbers_in(quoted);
    const bool is_below_limit = band == putt_band_count && limits.size() == 1;
    const int shortest = is_below_limit ? 0 : limits.front();
    const int longest = is_below_limit ? limits.front() - 1 : limits.back();
    QCOMPARE(band_of(int16(shortest)), band);
    QCOMPARE(band_of(int16(longest)), band);
    if (band < putt_band_count)
        QCOMPARE(band_of(int16(shortest - 1)), band + 1);
    if (band > 1)
        QCOMPARE(band_of(int16(longest + 1)), band - 1);
}

QString with_point(QString text)
{
    return text.replace(u',', u'.');
}

/// The limits that the guide quotes, by the class of the number.
const std::map<QString, int>& limits()
{
    static const std::map<QString, int> all{
        {u"hole_count"_s, hole_count},
        {u"club_count"_s, club_count},
        {u"putt_lengths_kept"_s, putt_lengths_kept},
        {u"most_putts_counted"_s, most_putts_counted},
        {u"most_rounds"_s, most_rounds},
        {u"most_courses"_s, most_courses},
        {u"few_places"_s, few_places},
        {u"feet_in_a_yard"_s, feet_in_a_yard},
        {u"days_with_every_copy"_s, days_with_every_copy},
        {u"newest_copies_kept"_s, newest_copies_kept},
    };
    return all;
}

}  // namespace

/// The numbers that the guide quotes are those of the program.
class test_guide_figures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void quoted_limits_are_those_of_the_program_data() { both_languages(); }
    void quoted_limits_are_those_of_the_program()
    {
        QFETCH(bool, french);
        std::map<QString, int> quoted;
        for (const QString& name : page_names(french)) {
            for (const page_element& number : read_page(french, name).with_tag(u"span"_s)) {
                const auto limit = limits().find(number.attribute(u"class"_s));
                QVERIFY2(limit != limits().end(), qPrintable(name + u": "_s + number.text));
                QCOMPARE(number.text.toInt(), limit->second);
                ++quoted[limit->first];
            }
        }
        QCOMPARE(quoted.size(), limits().size());
    }

    void the_quoted_handicap_ladder_is_that_of_the_program_data() { both_languages(); }
    void the_quoted_handicap_ladder_is_that_of_the_program()
    {
        QFETCH(bool, french);
        const auto rows = read_page(french, u"handicap.html"_s).table(u"ladder"_s);
        int rounds = 1;
        for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
            const std::vector<int> range = numbers_in(row->at(0));
            QVERIFY(!range.empty());
            const bool is_last = row + 1 == rows.end();
            for (; rounds <= (is_last ? most_rounds : range.back()); ++rounds)
                QCOMPARE(row->at(1).toInt(), plain(handicap_take(int16(rounds))));
        }
        QCOMPARE(rounds, most_rounds + 1);
    }

    void the_example_of_the_handicap_is_computed_as_by_the_program_data() { both_languages(); }
    void the_example_of_the_handicap_is_computed_as_by_the_program()
    {
        QFETCH(bool, french);
        const guide_page page = read_page(french, u"handicap.html"_s);
        const auto rows = page.table(u"example"_s);
        std::vector<double> differentials;
        for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
            differentials.push_back(
                differential(int16(row->at(0).toInt()), decimal_in(row->at(1)), decimal_in(row->at(2))));
            QCOMPARE(with_point(row->at(3)), differential_text(differentials.back()));
        }
        QCOMPARE(differentials.size(), std::size_t(6));
        std::sort(differentials.begin(), differentials.end());
        const QString result = handicap_text(handicap_take(int16(6)), differentials[0] + differentials[1]);
        QCOMPARE(with_point(page.with_class(u"result"_s).front().text), result.trimmed());
    }

    void the_quoted_windows_of_the_moving_mean_are_those_of_the_program_data() { both_languages(); }
    void the_quoted_windows_of_the_moving_mean_are_those_of_the_program()
    {
        QFETCH(bool, french);
        const auto rows = read_page(french, u"round_report.html"_s).table(u"windows"_s);
        int rounds = window_of_moving_mean(0);
        for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
            const std::vector<int> range = numbers_in(row->at(0));
            QCOMPARE(range.front(), rounds);
            const bool is_last = row + 1 == rows.end();
            for (; rounds <= (is_last ? most_rounds : range.back()); ++rounds)
                QCOMPARE(row->at(1).toInt(), window_of_moving_mean(rounds));
        }
        QCOMPARE(rounds, most_rounds + 1);
    }

    void the_quoted_grades_of_putts_are_those_of_the_program_data() { both_languages(); }
    void the_quoted_grades_of_putts_are_those_of_the_program()
    {
        QFETCH(bool, french);
        const auto rows = read_page(french, u"putt_report.html"_s).table(u"grades"_s);
        QCOMPARE(rows.size(), std::size_t(putt_band_count + 1));
        for (int stop = 1; stop <= putt_band_count; ++stop) {
            for (int start = 1; start <= putt_band_count; ++start)
                QCOMPARE(rows[static_cast<std::size_t>(stop)].at(start).toInt(), putt_grade(start, stop));
        }
    }

    void the_quoted_bands_of_putts_are_those_of_the_program_data() { both_languages(); }
    void the_quoted_bands_of_putts_are_those_of_the_program()
    {
        QFETCH(bool, french);
        const auto rows = read_page(french, u"putt_report.html"_s).table(u"grades"_s);
        for (int band = 1; band <= putt_band_count; ++band) {
            verify_band(rows.front().at(band), band, first_putt_band);
            verify_band(rows[static_cast<std::size_t>(band)].front(), band, after_putt_band);
        }
    }

    void the_quoted_ratings_are_those_of_the_program_data() { both_languages(); }
    void the_quoted_ratings_are_those_of_the_program()
    {
        QFETCH(bool, french);
        const auto rows = read_page(french, u"putt_report.html"_s).table(u"ratings"_s);
        QCOMPARE(rows.size(), std::size_t(7));
        double low = 1;
        for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
            const double limit = decimal_in(row->at(0));
            const double step = 0.001;
            if (row + 1 == rows.end()) {
                QCOMPARE(putt_rating(limit + step, int16(1)).in(french), row->at(1));
                QCOMPARE(putt_rating(limit, int16(1)).in(french), QString());
                continue;
            }
            QCOMPARE(putt_rating(low, int16(1)).in(french), row->at(1));
            QCOMPARE(putt_rating(limit - step, int16(1)).in(french), row->at(1));
            low = limit;
        }
    }
};

QTEST_GUILESS_MAIN(test_guide_figures)
#include "test_guide_figures.moc"
