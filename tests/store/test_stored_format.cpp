#include <QTest>

#include "tests/store/store_fixture.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::reader;
using testing::store_fixture;

namespace {

QStringList recorded_lines()
{
    const QString recorded = QString::fromUtf8(testing::bytes_of(QString::fromUtf8(VERDANE_NEW_STORE)));
    QStringList lines = recorded.split(u'\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString& line) { return line.startsWith(u"--"_s); });
    return lines;
}

/// The rows of a table as statements, with every value as the engine writes it.
QStringList insertions(const reader& store, const QString& table)
{
    QStringList values;
    for (const auto& column :
         store.rows(u"select name from pragma_table_info('%1') order by cid"_s.arg(table)))
        values << u"quote(`%1`)"_s.arg(column[0].toString());
    QStringList lines;
    for (const auto& row :
         store.rows(u"select %1 from `%2` order by rowid"_s.arg(values.join(u','), table))) {
        QStringList texts;
        for (const QVariant& value : row)
            texts << value.toString();
        lines << u"INSERT INTO `%1` VALUES (%2);"_s.arg(table, texts.join(u','));
    }
    return lines;
}

QStringList lines_of(const reader& store)
{
    QStringList lines;
    for (const auto& entry : store.rows(u"select type, name, sql from sqlite_master order by rowid"_s)) {
        const QString statement = entry[2].toString() + u';';
        lines << QString(statement).replace(u", "_s, u",\n    "_s).split(u'\n');
        if (entry[0].toString() == u"table")
            lines << insertions(store, entry[1].toString());
    }
    return lines;
}

}  // namespace

class test_stored_format : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_new_store_has_exactly_the_recorded_statements_and_rows()
    {
        const store_fixture store;
        const QStringList expected = recorded_lines();
        const QStringList lines = lines_of(store.outside());
        QVERIFY(expected.size() > 800);
        for (qsizetype i = 0; i < qMin(lines.size(), expected.size()); ++i)
            QCOMPARE(lines[i], expected[i]);
        QCOMPARE(lines.size(), expected.size());
    }

    void the_shots_of_a_hole_are_found_by_an_index()
    {
        const store_fixture store;
        const auto plan = store.outside().rows(
            u"explain query plan select * from Stat_rounds where (date='1') and hole=2 order by shot"_s);
        QCOMPARE(plan.size(), std::size_t(1));
        QVERIFY(plan[0].back().toString().contains(u"shots_by_hole"_s));
    }
};

QTEST_GUILESS_MAIN(test_stored_format)
#include "test_stored_format.moc"
