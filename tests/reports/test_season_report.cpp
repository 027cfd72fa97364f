#include <QTemporaryDir>
#include <QTest>

#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "tests/reports/invented_rows.h"
#include "tests/reports/invented_season.h"
#include "tests/reports/report_tools.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString french = u"Stat_rounds.rpt"_s;
const QString english = u"Stat_rounds_en.rpt"_s;

/// A round on a course with the slope 113, in which hole 1 has what is left of the gross.
season_round round_of(const QString& day, int gross, double rating)
{
    season_round round{day + u"080000"_s, u"ALPHA-0"_s, u"Alpha, White"_s, rating, 113, {}};
    for (int h = 1; h <= hole_count; ++h) {
        round.holes[h].par = 4;
        round.holes[h].long_shots = 1;
        round.holes[h].approach = 1;
        round.holes[h].putts = 2;
    }
    round.holes[1].approach = gross - 72 + 1;
    return round;
}

/// The words of a page from left to right and from top to bottom, with single blanks.
QStringList pages_of(const QString& name, const passed_rows& passed)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"season.pdf"_s);
    render_report(built_template(name), {}, passed)->save_pdf(path);
    QStringList pages = pdf_pages(path);
    for (QString& page : pages)
        page = page.simplified();
    return pages;
}

/// Words whose boxes overlap by more than a third of a letter, on one page. Lines of letters are close
/// together.
QStringList overlapping_words(const QString& name, const passed_rows& passed)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"season.pdf"_s);
    render_report(built_template(name), {}, passed)->save_pdf(path);
    const std::vector<printed_word> words = pdf_words(path);
    QStringList found;
    for (std::size_t i = 0; i < words.size(); ++i)
        for (std::size_t k = i + 1; k < words.size(); ++k) {
            // The words are in the order of the pages.
            if (words[i].page_number != words[k].page_number || words[i].page_number == 0)
                break;
            const QRectF both = words[i].place.intersected(words[k].place);
            if (both.width() > 0.5 && both.height() > 1.2)
                found << words[i].text + u'/' + words[k].text;
        }
    return found;
}

}  // namespace

/// The pages of the round report about the handicap and the season.
class test_season_report : public QObject {
    Q_OBJECT

    store_folder store_;

private Q_SLOTS:
    void initTestCase()
    {
        set_report_store(store_.location());
        fill_stats(store_.location(), 40, u"Links"_s);
    }

    void a_report_without_passed_rounds_has_page_1_only()
    {
        for (const QString& name : {french, english})
            QCOMPARE(render_report(built_template(name))->page_count(), 1);
    }

