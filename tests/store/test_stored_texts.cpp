#include <QTest>

#include "store/schema.h"
#include "tests/store/store_fixture.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::store_fixture;

namespace {

/// Texts that a driver or an engine could change.
const QStringList difficult_texts{u"Évian-les-Bains Œuvre"_s,
                                  u"l'étang d''à côté"_s,
                                  u"\"quoted\" `name`"_s,
                                  u"C:\\golf\\ \\n \\' \\"_s,
                                  u"🏌🏽‍♀️⛳"_s,
                                  u"  trailing blanks   "_s,
                                  u"{d '2026-01-01'} ?"_s,
                                  u"50 % _ ; -- # /* */"_s,
                                  u"two\nlines\r\n\tend"_s,
                                  u"日本語 עברית"_s,
                                  u""_s,
                                  u"e\u0301 é"_s};

QString hex_of(const QString& text)
{
    return QString::fromLatin1(text.toUtf8().toHex().toUpper());
}

/// The names of the text columns of a table without a limit of characters.
QStringList text_columns(const table& declared)
{
    QStringList names;
    for (const column& column : declared.columns) {
        if (column.type == column_type::text && column.characters == 0)
            names << column.name;
    }
    return names;
}

}  // namespace

/// Texts are stored as they were typed, byte by byte.
class test_stored_texts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_text_column_stores_and_returns_what_was_typed_data()
    {
        QTest::addColumn<QString>("name");
        for (const table& declared : schema()) {
            if (!text_columns(declared).isEmpty())
                QTest::newRow(qPrintable(declared.name)) << declared.name;
        }
    }

    void every_text_column_stores_and_returns_what_was_typed()
    {
        QFETCH(QString, name);
        const QStringList columns = text_columns(*find_table(name));
        store_fixture store;
        store.connection.Execute(u"delete from "_s + name);
        const auto rows = store.opened(u"select * from "_s + name);
        for (const QString& text : difficult_texts) {
            rows->AddNew();
            for (const QString& column : columns)
                rows->Fields(column).set(text);
            rows->Update();
        }
        rows->Requery();
        const QString hex =
            u"select hex(`%1`) from %2 order by rowid"_s.arg(columns.join(u"`), hex(`"_s), name);
        const auto stored = store.outside().rows(hex);
        QCOMPARE(static_cast<qsizetype>(stored.size()), difficult_texts.size());
        for (qsizetype row = 0; row < difficult_texts.size(); ++row) {
            rows->MoveTo(static_cast<int>(row));
            for (qsizetype column = 0; column < columns.size(); ++column) {
                QCOMPARE(stored[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)].toString(),
                         hex_of(difficult_texts[row]));
                QCOMPARE(rows->Fields(columns[column]).text(), difficult_texts[row]);
            }
        }
    }

    void a_changed_text_is_stored_as_it_was_typed()
    {
        store_fixture store;
        store.add_partners({u"a"_s});
        const auto partners = store.opened(testing::all_partners);
        for (const QString& text : difficult_texts) {
            partners->Fields(u"NAME").set(text);
            partners->Update();
            QCOMPARE(store.outside().text(u"select hex(NAME) from partners"_s), hex_of(text));
        }
    }

    void a_statement_finds_a_row_by_any_text()
    {
        store_fixture store;
        store.add_partners(difficult_texts);
        for (const QString& text : difficult_texts) {
            const auto found = store.opened(u"select * from partners where NAME = "_s + quoted(text));
            QCOMPARE(found->RecordCount(), 1);
            QCOMPARE(found->Fields(u"NAME").text(), text);
        }
    }

    void trailing_blanks_and_case_distinguish_texts()
    {
        store_fixture store;
        store.add_partners({u"a"_s, u"a "_s, u"A"_s});
        QCOMPARE(store.opened(u"select * from partners where NAME = 'a'"_s)->RecordCount(), 1);
    }
};

QTEST_GUILESS_MAIN(test_stored_texts)
#include "test_stored_texts.moc"
