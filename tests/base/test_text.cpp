#include <QTest>

#include "base/text.h"

using namespace verdane;
using namespace Qt::StringLiterals;

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
        QTest::newRow("a tab is kept") << " \tab\n"
                                       << "\tab\n";
        QTest::newRow("a no-break space is kept") << u"\u00A0ab "_s << u"\u00A0ab"_s;
    }

    void only_blanks_at_the_ends_are_trimmed()
    {
        QFETCH(QString, text);
        QFETCH(QString, trimmed);
        QCOMPARE(trimmed_blanks(text).toString(), trimmed);
    }

    void each_letter_is_converted_separately_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("capitals");
        QTest::newRow("plain letters") << "Pins"
                                       << "PINS";
        QTest::newRow("accents") << u"Étang à çœÿ"_s << u"ÉTANG À ÇŒŸ"_s;
        QTest::newRow("no single capital") << u"straße"_s << u"STRAßE"_s;
        QTest::newRow("signs") << u"µƒ-7'"_s << u"µƒ-7'"_s;
        QTest::newRow("empty") << ""
                               << "";
    }

    void each_letter_is_converted_separately()
    {
        QFETCH(QString, text);
        QFETCH(QString, capitals);
        QCOMPARE(in_capitals(text), capitals);
        QCOMPARE(in_capitals(text).size(), text.size());
    }
};

QTEST_GUILESS_MAIN(test_text)
#include "test_text.moc"
