#include <QTest>

#include "scoring/Verdane_tools.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace verdane::Verdane_tools;
using namespace Qt::StringLiterals;
using testing::failure_of;

class test_Verdane_tools : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_text_is_padded_on_the_right_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        QTest::addColumn<QString>("padded");
        QTest::newRow("blanks around it") << " ab " << 4 << "ab  ";
        QTest::newRow("empty") << "" << 3 << "   ";
        QTest::newRow("exactly the width") << "abcd" << 4 << "abcd";
        QTest::newRow("longer comes back trimmed") << " abcdef " << 4 << "abcdef";
        QTest::newRow("blanks that trimming takes below the width") << "ab    " << 4 << "ab  ";
        QTest::newRow("no width") << " a " << 0 << "a";
        QTest::newRow("a tab is no blank") << "\ta" << 3 << "\ta ";
    }

    void a_text_is_padded_on_the_right()
    {
        QFETCH(QString, text);
        QFETCH(int, width);
        QFETCH(QString, padded);
        QCOMPARE(pad_right(text, width), padded);
        QCOMPARE(text, padded);
    }

    void a_text_is_padded_with_zeros_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        QTest::addColumn<QString>("padded");
        QTest::newRow("one digit") << "5" << 2 << "05";
        QTest::newRow("empty") << "" << 2 << "00";
        QTest::newRow("blanks") << "  " << 2 << "00";
        QTest::newRow("three digits") << "123" << 2 << "123";
        QTest::newRow("blanks around") << " 7 " << 2 << "07";
        QTest::newRow("the width") << "12" << 2 << "12";
    }

    void a_text_is_padded_with_zeros()
    {
        QFETCH(QString, text);
        QFETCH(int, width);
        QFETCH(QString, padded);
        QCOMPARE(pad_zero(text, width), padded);
        QCOMPARE(text, padded);
    }

    void a_tee_has_a_name_in_each_language_data()
    {
        QTest::addColumn<QString>("digit");
        QTest::addColumn<QString>("french");
        QTest::addColumn<QString>("english");
        QTest::newRow("0") << "0"
                           << "BLANC"
                           << "White";
        QTest::newRow("1") << "1"
                           << "BLEU"
                           << "Blue";
        QTest::newRow("2") << "2"
                           << "ROUGE"
                           << "Red";
        QTest::newRow("3") << "3"
                           << "OR"
                           << "Gold";
        QTest::newRow("4") << "4"
                           << "Bronze"
                           << "Bronze";
        QTest::newRow("5") << "5"
                           << "Jaune"
                           << "Yellow";
        QTest::newRow("6") << "6"
                           << "Vert"
                           << "Green";
        QTest::newRow("7") << "7"
                           << "Noir"
                           << "Black";
        QTest::newRow("blanks around") << " 6 "
                                       << "Vert"
                                       << "Green";
        QTest::newRow("8") << "8"
                           << ""
                           << "";
        QTest::newRow("empty") << ""
                               << ""
                               << "";
        QTest::newRow("a letter") << "A"
                                  << ""
                                  << "";
        QTest::newRow("two digits") << "07"
                                    << ""
                                    << "";
        QTest::newRow("minus") << "-1"
                               << ""
                               << "";
    }

    void a_tee_has_a_name_in_each_language()
    {
        QFETCH(QString, digit);
        QFETCH(QString, french);
        QFETCH(QString, english);
        QCOMPARE(tee_name_in(true, digit), french);
        QCOMPARE(tee_name_in(false, digit), english);
    }

    void two_names_have_a_checksum_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<int>("number");
        QTest::newRow("nothing") << ""
                                 << "" << 0;
        QTest::newRow("small letters") << "ab"
                                       << "" << 65 + 66 + 2 + 2;
        QTest::newRow("capitals and blanks") << "AB "
                                             << " " << 65 + 66 + 2 + 2;
        QTest::newRow("two names") << "ab"
                                   << "c" << 65 + 66 + 67 + 3 + 2 + 1;
        QTest::newRow("the same letters in another order") << "c"
                                                           << "ba" << 65 + 66 + 67 + 3 + 1 + 2;
        QTest::newRow("a blank inside counts") << "a b"
                                               << "" << 65 + 32 + 66 + 3 + 3;
        QTest::newRow("accent") << u"é"_s << "" << 0xC9 + 2;
        QTest::newRow("middle of the code page") << u"œ"_s << "" << 0x8C + 2;
        QTest::newRow("capital from the middle") << u"ÿ"_s << "" << 0x9F + 2;
        QTest::newRow("euro") << u"€"_s << "" << 0x80 + 2;
        QTest::newRow("no single capital") << u"ß"_s << "" << 0xDF + 2;
        QTest::newRow("micro sign") << u"µ"_s << "" << 0xB5 + 2;
        QTest::newRow("hard space") << u"\u00A0"_s << "" << 0xA0 + 2;
        QTest::newRow("last of the code page") << u"þ"_s << "" << 0xDE + 2;
        QTest::newRow("not in the code page") << u"Ω"_s << "" << '?' + 2;
    }

    void two_names_have_a_checksum()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(int, number);
        QCOMPARE(plain(name_checksum(first, second)), number);
    }

    void the_checksum_trims_both_names_and_puts_them_in_capitals()
    {
        QString first = u" Côté "_s;
        QString second = u"Éric "_s;
        name_checksum(first, second);
        QCOMPARE(first, u"CÔTÉ"_s);
        QCOMPARE(second, u"ÉRIC"_s);
    }
};

QTEST_GUILESS_MAIN(test_Verdane_tools)
#include "test_Verdane_tools.moc"
