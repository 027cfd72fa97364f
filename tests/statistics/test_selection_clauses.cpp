#include <QTest>

#include "statistics/club_shots.h"
#include "statistics/cost_statistics.h"
#include "statistics/detail_pass.h"
#include "statistics/putt_lengths.h"
#include "statistics/selected_rounds.h"
#include "statistics/selection.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

selection_arguments pieces()
{
    selection_arguments chosen;
    chosen.from_key = u"20030101093000"_s;
    chosen.to_key = u"20031231093000"_s;
    chosen.partner_clause = u"<partner>"_s;
    chosen.course_clause = u"<course>"_s;
    chosen.weather_clause = u"<weather>"_s;
    return chosen;
}

}  // namespace

class test_selection_clauses : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_filter_becomes_a_fragment_of_the_condition_data()
    {
        using enum filter;
        QTest::addColumn<filter>("which");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("appended");
        QTest::addColumn<QString>("alone");
        QTest::newRow("weather off") << weather << QString() << " "
                                     << " true ";
        QTest::newRow("sunny is 0, not off") << weather << "0"
                                             << " AND (games2.conditionM = 0)"
                                             << " (games2.conditionM = 0)";
        QTest::newRow("windy") << weather << "3"
                               << " AND (games2.conditionM = 3)"
                               << " (games2.conditionM = 3)";
        QTest::newRow("partner off") << partner << QString() << " "
                                     << " true";
        QTest::newRow("partner") << partner << "12"
                                 << " AND INSTR(GAMES2.PARTNERS,'12')"
                                 << " INSTR(GAMES2.PARTNERS,'12')";
        QTest::newRow("course off") << course << QString() << " "
                                    << "true";
        QTest::newRow("course") << course << "CLUB DES PINS-2"
                                << " AND GAMES2.FC = 'CLUB DES PINS-2'"
                                << " GAMES2.FC = 'CLUB DES PINS-2'";
        QTest::newRow("a quote in a code ends no text")
            << course << u"L'ESTÉREL-0"_s << u" AND GAMES2.FC = 'L''ESTÉREL-0'"_s
            << u" GAMES2.FC = 'L''ESTÉREL-0'"_s;
    }
    void a_filter_becomes_a_fragment_of_the_condition()
    {
        QFETCH(filter, which);
        QFETCH(QString, value);
        QTEST(clause_of(which, clause_form::appended, value), "appended");
        QTEST(clause_of(which, clause_form::alone, value), "alone");
    }

    void the_statement_of_the_shots_contains_the_clauses_in_order()
    {
        QCOMPARE(Statistics::club_shot_select(pieces()),
                 u"select stat_rounds.date,stat_rounds.hole,stat_rounds.before, "
                 u"stat_rounds.after,stat_rounds.shot_type,stat_rounds.stick, "
                 u"stat_rounds.beyong_hole,stat_rounds.missed,stat_rounds.ts,stat_rounds.dz, "
                 u"stat_rounds.faireway,stat_rounds.penality,stat_rounds.shot, stat_rounds.stickval, "
                 u"stat_rounds.fairval,stat_rounds.penval,stat_rounds.shot_type_value,stat_rounds.cal, "
                 u"games2.date,  stat_rounds.verges, stat_rounds.unit  from  games2, stat_rounds where ( "
                 u"games2.date>= '20030101093000' AND games2.date <='20031231093000'  AND  "
                 u"stat_rounds.date=games2.date) <weather><partner><course>  AND (NOT "
                 u"stat_rounds.shot_type_value = 3 ) ORDER BY STAT_ROUNDS.DATE,STAT_ROUNDS.HOLE "_s);
    }

    void the_statement_of_the_costs_contains_the_clauses_in_order()
    {
        QCOMPARE(Statistics::cost_select(pieces()),
                 u"select cost.date,cost.fg,cost.cm,cost.vt,cost.ft, "
                 u"cost.ba,cost.tee,cost.tex,cost.nrt,cost.lg,cost.bs,cost.ln,cost.au from  cost "
                 u", games2 where ( cost.date=games2.date and cost.date>= '20030101093000' AND "
                 u"cost.date <='20031231093000' ) <partner><course><weather>"_s);
    }

    void the_statement_of_the_putts_contains_no_date()
    {
        QCOMPARE(Statistics::putt_select(pieces()),
                 u"select * from games2 where <weather> AND <partner> AND <course> order by date "_s);
    }

    void the_statement_of_the_detail_pass_contains_the_clauses_in_order()
    {
        QCOMPARE(
            Statistics::detail_select(pieces()),
            u"SELECT ABS(SUM(STAT_ROUNDS.FAIRVAL=1 and STAT_ROUNDS.shot_type_value<>3 )), "
            u"ABS(SUM(STAT_ROUNDS.TS)), ABS(SUM(STAT_ROUNDS.MISSED)), ABS(SUM(STAT_ROUNDS.PENVAL=1)), "
            u"ABS(SUM(STAT_ROUNDS.PENVAL=2)), ABS(SUM(STAT_ROUNDS.PENVAL=3)),  "
            u"ABS(SUM(STAT_ROUNDS.PENVAL=4)), SUM(STAT_ROUNDS.NORMAL)/COUNT(STAT_ROUNDS.HOLE) , "
            u"COUNT(STAT_ROUNDS.HOLE), SUM(STAT_ROUNDS.ADDPEN),STAT_ROUNDS.HOLE FROM STAT_ROUNDS, GAMES2 "
            u"WHERE (STAT_ROUNDS.DATE = GAMES2.DATE AND  games2.date>= '20030101093000' AND games2.date "
            u"<='20031231093000' )<partner><course><weather> GROUP BY STAT_ROUNDS.HOLE"_s);
    }

    void the_statement_of_the_rounds_has_dates_and_a_course_code_of_two_or_more_characters_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("rest");
        QTest::newRow("all courses") << ""
                                     << "";
        QTest::newRow("one character") << "A"
                                       << "";
        QTest::newRow("a course") << "PINS-0"
                                  << " AND CODEF='PINS-0'";
    }
    void the_statement_of_the_rounds_has_dates_and_a_course_code_of_two_or_more_characters()
    {
        QFETCH(QString, code);
        QFETCH(QString, rest);
        selection_arguments chosen;
        chosen.from_key = u"20030101093000"_s;
        chosen.to_key = u"20031231093000"_s;
        chosen.course_code = code;
        QCOMPARE(
            selected_rounds_statement(chosen),
            QString(u" select * from games where ( date>= '20030101093000' AND date <='20031231093000')" +
                    rest));
    }
};

QTEST_APPLESS_MAIN(test_selection_clauses)
#include "test_selection_clauses.moc"
