#include <QTest>

#include "base/csv.h"

using namespace verdane;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(verdane::csv_fault)

namespace {

/// The values of all records: quoted ones between quotes, records on lines with the number of their line.
QStringList lines_of(const csv_content& content)
{
    QStringList lines;
    for (const csv_record& record : content.records) {
        QStringList values;
        for (const csv_value& value : record.values)
            values << (value.quoted ? u'"' + value.text + u'"' : value.text);
        lines << QString::number(record.line) + u": " + values.join(u'|');
    }
    return lines;
}

}  // namespace

class test_csv : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void values_are_read_with_their_lines_and_quotes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("nothing") << QByteArray() << QStringList();
        QTest::newRow("plain") << QByteArray("a,b\n1,2\n") << QStringList{u"1: a|b"_s, u"2: 1|2"_s};
        QTest::newRow("no last line end") << QByteArray("a,b") << QStringList{u"1: a|b"_s};
        QTest::newRow("none and empty text") << QByteArray(",\"\"\n") << QStringList{u"1: |\"\""_s};
        QTest::newRow("empty last value") << QByteArray("a,") << QStringList{u"1: a|"_s};
        QTest::newRow("empty line") << QByteArray("\na\n") << QStringList{u"1: "_s, u"2: a"_s};
        QTest::newRow("lines with CR")
            << QByteArray("a\r\n\"b\"\r\n") << QStringList{u"1: a"_s, u"2: \"b\""_s};
        QTest::newRow("comma in quotes") << QByteArray("\"a,b\",c\n") << QStringList{u"1: \"a,b\"|c"_s};
        QTest::newRow("doubled quotes") << QByteArray("\"a\"\"b\"\"\"\n") << QStringList{u"1: \"a\"b\"\""_s};
        QTest::newRow("lines in quotes")
            << QByteArray("\"a\nb\r\n\"\nc\n") << QStringList{u"1: \"a\nb\r\n\""_s, u"4: c"_s};
        QTest::newRow("blanks") << QByteArray(" a ,\" b \"\n") << QStringList{u"1:  a |\" b \""_s};
        QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf\"a\"\n") << QStringList{u"1: \"a\""_s};
        QTest::newRow("letters") << QByteArray("\"Été ⛳ 🏌\"\n")
                                 << QStringList{u"1: \"Été ⛳ 🏌\""_s};
    }

    void values_are_read_with_their_lines_and_quotes()
    {
        QFETCH(QByteArray, bytes);
        const csv_content content = read_csv(bytes);
        QCOMPARE(content.fault, csv_fault::none);
        QTEST(lines_of(content), "expected");
    }

    void a_fault_is_found_with_its_line_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<csv_fault>("fault");
        QTest::addColumn<int>("line");
        QTest::newRow("bytes that are not UTF-8") << QByteArray("a\nb\xe9\nc\n") << csv_fault::encoding << 2;
        QTest::newRow("quote in a value") << QByteArray("a\nb\"c\"\n") << csv_fault::quote_in_value << 2;
        QTest::newRow("text after a quote")
            << QByteArray("a\n\"b\"c,d\n") << csv_fault::text_after_quote << 2;
        QTest::newRow("quote that ends at a quote of the next line")
            << QByteArray("a\n\"b,c\n\"d\",e\n") << csv_fault::open_quote << 2;
        QTest::newRow("open quote after lines in quotes")
            << QByteArray("\"a\nb\",\"c\nd\n") << csv_fault::open_quote << 2;
        QTest::newRow("open quote") << QByteArray("a\n\"b\nc\nd\n") << csv_fault::open_quote << 2;
    }

    void a_fault_is_found_with_its_line()
    {
        QFETCH(QByteArray, bytes);
        const csv_content content = read_csv(bytes);
        QTEST(content.fault, "fault");
        QTEST(content.line, "line");
    }

    void records_before_a_fault_are_complete()
    {
        QCOMPARE(lines_of(read_csv("a,b\nc,\"d\n")), QStringList{u"1: a|b"_s});
    }

    void a_quoted_text_is_read_back_data()
    {
        QTest::addColumn<QString>("text");
        for (const QString& text : {u""_s, u"a"_s, u"\""_s, u"\"\""_s, u" a,\"b\"\r\n\n "_s, u"⛳ 🏌"_s})
            QTest::newRow(qUtf8Printable(u'<' + text + u'>')) << text;
    }

    void a_quoted_text_is_read_back()
    {
        QFETCH(QString, text);
        const csv_content content = read_csv((csv_quoted(text) + u',' + csv_quoted(text) + u'\n').toUtf8());
        QCOMPARE(content.records.size(), 1U);
        QCOMPARE(content.records[0].values, (std::vector<csv_value>{{text, true}, {text, true}}));
    }
};

QTEST_APPLESS_MAIN(test_csv)
#include "test_csv.moc"
