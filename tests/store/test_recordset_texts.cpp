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
        // An ODBC connection reads the first 512 bytes of a text with its row. A text of some 8,000
        // characters makes a statement of 32 KB, from which one of the drivers returns no rows.
        for (const int characters : {255, 256, 257, 300, 5'000, 7'900, 8'100, 20'000, 32'000})
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

    void a_row_with_a_long_text_can_be_changed_after_it_was_added()
    {
        store_fixture store;
        const auto rows = store.opened(testing::all_partners);
        for (const int characters : {20'000, 1}) {
            rows->AddNew();
            rows->Fields(u"NAME").set(long_text(characters));
            rows->Update();
            rows->Fields(u"SURNAME").set(QString::number(characters));
            rows->Update();
        }
        QCOMPARE(store.outside().text(u"select length(NAME) from partners where SURNAME = '20000'"_s),
                 u"20000"_s);
        QCOMPARE(store.outside().number(u"select count(*) from partners"_s), 2);
    }

    void an_empty_text_and_null_are_stored_and_read_as_they_were_written()
    {
        store_fixture store;
        const auto rows = store.opened(testing::all_partners);
        rows->AddNew();
        rows->Fields(u"NAME").set(u""_s);
        rows->Fields(u"SURNAME").set(QVariant());
        rows->Update();
        for (const bool null : {false, true, false}) {
            rows->Fields(u"NAME").set(null ? QVariant() : QVariant(u""_s));
            rows->Fields(u"SURNAME").set(null ? QVariant(u""_s) : QVariant());
            rows->Update();
            rows->Requery();
            QCOMPARE(rows->Fields(u"NAME").is_null(), null);
            QCOMPARE(rows->Fields(u"SURNAME").is_null(), !null);
            QCOMPARE(rows->Fields(null ? u"SURNAME" : u"NAME").text(), QString());
            const auto stored = store.outside().rows(
                u"select NAME is null, SURNAME is null, NAME = '', SURNAME = '' from partners"_s)[0];
            QCOMPARE(stored[0].toBool(), null);
            QCOMPARE(stored[1].toBool(), !null);
            QCOMPARE(stored[null ? 3 : 2].toInt(), 1);
        }
    }

    void a_condition_distinguishes_an_empty_text_from_null()
    {
        store_fixture store;
        store.add_partners({u""_s, u"a"_s});
        store.connection.Execute(u"update partners set NAME = null where NAME = 'a'"_s);
        QCOMPARE(store.opened(u"select * from partners where NAME = ''"_s)->Fields(u"code").text(), u"1"_s);
        QCOMPARE(store.opened(u"select * from partners where NAME is null"_s)->Fields(u"code").text(),
                 u"2"_s);
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
