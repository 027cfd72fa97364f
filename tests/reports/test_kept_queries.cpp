#include <QTemporaryDir>
#include <QTest>

#include "reports/query/kept_queries.h"
#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "tests/reports/report_tools.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// The rows of a query that queries below it select from.
class test_kept_queries : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    store_folder store_;

    QString printed(const QString& queries, const QString& body)
    {
        const QString path =
            template_file_in(folder_.path(), u"kept.rpt"_s, u"page = A4 portrait\n"_s + queries, body);
        const QString pdf = folder_.filePath(u"kept.pdf"_s);
        render_report(path)->save_pdf(pdf);
        return pdf_pages(pdf).value(0).simplified();
    }

private Q_SLOTS:
    void init() { set_report_store(store_.location()); }

    void queries_that_select_from_a_query_get_the_same_rows_of_one_run()
    {
        const QStringList texts =
            printed(u"query one = select abs(random()) as x\nquery two = select x from one\n"
                    u"query three = select x from two\n"_s,
                    u"{{#two}}{{x}}{{/two}} {{#three}}{{x}}{{/three}}"_s)
                .split(u' ');
        QCOMPARE(texts.size(), 2);
        QVERIFY(texts[0].size() > 5);
        QCOMPARE(texts[1], texts[0]);
    }

    void kept_rows_have_the_order_the_types_and_the_missing_values_of_the_query()
    {
        const QString text = printed(
            u"query one = select n, n / 2.0 as half, nullif(n, 2) as missing, '0' || n as word "
            u"from (select row_number() over () as n from stats limit 3) order by n desc\n"
            u"query two = select n / 2 as whole, half, missing is null as gone, typeof(word) as kind, word from one\n"_s,
            u"{{#two}}{{whole}} {{half}} {{gone}} {{kind}} {{word}};{{/two}}"_s);
        QCOMPARE(text, u"1 1.5 0 text 03;1 1 1 text 02;0 0.5 0 text 01;"_s);
    }

    void only_columns_of_one_selection_with_different_names_may_be_kept_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QStringList>("columns");
        QTest::addColumn<bool>("may");
        const QStringList x{u"x"_s};
        QTest::newRow("selection") << u"select x from r_cost"_s << x << true;
        QTest::newRow("words in a text") << u"select 'union values' as x -- except"_s << x << true;
        QTest::newRow("union") << u"select 1 as x\nUNION ALL select 'a'"_s << x << false;
        QTest::newRow("values") << u"with l(x) as (values (1)) select x from l"_s << x << false;
        QTest::newRow("one name twice") << u"select 1 as x, 2 as X"_s << QStringList{u"x"_s, u"X"_s} << false;
    }
    void only_columns_of_one_selection_with_different_names_may_be_kept()
    {
        QFETCH(QString, sql);
        QFETCH(QStringList, columns);
        QTEST(may_be_kept({u"q"_s, sql, 1}, columns), "may");
    }

    void a_query_is_named_only_by_those_below_it()
    {
        template_file source;
        source.queries = {{u"one"_s, u"select 1 from Two"_s, 1},
                          {u"two"_s, u"select x from ONE, ones"_s, 2},
                          {u"ones"_s, u"select 1"_s, 3}};
        QVERIFY(is_named_below(source, source.queries[0]));
        QVERIFY(!is_named_below(source, source.queries[1]));
        QVERIFY(!is_named_below(source, source.queries[2]));
    }
};

QTEST_MAIN(test_kept_queries)
#include "test_kept_queries.moc"
