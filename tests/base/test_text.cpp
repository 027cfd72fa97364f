#include <QTest>

#include "base/text.h"

using namespace verdane;

class test_text : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void only_blanks_at_the_ends_are_trimmed_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("trimmed");
        QTest::newRow("both ends") << "  ab "
                                   << "ab";
        QTest::newRow("inside") << "a  b"
                                << "a  b";
        QTest::newRow("nothing else") << "   "
                                      << "";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("a tab stays") << " \tab\n"
                                     << "\tab\n";
        QTest::newRow("a hard space stays") << QStringLiteral("\u00A0ab ") << QStringLiteral("\u00A0ab");
    }

    void only_blanks_at_the_ends_are_trimmed()
    {
        QFETCH(QString, text);
        QFETCH(QString, trimmed);
        QCOMPARE(trimmed_blanks(text).toString(), trimmed);
    }

    void capitals_go_letter_by_letter_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("capitals");
        QTest::newRow("plain letters") << "Pins"
                                       << "PINS";
        QTest::newRow("accents") << QStringLiteral("Étang à çœÿ") << QStringLiteral("ÉTANG À ÇŒŸ");
        QTest::newRow("no single capital") << QStringLiteral("straße") << QStringLiteral("STRAßE");
        QTest::newRow("signs") << QStringLiteral("µƒ-7'") << QStringLiteral("µƒ-7'");
        QTest::newRow("empty") << ""
                               << "";
    }

    void capitals_go_letter_by_letter()
    {
        QFETCH(QString, text);
        QFETCH(QString, capitals);
        QCOMPARE(in_capitals(text), capitals);
        QCOMPARE(in_capitals(text).size(), text.size());
    }
};

QTEST_GUILESS_MAIN(test_text)
#include "test_text.moc"
