#include <QRegularExpression>
#include <QTest>

#include "base/failure_text.h"
#include "scoring/limits.h"

using namespace verdane;
using namespace Qt::StringLiterals;

class test_limits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_text_of_a_full_list_states_its_limit_and_no_other_number_data()
    {
        QTest::addColumn<limited_list>("list");
        QTest::addColumn<QStringList>("limits");
        const QString rounds = QString::number(most_rounds);
        QTest::newRow("places of round keys") << limited_list::round_keys << QStringList{rounds, rounds};
        QTest::newRow("rounds") << limited_list::stored_rounds << QStringList{rounds};
        QTest::newRow("courses") << limited_list::courses << QStringList{QString::number(most_courses)};
    }
    void the_text_of_a_full_list_states_its_limit_and_no_other_number()
    {
        QFETCH(limited_list, list);
        const QRegularExpression digits(u"[0-9]+"_s);
        for (const bool french : {true, false}) {
            QStringList stated;
            const QString text = words_of_full_list(list).in(french);
            for (const QRegularExpressionMatch& number : digits.globalMatch(text))
                stated << number.captured();
            QTEST(stated, "limits");
        }
    }

    void the_text_about_putts_states_the_most_that_are_counted()
    {
        QCOMPARE(most_putts_counted, 5);
        const text_pair words = words_of_full_list(limited_list::putts_of_a_hole);
        QVERIFY(words.in(true).contains(u"plus de cinq coups"));
        QVERIFY(words.in(false).contains(u"more than five putts"));
    }
};

QTEST_GUILESS_MAIN(test_limits)
#include "test_limits.moc"
