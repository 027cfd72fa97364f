#include <QRegularExpression>
#include <QTest>

#include "base/failure_words.h"
#include "scoring/limits.h"

using namespace verdane;
using namespace Qt::StringLiterals;

class test_limits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_text_of_a_full_list_states_the_limits_of_rounds_and_courses()
    {
        const QStringList limits{QString::number(most_rounds), QString::number(most_courses)};
        const QRegularExpression digits(u"[0-9]+"_s);
        for (const bool french : {true, false}) {
            QStringList stated;
            const QString text = failure_words(failure_kind::subscript).in(french);
            for (const QRegularExpressionMatch& number : digits.globalMatch(text))
                stated << number.captured();
            QCOMPARE(stated, limits);
        }
    }
};

QTEST_GUILESS_MAIN(test_limits)
#include "test_limits.moc"
