#include <QTest>

#include "base/language.h"

using namespace verdane;
using namespace Qt::StringLiterals;

class test_language : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_program_starts_in_french() { QVERIFY(is_french); }

    void in_language_returns_the_text_of_the_current_language()
    {
        is_french = true;
        QCOMPARE(in_language(u"Trou", u"Hole"), u"Trou"_s);
        is_french = false;
        QCOMPARE(in_language(u"Trou", u"Hole"), u"Hole"_s);
    }

    void a_pair_returns_the_text_of_a_given_language()
    {
        constexpr text_pair label{u"Verges :", u"Yards :"};
        is_french = false;
        QCOMPARE(label.in(true), u"Verges :"_s);
        QCOMPARE(label.in(false), u"Yards :"_s);
    }

    void blanks_in_texts_are_kept()
    {
        constexpr text_pair label{u"Putt  :", u" ALL "};
        QCOMPARE(label.in(true), u"Putt  :"_s);
        QCOMPARE(label.in(false), u" ALL "_s);
    }
};

QTEST_GUILESS_MAIN(test_language)
#include "test_language.moc"
