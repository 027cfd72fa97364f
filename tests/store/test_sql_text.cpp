#include <QTest>

#include "store/engines/sql_text.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

QString marked(const QString& statement)
{
    return rewritten(
        statement, [](const QString& text) { return QString(u'<' + text + u'>'); },
        [](const QString& part) { return part.toUpper(); });
}

}  // namespace

/// The texts of statements for engines that get values as literals.
class test_sql_text : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void texts_with_special_characters_are_not_plain_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("plain");
        QTest::newRow("key") << u"20030614093000"_s << true;
        QTest::newRow("empty") << u""_s << true;
        QTest::newRow("blanks") << u" a b "_s << true;
        QTest::newRow("accent") << u"É"_s << false;
        QTest::newRow("emoji") << u"🏌"_s << false;
        QTest::newRow("quote") << u"'"_s << false;
        QTest::newRow("double quote") << u"\""_s << false;
        QTest::newRow("backslash") << u"\\"_s << false;
        QTest::newRow("parameter") << u"?"_s << false;
        QTest::newRow("escape of a date") << u"{"_s << false;
        QTest::newRow("end of a statement") << u";"_s << false;
        QTest::newRow("line") << u"a\nb"_s << false;
        QTest::newRow("zero") << QString(QChar(0)) << false;
    }
    void texts_with_special_characters_are_not_plain()
    {
        QFETCH(QString, text);
        QFETCH(bool, plain);
        QCOMPARE(is_plain_text(text), plain);
    }

    void a_hex_literal_has_every_byte()
    {
        QCOMPARE(hex_literal(QByteArray("\0\xff\x41", 3)), u"x'00ff41'"_s);
        QCOMPARE(hex_literal({}), u"x''"_s);
    }

    void a_literal_of_a_number_has_its_value_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("literal");
        QTest::newRow("null") << QVariant() << u"NULL"_s;
        QTest::newRow("null text") << QVariant(QMetaType::fromType<QString>()) << u"NULL"_s;
        QTest::newRow("yes") << QVariant(true) << u"1"_s;
        QTest::newRow("no") << QVariant(false) << u"0"_s;
        QTest::newRow("count") << QVariant(-32768) << u"-32768"_s;
        QTest::newRow("row number") << QVariant(Q_INT64_C(9007199254740993)) << u"9007199254740993"_s;
        QTest::newRow("real") << QVariant(-12.25) << u"-1.225e+01"_s;
    }
    void a_literal_of_a_number_has_its_value()
    {
        QFETCH(QVariant, value);
        QTEST(literal_of_number(value), "literal");
    }

    void a_real_number_keeps_all_its_digits()
    {
        for (const double value : {0.1, 1.0 / 3.0, 1e300, -2.2250738585072014e-308})
            QCOMPARE(literal_of_number(value).toDouble(), value);
    }

    void only_texts_between_single_quotes_are_replaced_data()
    {
        QTest::addColumn<QString>("statement");
        QTest::addColumn<QString>("expected");
        QTest::newRow("plain text") << u"a='k' and b"_s << u"A=<k> AND B"_s;
        QTest::newRow("accent") << u"a='é'"_s << u"A=<é>"_s;
        QTest::newRow("doubled quote") << u"a='l''é' or b='x'"_s << u"A=<l'é> OR B=<x>"_s;
        QTest::newRow("two texts") << u"a='é' or b='\\'"_s << u"A=<é> OR B=<\\>"_s;
        QTest::newRow("quoted name") << u"select `é/x`, \"a'b\" from t"_s
                                     << u"SELECT `é/x`, \"a'b\" FROM T"_s;
        QTest::newRow("text without end") << u"a='é"_s << u"A='é"_s;
        QTest::newRow("empty text") << u"a=''"_s << u"A=<>"_s;
        QTest::newRow("empty statement") << u""_s << u""_s;
    }
    void only_texts_between_single_quotes_are_replaced()
    {
        QFETCH(QString, statement);
        QTEST(marked(statement), "expected");
    }
};

QTEST_GUILESS_MAIN(test_sql_text)
#include "test_sql_text.moc"
