#include <QTest>

#include "store/engines/source_tables.h"
#include "store/schema.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;

namespace {

/// The tables of the store as a source has them.
source_tables complete_tables()
{
    source_tables tables;
    for (const table& each : schema()) {
        for (const column& column : each.columns)
            tables[each.name.toLower()] << source_column{column.name, {}, column_content::anything};
    }
    return tables;
}

}  // namespace

/// The check of the tables of a registered source.
class test_source_tables : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_source_without_tables_of_the_store_has_none()
    {
        QVERIFY(check_tables({}) == tables_found::none);
        QVERIFY(check_tables({{u"invoices"_s, {{u"number"_s}}}}) == tables_found::none);
    }

    void a_complete_source_has_all_tables_whatever_the_case_of_names()
    {
        source_tables tables = complete_tables();
        QVERIFY(check_tables(tables) == tables_found::all);
        for (source_column& column : tables[u"games"_s])
            column.name = column.name.toUpper();
        QVERIFY(check_tables(tables) == tables_found::all);
    }

    void other_tables_and_columns_after_the_last_are_ignored()
    {
        source_tables tables = complete_tables();
        tables[u"invoices"_s] << source_column{u"number"_s};
        tables[u"games"_s] << source_column{u"remark"_s};
        QVERIFY(check_tables(tables) == tables_found::all);
    }

    void a_source_that_lacks_tables_names_them()
    {
        source_tables tables = complete_tables();
        tables.remove(u"partners"_s);
        tables.remove(u"cryst_hand"_s);
        QVERIFY(check_tables(tables) == tables_found::some);
        QCOMPARE(missing_tables(tables), (QStringList{u"partners"_s, u"Cryst_hand"_s}));
    }

    void a_column_that_is_missing_renamed_or_moved_is_refused()
    {
        using columns = QList<source_column>;
        for (const auto& change : std::initializer_list<void (*)(columns&)>{
                 [](columns& all) { all.removeLast(); }, [](columns& all) { all[1].name = u"course"_s; },
                 [](columns& all) { all.swapItemsAt(0, 1); },
                 [](columns& all) { all.prepend({u"number"_s}); }}) {
            source_tables tables = complete_tables();
            change(tables[u"games"_s]);
            QVERIFY(failure_of([&] { check_tables(tables); }) == failure_kind::source_column);
        }
    }

    void a_column_whose_type_does_not_fit_is_refused_with_both_types()
    {
        source_tables tables = complete_tables();
        tables[u"hand"_s][0] = {u"hnd"_s, u"int"_s, column_content::whole_numbers};
        try {
            check_tables(tables);
            QFAIL("the column was accepted");
        } catch (const run_time_failure& failure) {
            QCOMPARE(failure.kind(), failure_kind::source_type);
            QCOMPARE(failure.details(), u"hand, 1: hnd: int ≠ DOUBLE"_s);
        }
    }

    void a_column_that_is_computed_or_too_short_for_a_key_is_refused_with_both_types_data()
    {
        QTest::addColumn<bool>("computed");
        QTest::addColumn<int>("characters");
        QTest::addColumn<QString>("details");
        QTest::newRow("computed") << true << 0 << u"games, 1: date: varchar GENERATED ≠ VARCHAR(14)"_s;
        QTest::newRow("too short") << false << 13 << u"games, 1: date: varchar ≠ VARCHAR(14)"_s;
        QTest::newRow("long enough") << false << 14 << QString();
        QTest::newRow("of any length") << false << 0 << QString();
    }
    void a_column_that_is_computed_or_too_short_for_a_key_is_refused_with_both_types()
    {
        QFETCH(bool, computed);
        QFETCH(int, characters);
        source_tables tables = complete_tables();
        source_column& key = tables[u"games"_s][0];
        key.type = u"varchar"_s;
        key.computed = computed;
        key.characters = characters;
        QString details;
        try {
            check_tables(tables);
        } catch (const run_time_failure& failure) {
            QCOMPARE(failure.kind(), failure_kind::source_type);
            details = failure.details();
        }
        QTEST(details, "details");
    }

    void a_column_that_refuses_the_value_of_a_new_row_is_refused_with_both_types_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<int>("place");
        QTest::addColumn<bool>("has_default");
        QTest::addColumn<QString>("details");
        QTest::newRow("Null, no default")
            << u"hand"_s << 0 << false << u"hand, 1: hnd: int NOT NULL ≠ DOUBLE"_s;
        QTest::newRow("Null, a default")
            << u"hand"_s << 0 << true << u"hand, 1: hnd: int NOT NULL ≠ DOUBLE"_s;
        QTest::newRow("after the last column, no default")
            << u"hand"_s << 1 << false << u"hand, 2: further: int NOT NULL ≠ int"_s;
        QTest::newRow("after the last column, a default") << u"hand"_s << 1 << true << QString();
    }
    void a_column_that_refuses_the_value_of_a_new_row_is_refused_with_both_types()
    {
        QFETCH(QString, table);
        QFETCH(int, place);
        QFETCH(bool, has_default);
        source_tables tables = complete_tables();
        QList<source_column>& columns = tables[table];
        if (columns.size() == place)
            columns << source_column{u"further"_s};
        columns[place].type = u"int"_s;
        columns[place].not_null = true;
        columns[place].default_value = has_default ? u"7"_s : QString();
        QString details;
        try {
            check_tables(tables);
        } catch (const run_time_failure& failure) {
            QCOMPARE(failure.kind(), failure_kind::source_type);
            details = failure.details();
        }
        QTEST(details, "details");
    }

    void a_type_of_a_server_fits_the_columns_whose_values_it_stores_unchanged_data()
    {
        add_types();
        type("text", content_in_mariadb(u"text"_s, false), u"text"_s);
        type("varchar", content_in_mariadb(u"VARCHAR"_s, false), u"text"_s);
        type("char", content_in_mariadb(u"char"_s, false), QString());
        type("smallint", content_in_mariadb(u"smallint"_s, false), u"count amount yes_no"_s);
        type("tinyint", content_in_mariadb(u"tinyint"_s, false), u"count amount yes_no"_s);
        type("decimal", content_in_mariadb(u"decimal"_s, false), u"count amount yes_no"_s);
        type("decimal with decimals", content_in_mariadb(u"decimal"_s, true), u"count amount yes_no"_s);
        type("float", content_in_mariadb(u"float"_s, false), u"count yes_no"_s);
        type("double", content_in_mariadb(u"double"_s, false), u"count amount real yes_no"_s);
        type("double with decimals", content_in_mariadb(u"double"_s, true), u"count amount yes_no"_s);
        type("datetime", content_in_mariadb(u"datetime"_s, false), QString());
        type("blob", content_in_mariadb(u"blob"_s, false), QString());
    }
    void a_type_of_a_server_fits_the_columns_whose_values_it_stores_unchanged() { check_type(); }

    void a_type_of_a_file_fits_the_columns_whose_values_it_stores_unchanged_data()
    {
        add_types();
        type("SMALLINT", content_in_sqlite(u"SMALLINT"_s), u"count amount yes_no"_s);
        type("unsigned int", content_in_sqlite(u"unsigned int"_s), u"count amount yes_no"_s);
        type("UNSIGNED BIG INT", content_in_sqlite(u"UNSIGNED BIG INT"_s), u"count amount real yes_no"_s);
        type("BOOLEAN", content_in_sqlite(u"BOOLEAN"_s), u"count amount yes_no"_s);
        type("DOUBLE", content_in_sqlite(u"DOUBLE"_s), u"count amount real yes_no"_s);
        type("VARCHAR(14)", content_in_sqlite(u"varchar(14)"_s), u"text"_s);
        type("TEXT", content_in_sqlite(u"TEXT"_s), u"text"_s);
        type("DATE", content_in_sqlite(u"DATE"_s), u"count amount real yes_no"_s);
        type("none", content_in_sqlite(QString()), u"text count amount real yes_no"_s);
    }
    void a_type_of_a_file_fits_the_columns_whose_values_it_stores_unchanged() { check_type(); }

private:
    static void add_types()
    {
        QTest::addColumn<column_content>("content");
        QTest::addColumn<QString>("fitting");
    }
    /// `fitting` names the types of columns that fit.
    static void type(const char* name, column_content content, const QString& fitting)
    {
        QTest::newRow(name) << content << fitting;
    }
    static void check_type()
    {
        QFETCH(column_content, content);
        QFETCH(QString, fitting);
        QStringList found;
        const std::pair<column_type, QString> types[]{{column_type::text, u"text"_s},
                                                      {column_type::count, u"count"_s},
                                                      {column_type::amount, u"amount"_s},
                                                      {column_type::real, u"real"_s},
                                                      {column_type::yes_no, u"yes_no"_s}};
        for (const auto& [type, name] : types) {
            if (fits(content, type))
                found << name;
        }
        QCOMPARE(found.join(u' '), fitting);
        QVERIFY(fits(content, column_type::any));
    }
};

QTEST_GUILESS_MAIN(test_source_tables)
#include "test_source_tables.moc"
