#include <QTest>

#include "store/Connection1.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/reader.h"
#include "tests/support/server_copy.h"
#include "tests/support/test_store.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr QStringView all_pairs = u"select a, b, n from pairs order by a, b, n";

/// A store with a table of three rows, two of which are equal.
struct store_with_pairs {
    store_with_pairs()
    {
        Connection1().Open(place.location());
        store.write({u"create table pairs (a text, b text, n integer)"_s,
                     u"insert into pairs values ('ab', 'c', 1), ('x', '', 2), ('x', '', 2)"_s});
    }

    QStringList rows() const
    {
        QStringList lines;
        for (const auto& row : store.rows(all_pairs.toString())) {
            QStringList values;
            for (const QVariant& value : row)
                values << (value.isNull() ? u"-"_s : value.toString());
            lines << values.join(u'|');
        }
        return lines;
    }

    test_store place;
    reader store{place.location()};
};

}  // namespace

class test_server_copy : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_change_after_a_read_is_in_the_next_read_data()
    {
        QTest::addColumn<QStringList>("changes");
        QTest::addColumn<QString>("rows");
        const auto row = [](const char* name, const QStringList& changes, const QString& rows) {
            QTest::newRow(name) << changes << rows;
        };
        row("a number", {u"update pairs set n = 3 where a = 'ab'"_s}, u"ab|c|3 x||2 x||2"_s);
        row("Null instead of an empty text", {u"update pairs set b = null where a = 'x'"_s},
            u"ab|c|1 x|-|2 x|-|2"_s);
        row("the word of Null", {u"update pairs set b = 'NULL' where a = 'x'"_s},
            u"ab|c|1 x|NULL|2 x|NULL|2"_s);
        row("Null instead of 0", {u"update pairs set n = null where a = 'ab'"_s}, u"ab|c|- x||2 x||2"_s);
        row("a letter that moves to the next column", {u"update pairs set a = 'a', b = 'bc' where n = 1"_s},
            u"a|bc|1 x||2 x||2"_s);
        row("another case", {u"update pairs set a = 'X' where n = 2"_s}, u"X||2 X||2 ab|c|1"_s);
        row("a trailing blank", {u"update pairs set a = 'ab ' where n = 1"_s}, u"ab |c|1 x||2 x||2"_s);
        row("numbers of two rows exchanged", {u"update pairs set n = 3 - n"_s}, u"ab|c|2 x||1 x||1"_s);
        row("two equal rows replaced by two others",
            {u"delete from pairs where a = 'x'"_s, u"insert into pairs values ('y', '', 2), ('y', '', 2)"_s},
            u"ab|c|1 y||2 y||2"_s);
        row("no rows", {u"delete from pairs"_s}, QString());
        row("another table of that name",
            {u"drop table pairs"_s, u"create table pairs (n integer, a text, b text)"_s,
             u"insert into pairs values (7, 'p', 'q')"_s},
            u"p|q|7"_s);
    }

    void a_change_after_a_read_is_in_the_next_read()
    {
        QFETCH(QStringList, changes);
        QFETCH(QString, rows);
        const store_with_pairs folder;
        QCOMPARE(folder.rows(), (QStringList{u"ab|c|1"_s, u"x||2"_s, u"x||2"_s}));
        folder.store.write(changes);
        QCOMPARE(folder.rows().join(u' '), rows);
    }

    void a_table_that_was_removed_is_not_in_the_next_list_of_tables()
    {
        const store_with_pairs folder;
        const QString tables = u"select count(*) from sqlite_master where type = 'table'"_s;
        const int before = folder.store.number(tables);
        folder.store.write(u"drop table pairs"_s);
        QCOMPARE(folder.store.number(tables), before - 1);
    }

    void a_table_is_copied_again_only_after_a_change()
    {
        const bool on_server = engine_of_tests() == test_engine::mariadb;
        const store_with_pairs folder;
        const int before = tables_copied();
        folder.rows();
        QCOMPARE(tables_copied(), before + (on_server ? 1 : 0));
        folder.rows();
        folder.store.number(u"select max(n) from pairs"_s);
        QCOMPARE(tables_copied(), before + (on_server ? 1 : 0));
        folder.store.write(u"update pairs set n = 9"_s);
        folder.rows();
        QCOMPARE(tables_copied(), before + (on_server ? 2 : 0));
    }
};

QTEST_GUILESS_MAIN(test_server_copy)
#include "test_server_copy.moc"
