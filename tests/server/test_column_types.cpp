#include <QScopeGuard>
#include <QTest>

#include <algorithm>
#include <array>
#include <vector>

#include "store/Connection1.h"
#include "store/Recordset.h"
#include "store/schema.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failures.h"
#include "tests/support/outside_connection.h"
#include "tests/support/reader.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A column of the store for each type of values, with values at the ends of its range.
struct sample {
    const char* name;
    QString table;
    QString column;
    std::vector<QVariant> values;
};

/// Real numbers have 15 digits, which every driver returns.
const std::array<sample, 5>& samples()
{
    static const std::array<sample, 5> all{
        sample{"text",
               u"partners"_s,
               u"TEL"_s,
               {u"x "_s, u" "_s, u""_s, u"é'\\"_s, u"007"_s, u"1e5"_s, u"2026-06-14"_s, u"0.50"_s, u"No"_s}},
        sample{"count", u"games"_s, u"missed_18"_s, {0, 5, -1, 32767, -32768}},
        sample{"amount", u"cost"_s, u"fg"_s, {0, 7, 16'777'217, 2'147'483'647, -2'147'483'647}},
        sample{"real",
               u"hand"_s,
               u"hnd"_s,
               {0.0, 5.0, 0.1, -0.375, 72.125, 0.333333333333333, 12345678.9012345}},
        sample{"yes_no", u"Stat_rounds"_s, u"ts"_s, {true, false}}};
    return all;
}

QString declared_type_of(const sample& of)
{
    const auto& columns = find_table(of.table)->columns;
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&of](const column& each) { return each.name == of.column; });
    return declared_type(*found);
}

/// Creates the table again with another type of the column: SQLite cannot change a column.
void change_type_in_file(const store_location& place, const sample& of, const QString& from,
                         const QString& type)
{
    const reader file(place);
    QString creation = file.text(u"select sql from sqlite_master where name = '%1'"_s.arg(of.table));
    const QString before = u"`%1` %2"_s.arg(of.column, from);
    if (!creation.contains(before))
        qFatal("no %s in %s", qUtf8Printable(before), qUtf8Printable(creation));
    creation.replace(before, u"`%1` %2"_s.arg(of.column, type));
    file.write(QStringList{u"drop table "_s + of.table, creation});
}

/// Empties the table and changes the type of the column.
void change_type(const store_location& place, const sample& of, const QString& from, const QString& type)
{
    if (engine_of_tests() != test_engine::mariadb)
        return change_type_in_file(place, of, from, type);
    const outside_connection server(place);
    server.run_unchanged(u"truncate table "_s + of.table);
    server.run_unchanged(u"alter table %1 modify column `%2` %3"_s.arg(of.table, of.column, type));
}

/// Adds a column after those of the program to an empty table.
void add_column(const store_location& place, const QString& to, const QString& definition)
{
    const outside_connection store(place);
    if (engine_of_tests() == test_engine::mariadb) {
        store.run_unchanged(u"alter table %1 add column "_s.arg(to) + definition);
        return;
    }
    // SQLite adds no column that needs a value.
    const QString creation = reader(place).text(u"select sql from sqlite_master where name = '%1'"_s.arg(to));
    store.run(u"drop table "_s + to);
    store.run(creation.chopped(1) + u", " + definition + u')');
}

void drop_column(const store_location& place, const QString& from, const QString& column)
{
    outside_connection(place).run_unchanged(u"alter table %1 drop column %2"_s.arg(from, column));
}

/// Writes a value to a new row. The row is the last one of its table.
void store_value(Connection1& connection, const sample& of, const QVariant& value)
{
    recordset_settings settings;
    settings.name = u"rstest"_s;
    settings.source = u"select * from "_s + of.table;
    Recordset rows(connection, settings);
    rows.Open();
    rows.AddNew();
    rows.Fields(of.column).set(value);
    rows.Update();
}

/// The values that the store has.
std::vector<QVariant> stored_values(Connection1& connection, const sample& of)
{
    recordset_settings settings;
    settings.name = u"rstest"_s;
    settings.source = u"select * from "_s + of.table;
    Recordset rows(connection, settings);
    std::vector<QVariant> values;
    for (rows.Open(); !rows.eof(); rows.MoveNext())
        values.push_back(rows.Fields(of.column).value());
    return values;
}

/// The values of the sample that the store does not have after they were stored without a failure.
QStringList changed_values(Connection1& connection, const sample& of)
{
    std::vector<QVariant> accepted;
    for (const QVariant& value : of.values) {
        if (!failure_of([&] { store_value(connection, of, value); }))
            accepted.push_back(value);
    }
    const std::vector<QVariant> stored = stored_values(connection, of);
    QStringList changed;
    for (std::size_t i = 0; i < accepted.size(); ++i) {
        if (i >= stored.size() || stored[i] != accepted[i])
            changed << u'\'' + accepted[i].toString() + u"' is '" + stored.at(i).toString() + u'\'';
    }
    return changed;
}

/// A type, and the types of values for which it is accepted.
struct type_of_column {
    const char* type;
    const char* accepted;
};

