#include <QTest>

#include "reports/query/report_snapshot.h"
#include "tests/reports/invented_rows.h"
#include "tests/reports/report_tools.h"
#include "tests/support/reader.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_club_report : public QObject {
    Q_OBJECT

    store_folder store_;

private Q_SLOTS:
    void init()
    {
        set_report_store(store_.location());
        fill_clubs(store_.location());
    }

    void the_heading_has_the_selection_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("texts");
        const QStringList shared{u"A & B <c>"_s, u"Zoé, Sept"_s, u"Ciel variable"_s, u"12 780"_s};
        QTest::newRow("French")
            << u"r_statSticks.rpt"_s
            << shared + QStringList{
                            u"STATISTIQUES SUR VOS BÂTONS DE 2023-05-06 08:30:00 À 2024-10-13 13:40:00"_s,
                            u"Nombre de rondes"_s, u"verges"_s, u"Gauche Allée Droite"_s, u"Page 1 de 1"_s};
        QTest::newRow("English")
            << u"r_statSticks_en.rpt"_s
            << shared + QStringList{u"Club Statistics from 2023-05-06 08:30:00 to 2024-10-13 13:40:00"_s,
                                    u"Number of rounds"_s, u"yards"_s, u"Left Fairway Right"_s,
                                    u"Page 1 of 1"_s};
    }
    void the_heading_has_the_selection()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, texts);
        const QStringList pages = printed_pages(name);
        QCOMPARE(pages.size(), 1);
        for (const QString& text : texts)
            QVERIFY2(pages.front().contains(text), qPrintable(text + u" in "_s + pages.front()));
    }

    void the_heading_of_the_table_is_on_the_french_page_only()
    {
        reader(store_.location()).write(u"update stat_sticks set heading_text = 'TITRE' where rowid = 1"_s);
        QVERIFY(printed_pages(u"r_statSticks.rpt"_s).front().contains(u"TITRE À 2024-10-13 13:40:00"_s));
        QVERIFY(!printed_pages(u"r_statSticks_en.rpt"_s).front().contains(u"TITRE"_s));
    }

    void a_table_that_no_run_has_filled_is_printed_with_its_title()
    {
        reader(store_.location())
            .write(u"update stat_sticks set heading_text = null, from_date = null, to_date = null"_s);
        QVERIFY(printed_pages(u"r_statSticks.rpt"_s).front().contains(u"Statistiques des bâtons"_s));
        QVERIFY(printed_pages(u"r_statSticks_en.rpt"_s).front().contains(u"Club Statistics"_s));
    }

    void a_date_is_once_in_the_heading()
    {
        for (const QString& name : {u"r_statSticks.rpt"_s, u"r_statSticks_en.rpt"_s})
            for (const QString& date : {u"2023-05-06"_s, u"2024-10-13"_s})
                QCOMPARE(printed_pages(name).front().count(date), 1);
    }

    void the_tee_follows_the_name_of_its_course_without_padding_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("printed");
        QTest::newRow("padded") << u"Pebble Beach        , Gold"_s << u"Pebble Beach, Gold"_s;
        QTest::newRow("not padded") << u"North Berwick, West Links, Gold"_s
                                    << u"North Berwick, West Links, Gold"_s;
    }
    void the_tee_follows_the_name_of_its_course_without_padding()
    {
        QFETCH(QString, text);
        QFETCH(QString, printed);
        reader(store_.location())
            .write(u"update stat_sticks set course_text = '"_s + text + u"' where rowid = 1");
        for (const QString& name : {u"r_statSticks.rpt"_s, u"r_statSticks_en.rpt"_s})
            QVERIFY(printed_pages(name).front().contains(printed));
    }

    void each_club_has_its_line_in_the_order_of_the_bag()
    {
        // Shots, average, longest; left, fairway, right; missed, penalties, holed.
        const QString page = printed_pages(u"r_statSticks_en.rpt"_s).front();
        qsizetype at = 0;
        for (const QString& line :
             {u"Club1 10 270.5 290 16.6 50 33.3 8.33 4 ·"_s, u"Club10 100 180.5 200 16.6 50 33.3 8.33 4 2"_s,
              u"Club12 120 – 180 16.6"_s, u"Club13 · · · · · · · · ·"_s, u"Club14 · · ·"_s}) {
            at = page.indexOf(line, at);
            QVERIFY2(at >= 0, qPrintable(line + u" in "_s + page));
        }
        QVERIFY(printed_pages(u"r_statSticks.rpt"_s)
                    .front()
                    .contains(u"Club1 10 270,5 290 16,6 50 33,3 8,33 4 ·"_s));
    }

    void figures_are_cut_as_the_table_has_them_and_never_rounded()
    {
        reader(store_.location())
            .write(u"update stat_sticks set average = '249.9', pct_fairway = ' 99.9', pct_left = ' 8.97', "
                   "pct_right = ' .049', pct_missed = ' 0%', pct_penalty = ' 100%', pct_holed = '0' "
                   "where rowid = 2"_s);
        QVERIFY(printed_pages(u"r_statSticks_en.rpt"_s)
                    .front()
                    .contains(u"Club2 20 249.9 280 8.97 99.9 .049 · 100 ·"_s));
        QVERIFY(printed_pages(u"r_statSticks.rpt"_s)
                    .front()
                    .contains(u"Club2 20 249,9 280 8,97 99,9 ,049 · 100 ·"_s));
        QCOMPARE(csv_lines(u"r_statSticks_en.rpt"_s).at(2), u"Club2,20,280,249.9,99.9,8.97,0.049,0,100,0"_s);
    }

    void without_a_shot_the_names_and_the_heading_are_printed()
    {
        fill_clubs(store_.location(), figures::none);
        const QString page = printed_pages(u"r_statSticks_en.rpt"_s).front();
        for (int club = 1; club <= 14; ++club)
            QVERIFY(page.contains(u"Club%1 · · · · · · · · ·"_s.arg(club)));
    }

    void extreme_figures_stay_on_one_page()
    {
        fill_clubs(store_.location(), figures::extreme);
        const QStringList pages = printed_pages(u"r_statSticks_en.rpt"_s);
        QCOMPARE(pages.size(), 1);
        QVERIFY(pages.front().contains(u"Club1 32767 32767 32767 · 100 · .003 100 100"_s));
    }

    void the_figures_file_has_numbers()
    {
        const QStringList lines = csv_lines(u"r_statSticks_en.rpt"_s);
        QCOMPARE(lines.size(), 15);
        QCOMPARE(lines[0], u"Club,Shots,Longest (yards),Average (yards),Fairway %,Left %,Right %,Missed %,"
                           u"Penalties %,Holed %"_s);
        QCOMPARE(lines[1], u"Club1,10,290,270.5,50,16.6,33.3,8.33,4,0"_s);
        QCOMPARE(lines[12], u"Club12,120,180,,50,16.6,33.3,8.33,4,2"_s);
        QVERIFY(csv_lines(u"r_statSticks.rpt"_s).at(1).startsWith(u"Club1;10;290;270,5;50;16,6;33,3;"_s));
    }
};

QTEST_MAIN(test_club_report)
#include "test_club_report.moc"
