#include <QTest>

#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "tests/reports/invented_rows.h"
#include "tests/reports/invented_season.h"
#include "tests/reports/printed_texts.h"
#include "tests/reports/report_tools.h"
#include "tests/support/reader.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr double least_points = 7;

void each_template()
{
    QTest::addColumn<QString>("name");
    for (const QString& report :
         {u"r_statSticks"_s, u"Stat_rounds"_s, u"r_cost3"_s, u"statPuts"_s, u"r_card2"_s})
        for (const QString& twin : {u".rpt"_s, u"_en.rpt"_s})
            QTest::newRow(qPrintable(report + twin)) << report + twin;
}

}  // namespace

class test_text_sizes : public QObject {
    Q_OBJECT

    store_folder store_;

    void check_sizes(const QString& name) { check_sizes(*render_report(built_template(name))); }
    void check_sizes(const report_document& document)
    {
        const std::vector<printed_text> texts = printed_texts(document);
        QVERIFY(texts.size() > 50);
        for (const printed_text& text : texts)
            QVERIFY2(text.points >= least_points,
                     qPrintable(u"%1: %2 pt"_s.arg(text.words).arg(text.points)));
    }

private Q_SLOTS:
    void init()
    {
        set_report_store(store_.location());
        fill_all_reports(store_.location());
    }

    void no_text_of_a_report_is_smaller_than_7_pt_data() { each_template(); }
    void no_text_of_a_report_is_smaller_than_7_pt()
    {
        QFETCH(QString, name);
        check_sizes(name);
    }

    void no_text_of_a_report_of_one_round_is_smaller_than_7_pt_data() { each_template(); }
    void no_text_of_a_report_of_one_round_is_smaller_than_7_pt()
    {
        QFETCH(QString, name);
        fill_stats(store_.location(), 1, u"Links"_s);
        fill_costs(store_.location(), 1);
        make_one_round_putts(store_.location());
        check_sizes(name);
    }

    void no_text_of_high_figures_is_smaller_than_7_pt_data() { each_template(); }
    void no_text_of_high_figures_is_smaller_than_7_pt()
    {
        QFETCH(QString, name);
        // Amounts of billions do not fit on a page; the whole page is then printed smaller.
        fill_costs(store_.location(), 366);
        reader(store_.location())
            .write(u"update r_cost set fg = 9999, cm = 9999, vt = 9999, ft = 9999, ba = 9999, tee = 9999, "
                   "tex = 9999, nrt = 9999, lg = 9999, bs = 9999, ln = 9999, au = 9999"_s);
        fill_card(store_.location(), u"Links"_s, figures::extreme);
        fill_putts(store_.location(), figures::extreme);
        fill_clubs(store_.location(), figures::extreme);
        check_sizes(name);
    }

    void no_text_about_the_season_is_smaller_than_7_pt_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("rounds");
        for (const QString& name : {u"Stat_rounds.rpt"_s, u"Stat_rounds_en.rpt"_s})
            for (const int rounds : {1, 45})
                QTest::addRow("%s, %d rounds", qPrintable(name), rounds) << name << rounds;
    }
    void no_text_about_the_season_is_smaller_than_7_pt()
    {
        QFETCH(QString, name);
        QFETCH(int, rounds);
        season_rounds season = invented_season({rounds, 51});
        season.front().course = QString(60, u'W');
        check_sizes(*render_report(built_template(name), {}, tables_of(season)));
    }

    void the_longest_names_of_a_card_are_printed_in_7_pt_or_more()
    {
        reader(store_.location())
            .write(QStringList{u"update r_card set card_name = '%1'"_s.arg(QString(50, u'W')),
                               u"update sticknames set club_4 = '%1'"_s.arg(QString(50, u'W'))});
        check_sizes(u"r_card2.rpt"_s);
    }
};

QTEST_MAIN(test_text_sizes)
#include "test_text_sizes.moc"