std::vector<type_of_column> types()
{
    if (engine_of_tests() == test_engine::mariadb)
        return {{"text", "text"},
                {"varchar(200)", "text"},
                {"varchar(200) character set latin1", "text"},
                {"char(200)", ""},
                {"char(200) collate utf8mb4_nopad_bin", ""},
                {"datetime", ""},
                {"tinyint", "count amount yes_no"},
                {"int", "count amount yes_no"},
                {"int unsigned", "count amount yes_no"},
                {"decimal(10)", "count amount yes_no"},
                {"decimal(20,2)", "count amount yes_no"},
                {"decimal(30,15)", "count amount yes_no"},
                {"float", "count yes_no"},
                {"double", "count amount real yes_no"},
                {"double unsigned", "count amount real yes_no"},
                {"double(20,2)", "count amount yes_no"},
                {"bit(1)", ""}};
    return {
        {"TEXT", "text"},
        {"VARCHAR(14)", "text"},
        {"CHAR(14)", "text"},
        {"BLOB", "text count amount real yes_no"},
        {"", "text count amount real yes_no"},
        {"SMALLINT", "count amount yes_no"},
        {"INT", "count amount yes_no"},
        {"INTEGER", "count amount yes_no"},
        {"BIGINT", "count amount yes_no"},
        {"UNSIGNED BIG INT", "count amount real yes_no"},
        {"FLOATING POINT", "count amount real yes_no"},
        {"BOOLEAN", "count amount yes_no"},
        {"DOUBLE", "count amount real yes_no"},
        {"REAL", "count amount real yes_no"},
        {"NUMERIC", "count amount real yes_no"},
        {"DECIMAL(10,2)", "count amount real yes_no"},
        {"DATE", "count amount real yes_no"},
    };
}

}  // namespace

/// The types that the columns of a registered source can have.
class test_column_types : public QObject {
    Q_OBJECT

    store_location place_;

private Q_SLOTS:
    void initTestCase()
    {
        place_ = new_program_store();
        Connection1 connection;
        connection.Open(place_);
    }

    void a_type_is_refused_only_if_it_changes_values_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("accepted");
        for (const type_of_column& each : types())
            QTest::newRow(*each.type == '\0' ? "no type" : each.type)
                << QString::fromLatin1(each.type) << QString::fromLatin1(each.accepted);
    }
    void a_type_is_refused_only_if_it_changes_values()
    {
        QFETCH(QString, type);
        QFETCH(QString, accepted);
        QStringList found;
        for (const sample& each : samples()) {
            const QString declared = declared_type_of(each);
            change_type(place_, each, declared, type);
            Connection1 connection;
            const auto failure = failure_of([&] { connection.Open(place_); });
            QStringList changed;
            if (failure) {
                QVERIFY(failure == failure_kind::source_type);
            } else {
                found << QString::fromLatin1(each.name);
                changed = changed_values(connection, each);
            }
            connection.Close();
            change_type(place_, each, type, declared);
            QCOMPARE(changed, QStringList());
        }
        QCOMPARE(found.join(u' '), accepted);
    }

    void a_column_without_null_is_refused_unless_a_new_row_has_a_default_there_data()
    {
        QTest::addColumn<QString>("ending");
        QTest::addColumn<QString>("accepted");
        const QString with_default = u"count amount yes_no"_s;
        // A server drops the default when it changes a column.
        const bool is_server = engine_of_tests() == test_engine::mariadb;
        QTest::newRow("without a default, or with that of the program")
            << u" not null"_s << (is_server ? QString() : with_default);
        QTest::newRow("with a default") << u" not null default 0"_s << with_default;
    }
    void a_column_without_null_is_refused_unless_a_new_row_has_a_default_there()
    {
        QFETCH(QString, ending);
        QFETCH(QString, accepted);
        QStringList found;
        for (const sample& each : samples()) {
            const QString declared = declared_type_of(each);
            change_type(place_, each, declared, declared + ending);
            Connection1 connection;
            const auto failure = failure_of([&] { connection.Open(place_); });
            connection.Close();
            change_type(place_, each, declared + ending, declared);
            if (failure)
                QVERIFY(failure == failure_kind::source_type);
            else
                found << QString::fromLatin1(each.name);
        }
        QCOMPARE(found.join(u' '), accepted);
    }

    void a_further_column_that_needs_a_value_in_a_new_row_is_refused_data()
    {
        QTest::addColumn<QString>("definition");
        QTest::addColumn<bool>("refused");
        QTest::newRow("no null and no default") << u"remark varchar(9) not null"_s << true;
        QTest::newRow("no null and a default") << u"remark varchar(9) not null default 'none'"_s << false;
        QTest::newRow("null and no default") << u"remark varchar(9)"_s << false;
        const bool is_server = engine_of_tests() == test_engine::mariadb;
        QTest::newRow("computed") << u"remark int generated always as (1 + 1) "_s +
                                         (is_server ? u"persistent"_s : u"stored"_s)
                                  << false;
    }
    void a_further_column_that_needs_a_value_in_a_new_row_is_refused()
    {
        QFETCH(QString, definition);
        QFETCH(bool, refused);
        const sample& filled = samples().front();
        add_column(place_, filled.table, definition);
        const auto dropped = qScopeGuard([&] { drop_column(place_, filled.table, u"remark"_s); });
        Connection1 connection;
        try {
            connection.Open(place_);
            QVERIFY(!refused);
            store_value(connection, filled, filled.values.front());
        } catch (const run_time_failure& failure) {
            QVERIFY2(refused, qPrintable(failure.details()));
            QCOMPARE(failure.kind(), failure_kind::source_type);
            QVERIFY2(failure.details().contains(u"remark") && failure.details().contains(u"NOT NULL"),
                     qPrintable(failure.details()));
        }
    }
};

QTEST_GUILESS_MAIN(test_column_types)
#include "test_column_types.moc"
