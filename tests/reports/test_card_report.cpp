#include <QTest>

#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "tests/reports/invented_rows.h"
#include "tests/reports/report_tools.h"
#include "tests/support/reader.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

int pixels_below(const QImage& page, const QRect& place, int shade)
{
    int count = 0;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            count += qGray(page.pixel(x, y)) < shade ? 1 : 0;
    return count;
}

}  // namespace

class test_card_report : public QObject {
    Q_OBJECT

    store_folder store_;

private Q_SLOTS:
    void init()
    {
        set_report_store(store_.location());
        fill_card(store_.location(), u"A & B <c>"_s);
    }

    void the_card_is_one_page_of_holes_and_club_distances_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("texts");
        const QString yards = u" 310 320 330 340 350 360 370 380 390 3150 "_s;
        const QString back = u" 400 410 420 430 440 450 460 470 480 3960 7110"_s;
        QTest::newRow("French") << u"r_card2.rpt"_s
                                << QStringList{u"Trou 1 2 3 4 5 6 7 8 9 Aller Trou 10 11"_s,
                                               u"18 Retour Total"_s,
                                               u"Verges"_s + yards + u"Verges"_s + back,
                                               u"Handicap 1 2 3 4 5 6 7 8 9 Handicap 10"_s,
                                               u"Normale 4 4 3 4 4 4 4 4 5 36 Normale 4 4 3"_s,
                                               u"5 36 72"_s,
                                               u"Distances des bâtons"_s,
                                               u"Terte Moyenne Difficulté Normale Verges"_s,
                                               u"BLANC 75,2 139 72 7110"_s};
        QTest::newRow("English") << u"r_card2_en.rpt"_s
                                 << QStringList{u"Hole 1 2 3 4 5 6 7 8 9 Out Hole 10 11"_s,
                                                u"18 In Total"_s,
                                                u"Yards"_s + yards + u"Yards"_s + back,
                                                u"Par 4 4 3 4 4 4 4 4 5 36 Par 4 4 3"_s,
                                                u"Club distances"_s,
                                                u"Teeing Area Rating Slope Par Yards"_s,
                                                u"BLANC 75.2 139 72 7110"_s};
    }
    void the_card_is_one_page_of_holes_and_club_distances()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, texts);
        const QStringList pages = printed_pages(name);
        QCOMPARE(pages.size(), 1);
        for (const QString& text : texts)
            QVERIFY2(pages.front().contains(text), qPrintable(text + u" in "_s + pages.front()));
        QCOMPARE(pages.front().count(u"A & B <c>"_s), 3);
    }

    void the_card_has_thirteen_clubs_and_no_putter()
    {
        const QString page = printed_pages(u"r_card2_en.rpt"_s).front();
        QVERIFY(page.contains(u"1W 230"_s));
        QVERIFY(page.contains(u"LW 110"_s));
        QVERIFY(!page.contains(u"Pu "_s));
    }

    void without_figures_the_card_prints_dots()
    {
        fill_card(store_.location(), u"Links"_s, figures::none);
        const QString page = printed_pages(u"r_card2_en.rpt"_s).front();
        QVERIFY(page.contains(u"Yards · · · · · · · · · · Yards"_s));
        QVERIFY(page.contains(u"1W ·"_s));
        QVERIFY(!page.contains(u" 0 "_s));
    }

    void the_longest_name_and_the_highest_figures_stay_on_the_page()
    {
        fill_card(store_.location(), u"Links"_s, figures::extreme);
        const QStringList pages = printed_pages(u"r_card2_en.rpt"_s);
        QCOMPARE(pages.size(), 1);
        QVERIFY(pages.front().contains(u"The Very Long And Honourable Company Of Invented"_s));
        QVERIFY(pages.front().contains(u"Golf Courses, Variable White"_s));
        QVERIFY(pages.front().contains(u"294903 589806"_s));
    }

    void the_folds_divide_the_card_into_equal_parts_and_cross_no_text_data()
    {
        QTest::addColumn<figures>("kind");
        QTest::addColumn<QString>("name");
        for (const QString& name : {u"r_card2.rpt"_s, u"r_card2_en.rpt"_s}) {
            QTest::newRow(qPrintable(name)) << figures::usual << name;
            QTest::newRow(qPrintable(u"longest name, "_s + name)) << figures::extreme << name;
        }
    }
    void the_folds_divide_the_card_into_equal_parts_and_cross_no_text()
    {
        QFETCH(figures, kind);
        QFETCH(QString, name);
        fill_card(store_.location(), u"Links"_s, kind);
        const QImage page = render_report(built_template(name))->page_image(0, 254);
        // The sheet that is cut out, in tenths of a millimetre, and a strip along each fold.
        const QRect sheet(172, 92, 2626, 1896);
        const QRect upright(sheet.center().x() - 15, sheet.top() + 10, 30, sheet.height() - 20);
        const QRect across(sheet.left() + 10, sheet.center().y() - 15, sheet.width() - 20, 30);
        for (const QRect& fold : {upright, across}) {
            QCOMPARE(pixels_below(page, fold, 100), 0);
            QVERIFY(pixels_below(page, fold, 200) > 500);
        }
    }

    void a_name_of_the_greatest_length_is_cut_and_stays_in_its_part()
    {
        const QString name = u"THE GOLF AND COUNTRY CLUB OF "_s.repeated(7).left(195);
        reader(store_.location()).write(u"update r_card set card_name = '%1'"_s.arg(name));
        const QImage page = render_report(built_template(u"r_card2.rpt"_s))->page_image(0, 254);
        QCOMPARE(pixels_below(page, QRect(2801, 0, 169, 2100), 250), 0);
        QVERIFY(printed_pages(u"r_card2.rpt"_s).front().contains(u"THE GOLF A…"_s));
    }

    void a_name_too_long_for_one_line_is_printed_whole_on_two()
    {
        const QString name =
            u"THE OLD AND HONOURABLE GOLF AND COUNTRY CLUB OF THE UPPER VALLEY AND THE LAKES ABOVE"_s;
        reader(store_.location()).write(u"update r_card set card_name = '%1'"_s.arg(name));
        for (const QString& report : {u"r_card2.rpt"_s, u"r_card2_en.rpt"_s}) {
            const QString page = printed_pages(report).front();
            QVERIFY(page.contains(u"THE OLD AND HONOURABLE GOLF AND COUNTRY CLUB OF THE"_s));
            QVERIFY(page.contains(u"UPPER VALLEY AND THE LAKES ABOVE"_s));
        }
    }

    void the_widest_names_stay_in_their_part_data()
    {
        QTest::addColumn<int>("letters");
        for (const int letters : {30, 60, 80, 98, 195})
            QTest::addRow("%d letters", letters) << letters;
    }
    void the_widest_names_stay_in_their_part()
    {
        QFETCH(int, letters);
        reader(store_.location())
            .write(u"update r_card set card_name = '%1', card_tee = 'BLANC'"_s.arg(QString(letters, u'W')));
        const QImage page = render_report(built_template(u"r_card2_en.rpt"_s))->page_image(0, 254);
        // No ink between name and tee of either nine, nor between the name on the cover and the fold.
        for (const QRect& free : {QRect(172 + 1040, 100, 130, 55), QRect(172 + 1355 + 1000, 100, 130, 55),
                                  QRect(172 + 2602, 1070, 20, 150)})
            QCOMPARE(pixels_below(page, free, 250), 0);
        QCOMPARE(pixels_below(page, QRect(172 + 1290, 100, 50, 55), 100), 0);
    }

    void clubs_whose_names_begin_alike_are_distinguishable()
    {
        reader(store_.location())
            .write(u"update sticknames set club_4 = 'Hybride Titleist 3', club_5 = 'Hybride Titleist 4'"_s);
        for (const QString& name : {u"r_card2.rpt"_s, u"r_card2_en.rpt"_s}) {
            const QString page = printed_pages(name).front();
            QVERIFY(page.contains(u"Hybride Titleist 3 200"_s));
            QVERIFY(page.contains(u"Hybride Titleist 4 190"_s));
        }
    }

    void a_club_name_that_is_too_wide_ends_with_an_ellipsis()
    {
        reader(store_.location()).write(u"update sticknames set club_4 = '%1'"_s.arg(QString(50, u'W')));
        QVERIFY(printed_pages(u"r_card2_en.rpt"_s).front().contains(u"WWWW… 200"_s));
        const QImage page = render_report(built_template(u"r_card2_en.rpt"_s))->page_image(0, 254);
        // No ink between the names of the clubs and the line where their bars begin.
        QCOMPARE(pixels_below(page, QRect(170 + 30 + 287, 90 + 980 + 82, 14, 780), 250), 0);
    }

    void the_figures_file_lists_holes_then_clubs()
    {
        const QStringList lines = csv_lines(u"r_card2_en.rpt"_s);
        QCOMPARE(lines.size(), 1 + 18 + 13);
        QCOMPARE(lines[0], u"Line,Yards,Handicap,Par"_s);
        QCOMPARE(lines[1], u"Hole 1,310,1,4"_s);
        QCOMPARE(lines[18], u"Hole 18,480,18,5"_s);
        QCOMPARE(lines[19], u"1W,230,,"_s);
        QCOMPARE(csv_lines(u"r_card2.rpt"_s).at(1), u"Trou 1;310;1;4"_s);
    }
};

QTEST_MAIN(test_card_report)
#include "test_card_report.moc"
