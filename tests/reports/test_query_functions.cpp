#include <QTemporaryDir>
#include <QTest>

#include "reports/query/report_snapshot.h"
#include "reports/template/template_reader.h"
#include "tests/reports/report_tools.h"
#include "tests/support/reader.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// The functions that the queries of a template can call.
class test_query_functions : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    store_folder store_;

    QString written(const QString& head)
    {
        return template_file_in(folder_.path(), u"try.rpt"_s, head, u"x"_s);
    }

private Q_SLOTS:
    void init() { set_report_store(store_.location()); }

    void functions_with_a_limit_return_the_results_of_the_engine_data()
    {
        QTest::addColumn<QString>("sql");
        for (const QString& sql :
             {u"rtrim('2.500', '0')"_s, u"ltrim('0012', '0')"_s, u"trim('--é--', '-')"_s,
              u"trim('éàxàé', 'àé')"_s, u"trim('xxx', 'x')"_s, u"trim('', 'x')"_s, u"trim('x', '')"_s,
              u"trim(null, 'x')"_s, u"trim('x', null)"_s, u"rtrim(2.50, 5)"_s, u"trim('  x ')"_s,
              u"printf('%.9999c', 'x')"_s, u"trim('😀x😁', '😀')"_s})
            QTest::newRow(qPrintable(sql)) << sql;
    }
    void functions_with_a_limit_return_the_results_of_the_engine()
    {
        QFETCH(QString, sql);
        const QString select = u"select quote("_s + sql + u") as n"_s;
        const template_file source = read_template(written(u"query it = "_s + select + u'\n'));
        const report_snapshot snapshot(source);
        QCOMPARE(snapshot.rows(source.queries[0]).rows[0][0].toString(),
                 reader(store_.location()).text(select));
    }

    void a_number_of_five_digits_and_more_is_grouped_by_thousands_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("result");
        const auto row = [](const QString& sql, const QString& result) {
            QTest::newRow(qPrintable(sql)) << sql << result;
        };
        row(u"grouped(0, ',')"_s, u"0"_s);
        row(u"grouped(9999, ',')"_s, u"9999"_s);
        row(u"grouped(10000, ',')"_s, u"'10,000'"_s);
        row(u"grouped(123456, ' ')"_s, u"'123 456'"_s);
        row(u"grouped(2147483647, ',')"_s, u"'2,147,483,647'"_s);
        row(u"grouped(-9999, ',')"_s, u"-9999"_s);
        row(u"grouped(-10000, ',')"_s, u"'-10,000'"_s);
        row(u"grouped(-123456, ',')"_s, u"'-123,456'"_s);
        row(u"grouped('9999.99', ' ')"_s, u"'9999.99'"_s);
        row(u"grouped('12345.67', ' ')"_s, u"'12 345.67'"_s);
        row(u"grouped('-1234567.80', ',')"_s, u"'-1,234,567.80'"_s);
        row(u"grouped(null, ',')"_s, u"NULL"_s);
    }
    void a_number_of_five_digits_and_more_is_grouped_by_thousands()
    {
        QFETCH(QString, sql);
        QFETCH(QString, result);
        const template_file source =
            read_template(written(u"query it = select quote("_s + sql + u") as n\n"_s));
        const report_snapshot snapshot(source);
        QCOMPARE(snapshot.rows(source.queries[0]).rows[0][0].toString(), result);
    }
};

QTEST_MAIN(test_query_functions)
#include "test_query_functions.moc"
