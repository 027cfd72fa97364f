#include <QTemporaryDir>
#include <QTest>

#include <utility>

#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "tests/reports/invented_rows.h"
#include "tests/reports/report_tools.h"
#include "tests/support/reader.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_cost_report : public QObject {
    Q_OBJECT

    store_folder store_;
    QTemporaryDir folder_;

private Q_SLOTS:
    void init() { set_report_store(store_.location()); }

    void one_round_is_its_own_total_and_mean_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("texts");
        const QString line = u"2023-06-01 09:30 60 · · · 5 · · · · · · · 65 100"_s;
        const QString total = u"Total 60 · · · 5 · · · · · · · 65 100"_s;
        QTest::newRow("French") << u"r_cost3.rpt"_s
                                << QStringList{u"Statistiques des coûts"_s,
                                               u"Nombre de rondes"_s,
                                               u"Frais de jeu 60 60,00 1 92,3"_s,
                                               u"Balles 5 5,00 1 7,7"_s,
                                               line + u",0"_s,
                                               total,
                                               u"en $, à l’unité près"_s,
                                               u"Moyenne par ronde 60,00 · · · 5,00"_s,
                                               u"Page 1 de 1"_s};
        QTest::newRow("English") << u"r_cost3_en.rpt"_s
                                 << QStringList{u"Cost Statistics"_s,
                                                u"Number of rounds"_s,
                                                u"Green Fees 60 60.00 1 92.3"_s,
                                                u"Balls 5 5.00 1 7.7"_s,
                                                line + u".0"_s,
                                                total,
                                                u"in $, without decimals"_s,
                                                u"Mean per round 60.00 · · · 5.00"_s,
                                                u"Page 1 of 1"_s};
    }
    void one_round_is_its_own_total_and_mean()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, texts);
        fill_costs(store_.location(), 1);
        const QStringList pages = printed_pages(name);
        QCOMPARE(pages.size(), 1);
        for (const QString& text : texts)
            QVERIFY2(pages.front().contains(text), qPrintable(text + u" in "_s + pages.front()));
    }

    void a_year_of_rounds_takes_several_pages_with_a_head_and_whole_rows_each()
    {
        fill_costs(store_.location(), 366);
        const QStringList pages = printed_pages(u"r_cost3_en.rpt"_s);
        QVERIFY(pages.size() > 5);
        int rounds = 0;
        for (qsizetype page = 0; page < pages.size(); ++page) {
            QVERIFY(
                pages[page].contains(u"Cost Statistics · Page %1 of %2"_s.arg(page + 1).arg(pages.size())));
            QVERIFY(pages[page].contains(u"Golf Clubs"_s) && pages[page].contains(u"Share %"_s));
            rounds += static_cast<int>(pages[page].count(u" 09:30 "_s));
        }
        QCOMPARE(rounds, 366);
        // 183 rounds at 65 and 183 at 85.
        QVERIFY(pages.last().contains(u"Total 25,620 · · · 1830 · · · · · · · 27,450 100"_s));
        QVERIFY(pages.last().contains(u"Mean per round 70.00 · · · 5.00 · · · · · · · 75.00"_s));
        QVERIFY(pages.first().contains(u"2023-06-01 2024-05-31 366 27,450 75.00"_s));
    }

    void the_foot_of_the_table_stays_together_below_a_round_data()
    {
        QTest::addColumn<int>("rounds");
        QTest::addColumn<QString>("name");
        for (int rounds = 58; rounds <= 64; ++rounds) {
            QTest::addRow("%d rounds, French", rounds) << rounds << u"r_cost3.rpt"_s;
            QTest::addRow("%d rounds, English", rounds) << rounds << u"r_cost3_en.rpt"_s;
        }
    }
    void the_foot_of_the_table_stays_together_below_a_round()
    {
        QFETCH(int, rounds);
        QFETCH(QString, name);
        fill_costs(store_.location(), rounds);
        const QString last = printed_pages(name).last();
        const qsizetype total = last.indexOf(u" Total "_s, last.indexOf(u" 09:30 "_s));
        QVERIFY2(last.contains(u" 09:30 "_s) && total > 0, qPrintable(last));
        const bool is_english = name.contains(u"_en"_s);
        const qsizetype mean = last.indexOf(is_english ? u"Mean per round"_s : u"Moyenne par ronde"_s, total);
        QVERIFY(mean > total);
        QVERIFY(last.indexOf(is_english ? u"Share %"_s : u"Part %"_s, mean) > mean);
    }

    void pages_after_the_first_are_at_least_half_full_data()
    {
        QTest::addColumn<int>("rounds");
        QTest::addColumn<int>("pages");
        for (const auto& [rounds, pages] : {std::pair(13, 1),
                                            {14, 2},
                                            {17, 2},
                                            {25, 2},
                                            {42, 2},
                                            {43, 3},
                                            {60, 3},
                                            {87, 3},
                                            {88, 4},
                                            {366, 10}})
            QTest::addRow("%d rounds", rounds) << rounds << pages;
    }
    void pages_after_the_first_are_at_least_half_full()
    {
        QFETCH(int, rounds);
        QFETCH(int, pages);
        fill_costs(store_.location(), rounds);
        for (const QString& name : {u"r_cost3.rpt"_s, u"r_cost3_en.rpt"_s}) {
            const QString path = folder_.filePath(u"costs.pdf"_s);
            const auto document = render_report(built_template(name));
            QCOMPARE(document->page_count(), pages);
            document->save_pdf(path);
            std::vector<double> lowest(static_cast<std::size_t>(pages));
            for (const printed_word& word : pdf_words(path))
                if (word.place.bottom() < word.page.height() - document->margins_mm().bottom()) {
                    double& bottom = lowest[static_cast<std::size_t>(word.page_number)];
                    bottom = qMax(bottom, word.place.bottom());
                }
            for (const double bottom : lowest)
                QVERIFY2(bottom > document->page_size_mm().height() / 2, qPrintable(QString::number(bottom)));
        }
    }

    void the_rounds_are_in_order_of_time()
    {
        fill_costs(store_.location(), 3);
        const QString page = printed_pages(u"r_cost3_en.rpt"_s).front();
        const qsizetype table = page.indexOf(u"Share %"_s, page.indexOf(u"By round"_s));
        QVERIFY(table > 0);
        QVERIFY(page.indexOf(u"2023-06-01 09:30 60"_s, table) <
                page.indexOf(u"2023-06-02 09:30 80"_s, table));
        QVERIFY(page.indexOf(u"2023-06-02 09:30 80"_s, table) <
                page.indexOf(u"2023-06-03 09:30 60"_s, table));
    }

    void rounds_that_cost_nothing_print_dots()
    {
        fill_costs(store_.location(), 2, figures::none);
        const QString page = printed_pages(u"r_cost3_en.rpt"_s).front();
        QVERIFY(page.contains(u"2023-06-02 09:30 · · · · · · · · · · · · · ·"_s));
        QVERIFY(page.contains(u"Green Fees · · · ·"_s));
        for (const QString& row :
             {u"Total · · · · · · · · · · · · · ·"_s, u"Mean per round · · · · · · · · · · · · ·"_s,
              u"Share % · · · · · · · · · · · · ·"_s})
            QVERIFY2(page.contains(row), qPrintable(row + u" in "_s + page));
    }

    void an_amount_that_was_never_entered_is_a_dot_and_counts_as_0_in_the_sums()
    {
        fill_costs(store_.location(), 2);
        reader(store_.location()).write(u"update r_cost set vt = null, au = null"_s);
        const QString page = printed_pages(u"r_cost3_en.rpt"_s).front();
        QVERIFY2(page.contains(u"2023-06-01 09:30 60 · · · 5 · · · · · · · 65 43.3"_s), qPrintable(page));
        QVERIFY2(page.contains(u"Total 140 · · · 10 · · · · · · · 150 100"_s), qPrintable(page));
        QCOMPARE(csv_lines(u"r_cost3_en.rpt"_s).at(1), u"2023-06-01,09:30,60,0,0,0,5,0,0,0,0,0,0,0,65"_s);
    }

    void an_empty_table_is_printed_on_one_page() { QCOMPARE(printed_pages(u"r_cost3.rpt"_s).size(), 1); }

    void the_highest_amounts_are_printed_whole()
    {
        fill_costs(store_.location(), 2, figures::extreme);
        const QStringList pages = printed_pages(u"r_cost3_en.rpt"_s);
        QCOMPARE(pages.size(), 1);
        QVERIFY(pages.front().contains(u"2,147,483,647 2,147,483,647 25,769,803,764 50.0"_s));
        QVERIFY(pages.front().contains(u"51,539,607,528"_s));
    }

    void a_number_of_five_digits_and_more_is_grouped_everywhere_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QChar>("group");
        QTest::addColumn<QChar>("point");
        QTest::newRow("French") << u"r_cost3.rpt"_s << QChar(u' ') << QChar(u',');
        QTest::newRow("English") << u"r_cost3_en.rpt"_s << QChar(u',') << QChar(u'.');
    }
    void a_number_of_five_digits_and_more_is_grouped_everywhere()
    {
        QFETCH(QString, name);
        QFETCH(QChar, group);
        QFETCH(QChar, point);
        fill_costs(store_.location(), 2);
        reader(store_.location())
            .write(u"update r_cost set fg = 9999, lg = 10000, ba = 12345, bs = 1234567"_s);
        const QString page = printed_pages(name).front();
        // The line of a round, the totals and the means in the foot, one kind of cost, and the total of all
        // kinds.
        for (QString text : {u"09:30 9999 · · · 12_345 · · · 10_000 1_234_567 · · 1_266_911 50."_s,
                             u"Total 19_998 · · · 24_690 · · · 20_000 2_469_134 · · 2_533_822 100"_s,
                             u" 9999.00 · · · 12_345.00 · · · 10_000.00 1_234_567.00 · · 1_266_911.00"_s,
                             u" 24_690 12_345.00 2 1."_s, u" 2_533_822 1_266_911.00"_s}) {
            text.replace(u'_', group).replace(u'.', point);
            QVERIFY2(page.contains(text), qPrintable(text + u" in "_s + page));
        }
    }

    void the_figures_file_has_every_round()
    {
        fill_costs(store_.location(), 366);
        const QStringList lines = csv_lines(u"r_cost3_en.rpt"_s);
        QCOMPARE(lines.size(), 367);
        QCOMPARE(lines[0],
                 u"Date,Time,Green Fees,Hand Cart,Golf Cart,Transportation costs,Balls,Tees,Practice "
                 u"Range,Food,Golf Lessons,Golf Clubs and Bag,Clothes,Other,Total"_s);
        QCOMPARE(lines[2], u"2023-06-02,09:30,80,0,0,0,5,0,0,0,0,0,0,0,85"_s);
    }
};

QTEST_MAIN(test_cost_report)
#include "test_cost_report.moc"
