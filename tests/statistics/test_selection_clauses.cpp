#include <QTest>

#include "detail_pass.h"
#include "selected_rounds.h"
#include "selection_clauses.h"

using namespace verdane;

class test_selection_clauses : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_filter_becomes_a_fragment_of_the_condition_data()
    {
        QTest::addColumn<QString>("fragment");
        QTest::addColumn<QString>("expected");
        QTest::newRow("weather off") << and_weather({}) << " ";
        QTest::newRow("sunny is 0, not off")
            << and_weather(QStringLiteral("0")) << " AND (games2.conditionM = 0)";
        QTest::newRow("windy") << and_weather(QStringLiteral("3")) << " AND (games2.conditionM = 3)";
        QTest::newRow("partner off") << and_partner({}) << " ";
        QTest::newRow("partner") << and_partner(QStringLiteral("12")) << " AND INSTR(GAMES2.PARTNERS,'12')";
        QTest::newRow("course off") << and_course({}) << " ";
        QTest::newRow("course") << and_course(QStringLiteral("CLUB DES PINS-2"))
                                << " AND GAMES2.FC = 'CLUB DES PINS-2'";
        QTest::newRow("a quote in a code ends no text")
            << and_course(QStringLiteral("L'ESTÉREL-0")) << " AND GAMES2.FC = 'L''ESTÉREL-0'";
    }
    void a_filter_becomes_a_fragment_of_the_condition()
    {
        QFETCH(QString, fragment);
        QTEST(fragment, "expected");
    }

    void the_detail_statement_is_put_together_from_its_pieces()
    {
        selection_arguments chosen;
        chosen.from_key = QStringLiteral("20030101093000");
        chosen.to_key = QStringLiteral("20031231093000");
        chosen.partner_clause = QStringLiteral("<partner>");
        chosen.course_clause = QStringLiteral("<course>");
        chosen.weather_clause = QStringLiteral("<weather>");
        QCOMPARE(
            Statistics::detail_select(chosen),
            QStringLiteral(
                "SELECT ABS(SUM(STAT_ROUNDS.FAIRVAL=1 and STAT_ROUNDS.shot_type_value<>3 )), "
                "ABS(SUM(STAT_ROUNDS.TS)), ABS(SUM(STAT_ROUNDS.MISSED)), ABS(SUM(STAT_ROUNDS.PENVAL=1)), "
                "ABS(SUM(STAT_ROUNDS.PENVAL=2)), ABS(SUM(STAT_ROUNDS.PENVAL=3)),  "
                "ABS(SUM(STAT_ROUNDS.PENVAL=4)), SUM(STAT_ROUNDS.NORMAL)/COUNT(STAT_ROUNDS.HOLE) , "
                "COUNT(STAT_ROUNDS.HOLE), SUM(STAT_ROUNDS.ADDPEN),STAT_ROUNDS.HOLE FROM STAT_ROUNDS, GAMES2 "
                "WHERE (STAT_ROUNDS.DATE = GAMES2.DATE AND  games2.date>= '20030101093000' AND games2.date "
                "<='20031231093000' )<partner><course><weather> GROUP BY STAT_ROUNDS.HOLE"));
    }

    void the_rounds_are_chosen_by_date_and_by_a_course_code_of_more_than_one_character_data()
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
    void the_rounds_are_chosen_by_date_and_by_a_course_code_of_more_than_one_character()
    {
        QFETCH(QString, code);
        QFETCH(QString, rest);
        selection_arguments chosen;
        chosen.from_key = QStringLiteral("20030101093000");
        chosen.to_key = QStringLiteral("20031231093000");
        chosen.course_code = code;
        QCOMPARE(
            selected_rounds_statement(chosen),
            QString(u" select * from games where ( date>= '20030101093000' AND date <='20031231093000')" +
                    rest));
    }
};

QTEST_APPLESS_MAIN(test_selection_clauses)
#include "test_selection_clauses.moc"
