#include <QTest>

#include "reports/preview/report_preview.h"
#include "reports/report_control.h"
#include "statistics/putt_statistics.h"
#include "store/DataEnvironment1.h"
#include "tests/statistics/putt_rounds.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// The putts of a single round in the report tables, and their report.
class test_one_round_putts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_single_round_has_its_rating_on_the_first_row_data() { both_languages(); }
    void a_single_round_has_its_rating_on_the_first_row()
    {
        QFETCH(bool, french);
        const stored_rounds rounds(2, french);
        rounds.putts(1, 1, {20, 3});
        rounds.putts(2, 1, {4});
        QVERIFY(fill_grids(days(1, 1)));
        Recordset& games2 = data_environment().rsgames2;
        games2.Open();
        games2.MoveLast();
        QVERIFY(Statistics::round_putts(u"Ronde : 2003-01-02 PINS"_s, u"Vent"_s));
        games2.Close();
        QCOMPARE(rounds.by_start(1)[12], u"EXCELLENT"_s);
        QCOMPARE(rounds.by_start(7).mid(11, 2), (QStringList{u" 1"_s, u" "_s}));
        QCOMPARE(rounds.by_first(1).mid(11, 2), (QStringList{u"Ronde : 2003-01-02 PINS"_s, u"Vent"_s}));
        QCOMPARE(bands(rounds.by_first(1)),
                 (QStringList{u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"1"_s}));
        QCOMPARE(bands(rounds.by_first(2)), QStringList(7, u"0"_s));
        QVERIFY(open_recordsets().isEmpty());
    }

    void a_single_round_without_putts_returns_false()
    {
        const stored_rounds rounds(1);
        Recordset& games2 = data_environment().rsgames2;
        games2.Open();
        QVERIFY(!Statistics::round_putts(u"a"_s, u"b"_s));
        games2.Close();
        QCOMPARE(rounds.by_start(1)[12], u"N/A"_s);
    }

    void the_report_of_a_single_round_opens_under_its_captions_data() { both_languages(); }
    void the_report_of_a_single_round_opens_under_its_captions()
    {
        QFETCH(bool, french);
        const stored_rounds rounds(2, french);
        rounds.putts(1, 1, {20, 3});
        QVERIFY(fill_grids(days(1, 2)));
        const QStringList choices = rounds.by_first(1).mid(23);
        Recordset& games2 = data_environment().rsgames2;
        games2.Open();
        report_control cr2;
        Statistics::one_round_putt_report(cr2, u"Ronde : 1"_s, u"Vent"_s);
        games2.Close();
        QVERIFY(cr2.preview());
        QVERIFY(cr2.ReportFileName().endsWith(french ? u"\\statPuts.rpt"_s : u"\\statPuts_en.rpt"_s));
        QCOMPARE(cr2.page_zoom().value_or(0), 75);
        delete cr2.preview();
        QCOMPARE(rounds.by_first(1).mid(11, 2), (QStringList{u"Ronde : 1"_s, u"Vent"_s}));
        // The heading of a single round does not show these fields; the last selection has written them.
        QCOMPARE(choices, (QStringList{u"ALL"_s, u"ALL PARTNERS"_s, u"ALL COURSES"_s, u"2"_s}));
        QCOMPARE(rounds.by_first(1).mid(23), choices);
    }

    void the_report_of_a_round_without_putts_opens_too()
    {
        const stored_rounds rounds(1);
        Recordset& games2 = data_environment().rsgames2;
        games2.Open();
        report_control cr2;
        Statistics::one_round_putt_report(cr2, u"Ronde : 1"_s, u"Vent"_s);
        games2.Close();
        QVERIFY(cr2.preview());
        delete cr2.preview();
    }
};

QTEST_MAIN(test_one_round_putts)
#include "test_one_round_putts.moc"