    void page_1_is_the_same_with_and_without_the_other_pages_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("French") << french;
        QTest::newRow("English") << english;
    }
    void page_1_is_the_same_with_and_without_the_other_pages()
    {
        QFETCH(QString, name);
        const QImage alone = render_report(built_template(name))->page_image(0, 100);
        const QImage first =
            render_report(built_template(name), {}, invented_season_tables({5, 1}))->page_image(0, 100);
        // The number of pages is in the last 20 mm.
        const QRect above_footer = alone.rect().adjusted(0, 0, 0, -80);
        QVERIFY(first.copy(above_footer) == alone.copy(above_footer));
    }

    void the_rounds_take_as_many_pages_as_they_need_data()
    {
        QTest::addColumn<int>("rounds");
        QTest::addColumn<int>("courses");
        QTest::addColumn<int>("pages");
        QTest::newRow("1 round") << 1 << 1 << 3;
        QTest::newRow("4 rounds") << 4 << 1 << 3;
        QTest::newRow("40 rounds, 10 courses") << 40 << 10 << 3;
        QTest::newRow("41 rounds") << 41 << 3 << 4;
        QTest::newRow("84 rounds") << 84 << 3 << 4;
        QTest::newRow("85 rounds") << 85 << 3 << 5;
        QTest::newRow("51 courses") << 366 << 51 << 9;
    }
    void the_rounds_take_as_many_pages_as_they_need()
    {
        QFETCH(int, rounds);
        QFETCH(int, courses);
        QFETCH(int, pages);
        const auto document =
            render_report(built_template(french), {}, invented_season_tables({rounds, courses}));
        QCOMPARE(document->page_count(), pages);
    }

    void a_list_on_several_pages_is_distributed_equally()
    {
        const QStringList pages = pages_of(english, invented_season_tables({101, 1, false}));
        QCOMPARE(pages.size(), 5);
        QVERIFY(!pages[1].contains(u" 2022-04-02 LE BLAINVILLIER"));
        QCOMPARE(pages[2].count(u", Blanc 18 "), 51);
        QCOMPARE(pages[3].count(u", Blanc 18 "), 50);
    }

    void no_word_covers_another_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("rounds");
        QTest::addColumn<int>("courses");
        for (const QString& name : {french, english}) {
            QTest::addRow("%s, 1 round", qPrintable(name)) << name << 1 << 1;
            QTest::addRow("%s, 4 rounds", qPrintable(name)) << name << 4 << 1;
            QTest::addRow("%s, 5 rounds", qPrintable(name)) << name << 5 << 1;
            QTest::addRow("%s, 40 rounds", qPrintable(name)) << name << 40 << 10;
            QTest::addRow("%s, 61 rounds", qPrintable(name)) << name << 61 << 51;
            QTest::addRow("%s, 366 rounds", qPrintable(name)) << name << 366 << 10;
        }
    }
    void no_word_covers_another()
    {
        QFETCH(QString, name);
        QFETCH(int, rounds);
        QFETCH(int, courses);
        QCOMPARE(overlapping_words(name, invented_season_tables({rounds, courses})), QStringList());
    }

    void the_steps_of_the_handicap_are_printed()
    {
        season_rounds rounds;
        int day = 20240501;
        for (const int gross : {92, 88, 95, 90, 86, 84})
            rounds.push_back(round_of(QString::number(day++), gross, 70.5));
        const QStringList pages = pages_of(english, tables_of(rounds));
        QCOMPARE(pages.size(), 3);
        for (const QString& words :
             {u"The handicap, step by step"_s, u"the lowest of 6"_s, u"14.5000"_s, u"29.0000 ÷ 2"_s,
              u"13.9200"_s, u"14.5000 × 0.96"_s, u"13.9"_s, u"0–4 5 6–7 8–9"_s,
              u"mean of those that count: 14.50"_s, u"1 2024-05-01 Alpha, White 18 92 70.5 113 21.50"_s,
              u"6 2024-05-06 Alpha, White 18 84 70.5 113 13.50 1"_s})
            QVERIFY2(pages[1].contains(words), qPrintable(words + u" in " + pages[1]));
        const QString in_french = pages_of(french, tables_of(rounds)).at(1);
        for (const QString& words :
             {u"Le handicap, étape par étape"_s, u"14,5000 × 0,96"_s, u"13,9"_s, u"70,5 113 13,50 1"_s})
            QVERIFY2(in_french.contains(words), qPrintable(words));
    }

    void ratings_are_printed_as_stored()
    {
        const season_rounds rounds{round_of(u"20240501"_s, 80, 71.25), round_of(u"20240502"_s, 81, 72)};
        const QString page = pages_of(french, tables_of(rounds)).at(1);
        QVERIFY2(page.contains(u"18 80 71,25 113 8,75"), qPrintable(page));
        QVERIFY2(page.contains(u"18 81 72,0 113 9,00"), qPrintable(page));
    }

    void a_single_differential_counts_without_the_factor()
    {
        season_rounds rounds;
        for (int day = 20240501; day <= 20240505; ++day)
            rounds.push_back(round_of(QString::number(day), 80 + day % 10, 70));
        const QString page = pages_of(english, tables_of(rounds)).at(1);
        QVERIFY2(page.contains(u"a single one, without factor"), qPrintable(page));
        QVERIFY(page.contains(u"11.0 "));
    }

    void below_five_rounds_the_number_of_missing_rounds_is_printed()
    {
        season_rounds rounds{round_of(u"20240501"_s, 80, 70)};
        QVERIFY(pages_of(english, tables_of(rounds))
                    .at(1)
                    .contains(u"4 more rounds are needed: a handicap needs at least 5 rounds."));
        for (int day = 20240502; day <= 20240504; ++day)
            rounds.push_back(round_of(QString::number(day), 80, 70));
        const QStringList pages = pages_of(french, tables_of(rounds));
        QVERIFY(pages.at(1).contains(u"Il manque 1 ronde : un handicap demande au moins 5 rondes."));
        QVERIFY(pages.at(1).contains(u"N/A"));
        QVERIFY(pages.at(2).contains(u"à partir de 5 rondes"));
    }

    void a_handicap_of_zero_is_explained()
    {
        season_rounds rounds;
        for (int day = 20240501; day <= 20240505; ++day)
            rounds.push_back(round_of(QString::number(day), 72, 72));
        const QString page = pages_of(english, tables_of(rounds)).at(1);
        QVERIFY(page.contains(u"A handicap of exactly 0 is shown as N/A."));
    }

    void each_mean_is_printed_with_the_number_of_its_rounds()
    {
        season_rounds rounds{round_of(u"20240501"_s, 80, 70), round_of(u"20240502"_s, 75, 70),
                             round_of(u"20240503"_s, 90, 70)};
        rounds[2].holes[18] = {};
        const QStringList pages = pages_of(english, tables_of(rounds));
        QVERIFY(pages.at(1).contains(u"One round has fewer than 18 holes played."));
        for (const QString& words :
             {u"rounds of 18 holes: 2 of 3"_s, u"mean +5.5"_s, u"fewer than 18: holes played"_s,
              u"holes compared: 17; rounds on each: 3 or more"_s, u"Hole 1 · par 4 · Alpha, White +9.67"_s,
              u"3 rounds"_s, u"Alpha, White 3 2 77.5 75 +5.5 36.0 17.0 0.0 5.00"_s})
            QVERIFY2(pages.at(2).contains(words), qPrintable(words + u" in " + pages.at(2)));
    }

    void a_round_without_strokes_is_printed()
    {
        season_round round = round_of(u"20240501"_s, 80, 70);
        for (int h = 1; h <= hole_count; ++h)
            round.holes[h] = {};
        const QStringList pages = pages_of(english, tables_of({round}));
        QCOMPARE(pages.size(), 3);
        QVERIFY(pages.at(1).contains(u"1 2024-05-01 Alpha, White 0 0 70.0 113 −70.00"));
        QVERIFY(pages.at(2).contains(u"Alpha, White 1 0 · · · · · · ·"));
        // Four charts and the list of the holes. The chart of the handicap has a text of its own.
        QCOMPARE(pages.at(2).count(u"no holes played"_s), 5);
        QVERIFY(!pages.at(2).contains(u"holes compared"));
    }
};

QTEST_MAIN(test_season_report)
#include "test_season_report.moc"
