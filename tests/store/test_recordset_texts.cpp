#include <QTest>

#include "tests/store/store_fixture.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::store_fixture;

namespace {

/// A text of that many characters of two bytes each.
QString long_text(int characters)
{
    return QString(characters, u'é');
}

}  // namespace

/// Texts of every length are read as they were written.
class test_recordset_texts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_text_is_read_as_it_was_written_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << u""_s;
        QTest::newRow("blank") << u" "_s;
        QTest::newRow("hexadecimal literal") << u"X'4142'"_s;
        QTest::newRow("of four bytes") << u"\U0001F600\U0001F600"_s;
        // An ODBC connection reads the first 512 bytes of a text with its row.
        for (const int characters : {255, 256, 257, 300, 5'000})
            QTest::newRow(qUtf8Printable(QString::number(characters))) << long_text(characters);
    }

    void a_text_is_read_as_it_was_written()
    {
        QFETCH(QString, text);
        store_fixture store;
        const auto rows = store.opened(testing::all_partners);
        rows->AddNew();
        rows->Fields(u"NAME").set(text);
        rows->Fields(u"SURNAME").set(u"next"_s);
        rows->Update();
        rows->Requery();
        QVERIFY(!rows->Fields(u"NAME").is_null());
        QCOMPARE(rows->Fields(u"NAME").text(), text);
        QCOMPARE(rows->Fields(u"SURNAME").text(), u"next"_s);
    }

    void a_short_text_after_a_long_one_is_read_alone()
    {
        store_fixture store;
        store.add_partners({long_text(400), u"b"_s});
        const auto rows = store.opened(u"select * from partners order by code"_s);
        rows->MoveNext();
        QCOMPARE(rows->Fields(u"NAME").text(), u"b"_s);
    }
};

QTEST_GUILESS_MAIN(test_recordset_texts)
#include "test_recordset_texts.moc"
