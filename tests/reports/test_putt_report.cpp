#include <QTest>

#include "reports/query/report_snapshot.h"
#include "tests/reports/invented_rows.h"
#include "tests/reports/report_tools.h"
#include "tests/support/reader.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_putt_report : public QObject {
    Q_OBJECT

    store_folder store_;

private Q_SLOTS:
    void init()
    {
        set_report_store(store_.location());
        fill_putts(store_.location());
    }

    void the_heading_and_the_bands_are_in_the_language_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("texts");
        const QStringList shared{u"A & B <c>"_s,           u"Zoé, Sept"_s,           u"Ciel variable"_s,
                                 u"2023-05-06 08:30:00"_s, u"2024-10-13 13:40:00"_s, u"First axis"_s,
                                 u"Axis after"_s,          u"Second axis after"_s};
        QTest::newRow("French") << u"statPuts.rpt"_s
                                << shared +
                                       QStringList{
                                           u"Statistiques des coups roulés"_s,
                                           u"Nombre de rondes"_s,
                                           u"(pieds)"_s,
                                           u"50 et plus 40 à 49 30 à 39 20 à 29 10 à 19 5 à 9 moins de 5"_s,
                                           u"25 et plus 20 à 24 15 à 19 10 à 14 5 à 9 2 à 4 0 ou 1"_s,
                                           u"2,25 MOYEN"_s,
                                           u"Page 1 de 1"_s};
        QTest::newRow("English")
            << u"statPuts_en.rpt"_s
            << shared + QStringList{u"Putt Statistics"_s,
                                    u"Number of rounds"_s,
                                    u"(feet)"_s,
                                    u"50 or more 40 to 49 30 to 39 20 to 29 10 to 19 5 to 9 below 5"_s,
                                    u"25 or more 20 to 24 15 to 19 10 to 14 5 to 9 2 to 4 0 or 1"_s,
                                    u"2.25 MOYEN"_s,
                                    u"Page 1 of 1"_s};
    }
    void the_heading_and_the_bands_are_in_the_language()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, texts);
        const QStringList pages = printed_pages(name);
        QCOMPARE(pages.size(), 1);
        for (const QString& text : texts)
            QVERIFY2(without_blanks(pages.front()).contains(without_blanks(text)),
                     qPrintable(text + u" in "_s + pages.front()));
    }

    void both_tables_are_printed_with_sums_and_means()
    {
        const QString page = printed_pages(u"statPuts_en.rpt"_s).front();
        for (const QString& line :
             {u"1 putt 1 2 3 4 5 6 7 28"_s, u"5 putts 5 10 15 20 25 30 35 140"_s,
              u"Holes 15 30 45 60 75 90 105 420"_s,
              u"Mean per hole 1.11 2.22 3.33 4.44 5.55 6.66 7.77 2.50"_s,
              u"50 or more 1 · 4 % 2 · 7 % 3 · 11 % 4 · 14 % 5 · 18 % 6 · 21 % 7 · 25 % 28"_s,
              u"below 5 7 · 4 % 14 · 7 %"_s, u"Putts 28 56 84 112 140 168 196 784"_s})
            QVERIFY2(without_blanks(page).contains(without_blanks(line)),
                     qPrintable(line + u" in "_s + page));
        QVERIFY(printed_pages(u"statPuts.rpt"_s).front().contains(u"Moyenne par trou 1,11 2,22 3,33"_s));
    }

    void one_round_has_its_own_heading_and_its_rating_from_the_first_line()
    {
        make_one_round_putts(store_.location());
        const QString page = printed_pages(u"statPuts_en.rpt"_s).front();
        QVERIFY(page.contains(u"Round : 2024-05-01 Pebble Beach"_s));
        QVERIFY(page.contains(u"Weather conditions : Sunny"_s));
        QVERIFY(page.contains(u"2.25 Average"_s));
        // The other columns still have the results of an earlier run.
        QVERIFY(!page.contains(u"Zoé, Sept"_s));
        QVERIFY(!page.contains(u"Number of rounds"_s));
    }

    void the_tee_follows_the_name_of_its_course_without_padding_data()
    {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("printed");
        QTest::newRow("a selection") << u"course_text"_s << u"Pebble Beach        , Gold"_s
                                     << u"Pebble Beach, Gold"_s;
        QTest::newRow("a name without blanks after it")
            << u"course_text"_s << u"North Berwick, West Links, Gold"_s
            << u"North Berwick, West Links, Gold"_s;
        QTest::newRow("a single round")
            << u"from_date"_s << u"Round : 2024-05-01 Pebble Beach        , Gold"_s
            << u"Round : 2024-05-01 Pebble Beach, Gold"_s;
    }
    void the_tee_follows_the_name_of_its_course_without_padding()
    {
        QFETCH(QString, column);
        QFETCH(QString, text);
        QFETCH(QString, printed);
        reader(store_.location())
            .write(u"update s_put1 set "_s + column + u" = '" + text + u"' where rowid = 1");
        for (const QString& name : {u"statPuts.rpt"_s, u"statPuts_en.rpt"_s})
            QVERIFY(printed_pages(name).front().contains(printed));
    }

    void without_putts_the_captions_and_dots_are_printed()
    {
        fill_putts(store_.location(), figures::none);
        const QString page = printed_pages(u"statPuts_en.rpt"_s).front();
        QVERIFY(page.contains(u"1 putt · · · · · · · ·"_s));
        QVERIFY(page.contains(u"Mean per hole · · · · · · · ·"_s));
        QVERIFY(page.contains(u"N/A"_s));
    }

    void a_score_without_a_rating_is_printed_alone()
    {
        reader(store_.location())
            .write(
                QStringList{u"update s_put2 set weighted_mean = ' 3.7', rating_text = '' where rowid = 7"_s});
        QVERIFY(printed_pages(u"statPuts_en.rpt"_s).front().contains(u"3.70"_s));
    }

    void a_score_near_a_limit_is_not_printed_as_the_limit_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("english");
        const auto add = [](const QString& text, const QString& english) {
            QTest::newRow(qPrintable(text)) << text << english;
        };
        add(u" 1"_s, u"1.00"_s);
        add(u" 10"_s, u"10.00"_s);
        add(u" 9.99999999999999"_s, u"9.99"_s);
        add(u" 1.4975"_s, u"1.49"_s);
        add(u" 1.5"_s, u"1.50"_s);
        add(u" 1.50251256281407"_s, u"1.502"_s);
        add(u" 1.99999"_s, u"1.99"_s);
        add(u" 2"_s, u"2.00"_s);
        add(u" 2.005"_s, u"2.005"_s);
        add(u" 2.4987"_s, u"2.49"_s);
        add(u" 2.5"_s, u"2.50"_s);
        add(u" 2.51"_s, u"2.51"_s);
        add(u" 2.99"_s, u"2.99"_s);
        add(u" 3"_s, u"3.00"_s);
        add(u" 3.00003"_s, u"3.00003"_s);
        add(u" 3.698"_s, u"3.69"_s);
        add(u" 3.7"_s, u"3.70"_s);
        add(u" 3.7003"_s, u"3.7003"_s);
        add(u" 3.71"_s, u"3.71"_s);
    }
    void a_score_near_a_limit_is_not_printed_as_the_limit()
    {
        QFETCH(QString, text);
        QFETCH(QString, english);
        reader(store_.location())
            .write(
                u"update s_put2 set weighted_mean = '%1', rating_text = 'WORDS' where rowid = 7"_s.arg(text));
        QVERIFY(printed_pages(u"statPuts_en.rpt"_s).front().contains(u' ' + english + u" WORDS"));
        const QString french = QString(english).replace(u'.', u',');
        QVERIFY(printed_pages(u"statPuts.rpt"_s).front().contains(u' ' + french + u" WORDS"));
    }

    void the_scale_of_the_score_reaches_to_its_worst_grade()
    {
        for (const QString& name : {u"statPuts.rpt"_s, u"statPuts_en.rpt"_s}) {
            const QString page = without_blanks(printed_pages(name).front()).replace(u',', u'.');
            QVERIFY2(page.contains(u"1.01.52.02.53.03.710"_s), qPrintable(page));
        }
    }

    void extreme_figures_stay_on_one_page()
    {
        fill_putts(store_.location(), figures::extreme);
        const QStringList pages = printed_pages(u"statPuts_en.rpt"_s);
        QCOMPARE(pages.size(), 1);
        QVERIFY(pages.front().contains(u"163835 1146845"_s));
    }

    void the_figures_file_has_both_tables_with_their_limits_and_the_score()
    {
        const QStringList lines = csv_lines(u"statPuts_en.rpt"_s);
        QCOMPARE(lines.size(), 1 + 1 + 5 + 1 + 1 + 7 + 2);
        QCOMPARE(lines[0], u"Table,Line,1,2,3,4,5,6,7,All"_s);
        QCOMPARE(lines[1], u"Putts by the length of the first (feet),,50 or more,40 to 49,30 to 39,20 to 29,"
                           "10 to 19,5 to 9,below 5,"_s);
        QCOMPARE(lines[2], u"Putts by the length of the first (feet),1,1,2,3,4,5,6,7,28"_s);
        QCOMPARE(lines[7], u"Mean,,1.11,2.22,3.33,4.44,5.55,6.66,7.77,2.5"_s);
        QCOMPARE(lines[8], u"\"Where the putts stop, by where they start (feet)\",,25 or more,20 to 24,"
                           "15 to 19,10 to 14,5 to 9,2 to 4,0 or 1,"_s);
        QCOMPARE(lines[15],
                 u"Where the putts stop that start from (feet) below 5,7,7,14,21,28,35,42,49,196"_s);
        QCOMPARE(lines[16], u"Score,,,,,,,,,2.25"_s);
        QCOMPARE(lines[17], u"Rating,,,,,,,,,MOYEN"_s);
    }

    void the_figures_file_has_french_words_and_decimal_commas()
    {
        const QStringList lines = csv_lines(u"statPuts.rpt"_s);
        QCOMPARE(lines.size(), 18);
        QVERIFY(lines[1].endsWith(u";50 et plus;40 à 49;30 à 39;20 à 29;10 à 19;5 à 9;moins de 5;"_s));
        QCOMPARE(lines[7], u"Moyenne;;1,11;2,22;3,33;4,44;5,55;6,66;7,77;2,5"_s);
        QVERIFY(lines[8].endsWith(u";25 et plus;20 à 24;15 à 19;10 à 14;5 à 9;2 à 4;0 ou 1;"_s));
        QCOMPARE(lines[16], u"Note;;;;;;;;;2,25"_s);
        QCOMPARE(lines[17], u"Appréciation;;;;;;;;;MOYEN"_s);
    }

    void the_figures_file_has_the_rating_of_one_round_and_of_none()
    {
        make_one_round_putts(store_.location());
        QCOMPARE(csv_lines(u"statPuts_en.rpt"_s).last(), u"Rating,,,,,,,,,Average"_s);
        fill_putts(store_.location(), figures::none);
        QCOMPARE(csv_lines(u"statPuts_en.rpt"_s).mid(16),
                 QStringList({u"Score,,,,,,,,,"_s, u"Rating,,,,,,,,,N/A"_s}));
    }
};

QTEST_MAIN(test_putt_report)
#include "test_putt_report.moc"
