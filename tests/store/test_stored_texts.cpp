#include <QTest>

#include <algorithm>
#include <iterator>
#include <vector>

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
                                  u" blanks  "_s,
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

std::vector<column> text_columns(const table& declared)
{
    std::vector<column> found;
    std::copy_if(declared.columns.begin(), declared.columns.end(), std::back_inserter(found),
                 [](const column& each) { return each.type == column_type::text; });
    return found;
}

/// The first characters of a text, as many as a column of a server stores.
QString fitting(const QString& text, const column& stored)
{
    return stored.characters == 0 ? text : text.left(stored.characters);
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
            if (!text_columns(declared).empty())
                QTest::newRow(qPrintable(declared.name)) << declared.name;
        }
    }

    void every_text_column_stores_and_returns_what_was_typed()
    {
        QFETCH(QString, name);
        const std::vector<column> columns = text_columns(*find_table(name));
        store_fixture store;
        store.connection.Execute(u"delete from "_s + name);
        const auto rows = store.opened(u"select * from "_s + name);
        for (const QString& text : difficult_texts) {
            rows->AddNew();
            for (const column& column : columns)
                rows->Fields(column.name).set(fitting(text, column));
            rows->Update();
        }
        rows->Requery();
        QStringList in_hex;
        for (const column& column : columns)
            in_hex << u"hex(`%1`)"_s.arg(column.name);
        const auto stored =
            store.outside().rows(u"select %1 from %2 order by rowid"_s.arg(in_hex.join(u", "_s), name));
        QCOMPARE(static_cast<qsizetype>(stored.size()), difficult_texts.size());
        for (qsizetype row = 0; row < difficult_texts.size(); ++row) {
            rows->MoveTo(static_cast<int>(row));
            for (std::size_t column = 0; column < columns.size(); ++column) {
                const QString typed = fitting(difficult_texts[row], columns[column]);
                QCOMPARE(stored[static_cast<std::size_t>(row)][column].toString(), hex_of(typed));
                QCOMPARE(rows->Fields(columns[column].name).text(), typed);
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
