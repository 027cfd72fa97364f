#include <QTemporaryDir>
#include <QTest>

#include "base/run_time_failure.h"
#include "reports/report_document.h"
#include "reports/report_store.h"
#include "reports/template_fill.h"
#include "store/DataEnvironment1.h"
#include "tests/reports/report_tools.h"
#include "tests/support/reader.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;

namespace {

const QString plain_head = QStringLiteral("page = A4 portrait\n"
                                          "query rounds = select 1 as number, 'a' as name\n"
                                          "    union all select 2, null\n"
                                          "query inner = select :number * 10 as tenfold\n");

}  // namespace

class test_report_template : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    store_folder store_;

    QString written(const QString& head, const QString& body)
    {
        return template_file_in(folder_.path(), QStringLiteral("try.rpt"), head, body);
    }

    QString filled(const QString& head, const QString& body)
    {
        const template_file source = read_template(written(head, body));
        const report_snapshot snapshot(source);
        return fill_body(source, snapshot);
    }

private Q_SLOTS:
    void init() { set_report_store(store_.path()); }

    void a_wrong_template_is_an_error_that_names_file_and_line_data()
    {
        QTest::addColumn<QString>("head");
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("words");
        const auto add = [](const char* name, const QString& head, const QString& body,
                            const QString& words) { QTest::newRow(name) << head << body << words; };
        add("unknown section", plain_head, QStringLiteral("<p>\n{{#rouns}}x{{/rouns}}</p>"),
            QStringLiteral("try.rpt:7: no query or field rouns here"));
        add("unknown field", plain_head, QStringLiteral("{{#rounds}}\n{{nam}}{{/rounds}}"),
            QStringLiteral("try.rpt:7: no field nam here"));
        add("field outside its query", plain_head, QStringLiteral("{{name}}{{#rounds}}{{/rounds}}"),
            QStringLiteral("try.rpt:6: no field name here"));
        add("field of no row", plain_head, QStringLiteral("{{^rounds}}{{name}}{{/rounds}}"),
            QStringLiteral("try.rpt:6: no field name here"));
        add("section not closed", plain_head, QStringLiteral("\n{{#rounds}}"),
            QStringLiteral("try.rpt:7: section rounds is not closed"));
        add("sections crossed", plain_head, QStringLiteral("{{#rounds}}{{#name}}\n{{/rounds}}{{/name}}"),
            QStringLiteral("try.rpt:7: section rounds is closed inside section name"));
        add("section not opened", plain_head, QStringLiteral("{{/rounds}}"),
            QStringLiteral("try.rpt:6: section rounds is closed and was not opened"));
        add("tag not closed", plain_head, QStringLiteral("\n\n{{#rounds"),
            QStringLiteral("try.rpt:8: a tag {{ is not closed"));
        add("unescaped", plain_head, QStringLiteral("{{#rounds}}{{{name}}}{{/rounds}}"),
            QStringLiteral("try.rpt:6: not a field or section"));
        add("another file", plain_head, QStringLiteral("{{>other}}"),
            QStringLiteral("try.rpt:6: not a field or section"));
        add("inner query alone", plain_head, QStringLiteral("{{#inner}}{{tenfold}}{{/inner}}"),
            QStringLiteral("try.rpt:6: query inner takes :number"));
        add("wrong statement", QStringLiteral("page = A4 portrait\n\nquery bad = selekt 1"), QString(),
            QStringLiteral("try.rpt:3: query bad: "));
        add("missing table", QStringLiteral("query bad = select * from nowhere"), QString(),
            QStringLiteral("try.rpt:1: query bad: "));
        add("missing column", plain_head + QStringLiteral("query bad = select nothing from stats\n"),
            QString(), QStringLiteral("try.rpt:5: query bad: "));
        add("missing column of a query above",
            plain_head + QStringLiteral("query bad =\n    select nothing from rounds\n"), QString(),
            QStringLiteral("try.rpt:5: query bad: "));
        add("missing column in double quotes",
            plain_head + QStringLiteral("query bad =\n\n# a remark\n    select number,\n  \"nothing\" from "
                                        "rounds\n"),
            QString(), QStringLiteral("try.rpt:9: query bad: \"nothing\" is quoted"));
        add("double quotes on the first line",
            QStringLiteral("query bad = select \"course_text\" from stats"), QString(),
            QStringLiteral("try.rpt:1: query bad: \"course_text\" is quoted"));
        add("double quotes in an order",
            QStringLiteral("query bad =\n    select 1 as \"Line\"\n    order by \"Line\""), QString(),
            QStringLiteral("try.rpt:3: query bad: \"Line\" is quoted"));
        add("double quotes behind a word that ends with as",
            QStringLiteral("query bad = select hole_1 alias \"x\" from stats"), QString(),
            QStringLiteral("try.rpt:1: query bad: \"x\" is quoted"));
        add("double quotes behind a remark that ends with as",
            QStringLiteral("query bad =\n    select 1, -- the same as\n    \"x\" from stats"), QString(),
            QStringLiteral("try.rpt:3: query bad: \"x\" is quoted"));
        add("writing statement", QStringLiteral("query bad = delete from stats"), QString(),
            QStringLiteral("try.rpt:1: query bad: "));
        add("query twice", QStringLiteral("query one = select 1\nquery one = select 2"), QString(),
            QStringLiteral("try.rpt:2: there are two queries named one"));
        add("no query", QStringLiteral("page = A4 portrait"), QString(),
            QStringLiteral("try.rpt:1: the head names no query"));
        add("unknown setting", QStringLiteral("\npaper = A4"), QString(),
            QStringLiteral("try.rpt:2: unknown setting paper"));
        add("no setting", QStringLiteral("A4"), QString(), QStringLiteral("try.rpt:1: not a setting"));
        add("going on with nothing", QStringLiteral("  A4"), QString(),
            QStringLiteral("try.rpt:1: nothing to go on with"));
        add("unknown paper", QStringLiteral("page = B5 portrait"), QString(),
            QStringLiteral("try.rpt:1: page is A4"));
        add("three margins", QStringLiteral("margins = 1 2 3"), QString(),
            QStringLiteral("try.rpt:1: margins are four numbers"));
        add("margin in words", QStringLiteral("margins = 1 2 3 wide"), QString(),
            QStringLiteral("try.rpt:1: margins are four numbers"));
        add("font without size", QStringLiteral("font = Sans"), QString(),
            QStringLiteral("try.rpt:1: font is a size"));
        add("csv of no query", plain_head + QStringLiteral("csv = other\n"), QString(),
            QStringLiteral("try.rpt:5: no query other"));
        add("csv of an inner query", plain_head + QStringLiteral("csv = inner\n"), QString(),
            QStringLiteral("try.rpt:4: query inner takes values from around it"));
        add("csv separator", QStringLiteral("csv_separator = tab"), QString(),
            QStringLiteral("try.rpt:1: csv_separator is"));
        add("footer field", plain_head + QStringLiteral("footer = {{sheet}}\n"), QString(),
            QStringLiteral("try.rpt:5: no field sheet in a footer"));
        add("drawing without size", plain_head, QStringLiteral("<p>\n<svg viewBox=\"0 0 1 1\"></svg>"),
            QStringLiteral("try.rpt:7: a drawing needs a width and a height"));
        add("broken drawing", plain_head, QStringLiteral("\n\n<svg width=\"1mm\" height=\"1mm\"><g></svg>"),
            QStringLiteral("try.rpt:8: a drawing is no SVG"));
    }
    void a_wrong_template_is_an_error_that_names_file_and_line()
    {
        QFETCH(QString, head);
        QFETCH(QString, body);
        QFETCH(QString, words);
        const QString seen = complaint_about(written(head, body));
        QVERIFY2(seen.startsWith(words), qPrintable(seen));
    }

    void a_template_that_is_not_there_is_an_error_that_names_it()
    {
        const QString seen = complaint_about(folder_.filePath(QStringLiteral("gone.rpt")));
        QVERIFY2(seen.startsWith(QStringLiteral("gone.rpt:1: cannot open ")), qPrintable(seen));
    }

    void a_template_without_a_body_is_an_error()
    {
        const QString path = folder_.filePath(QStringLiteral("head.rpt"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("page = A4 portrait\nquery one = select 1\n");
        file.close();
        QCOMPARE(complaint_about(path),
                 QStringLiteral("head.rpt:3: no line --- between the head and the body"));
    }

    void what_editors_leave_in_a_file_does_no_harm_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray plain = "query one = select 1 as n\n---\n{{#one}}{{n}}{{/one}}";
        QTest::newRow("line ends of two characters") << QByteArray(plain).replace("\n", "\r\n");
        QTest::newRow("mark of the encoding") << "\xEF\xBB\xBF" + plain;
        QTest::newRow("blanks behind the line of dashes") << QByteArray(plain).replace("---", "---  ");
    }
    void what_editors_leave_in_a_file_does_no_harm()
    {
        QFETCH(QByteArray, bytes);
        const QString path = folder_.filePath(QStringLiteral("edited.rpt"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        file.close();
        const template_file source = read_template(path);
        QCOMPARE(source.queries.front().name, QStringLiteral("one"));
        QCOMPARE(fill_body(source, report_snapshot(source)), QStringLiteral("1"));
    }

    void a_store_that_cannot_be_opened_is_a_failure_of_the_store()
    {
        set_report_store(folder_.filePath(QStringLiteral("nowhere/none.sqlite")));
        const QString path = written(plain_head, QStringLiteral("x"));
        try {
            render_report(path);
            QFAIL("a report without a store");
        } catch (const run_time_failure& failure) {
            QCOMPARE(failure.kind(), failure_kind::store_unreachable);
        }
    }

    void values_are_escaped_wherever_they_stand()
    {
        const QString head = QStringLiteral("query it = select 'A & B <c> \"d\"' as course");
        QCOMPARE(filled(head, QStringLiteral("{{#it}}<p title=\"{{course}}\">{{course}}</p>{{/it}}")),
                 QStringLiteral("<p title=\"A &amp; B &lt;c&gt; &quot;d&quot;\">"
                                "A &amp; B &lt;c&gt; &quot;d&quot;</p>"));
    }

    void null_prints_as_nothing_and_a_number_as_short_as_it_is_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("printed");
        QTest::newRow("null") << QStringLiteral("null") << QString();
        QTest::newRow("nothing") << QStringLiteral("''") << QString();
        QTest::newRow("zero") << QStringLiteral("0") << QStringLiteral("0");
        QTest::newRow("whole") << QStringLiteral("3.0") << QStringLiteral("3");
        QTest::newRow("half") << QStringLiteral("2.5") << QStringLiteral("2.5");
        QTest::newRow("minus") << QStringLiteral("-4") << QStringLiteral("-4");
        QTest::newRow("blanks") << QStringLiteral("' ALL'") << QStringLiteral(" ALL");
    }
    void null_prints_as_nothing_and_a_number_as_short_as_it_is()
    {
        QFETCH(QString, value);
        QFETCH(QString, printed);
        QCOMPARE(filled(QStringLiteral("query it = select %1 as v").arg(value),
                        QStringLiteral("{{#it}}[{{v}}]{{/it}}")),
                 u'[' + printed + u']');
    }

    void a_section_of_a_field_stands_when_there_is_something_other_than_0_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("seen");
        QTest::newRow("null") << QStringLiteral("null") << QStringLiteral("no");
        QTest::newRow("nothing") << QStringLiteral("''") << QStringLiteral("no");
        QTest::newRow("zero") << QStringLiteral("0") << QStringLiteral("no");
        QTest::newRow("zero with decimals") << QStringLiteral("0.0") << QStringLiteral("no");
        QTest::newRow("number") << QStringLiteral("7") << QStringLiteral("yes");
        QTest::newRow("text") << QStringLiteral("'x'") << QStringLiteral("yes");
    }
    void a_section_of_a_field_stands_when_there_is_something_other_than_0()
    {
        QFETCH(QString, value);
        QFETCH(QString, seen);
        QCOMPARE(filled(QStringLiteral("query it = select %1 as v").arg(value),
                        QStringLiteral("{{#it}}{{#v}}yes{{/v}}{{^v}}no{{/v}}{{/it}}")),
                 seen);
    }

    void a_section_of_a_query_stands_once_a_row_and_its_absence_where_there_is_none()
    {
        const QString head = QStringLiteral("query some = select 1 as n union all select 2\n"
                                            "query none = select 1 as n where 0");
        QCOMPARE(filled(head, QStringLiteral("{{#some}}{{n}},{{/some}}{{#none}}x{{/none}}"
                                             "{{^some}}y{{/some}}{{^none}}empty{{/none}}")),
                 QStringLiteral("1,2,empty"));
    }

    void a_query_selects_from_the_queries_above_it()
    {
        const QString head = QStringLiteral("query one = select 4 as n\n"
                                            "query two = with t as (select n * n as m from one)\n"
                                            "    select m + 1 as m from t\n"
                                            "query three = select one.n + two.m as sum from one, two");
        QCOMPARE(filled(head, QStringLiteral("{{#three}}{{sum}}{{/three}}")), QStringLiteral("21"));
    }

    void an_inner_query_takes_values_from_the_rows_around_it()
    {
        QCOMPARE(filled(plain_head, QStringLiteral("{{#rounds}}{{number}}:{{#inner}}{{tenfold}}{{/inner}} "
                                                   "{{/rounds}}")),
                 QStringLiteral("1:10 2:20 "));
    }

    void a_colon_in_a_text_of_a_statement_is_no_parameter()
    {
        const template_query query{QStringLiteral("q"), QStringLiteral("select ':a', \":b\" -- :c\n, :d")};
        QCOMPARE(report_snapshot::parameters_of(query), QStringList{QStringLiteral("d")});
    }

    void double_quotes_stand_in_headings_texts_and_remarks()
    {
        const QString head = QStringLiteral("query it =\n    select 'say \"a\", it''s \"b\"' as \"One\",\n"
                                            "        2 AS\n    \"A \", -- nor \"here\"\n"
                                            "    /* nor \"here\" */ 3 as n\n");
        QCOMPARE(filled(head, QStringLiteral("{{#it}}{{One}} {{n}}{{/it}}")),
                 QStringLiteral("say &quot;a&quot;, it's &quot;b&quot; 3"));
    }

    void a_report_sees_committed_rows_only()
    {
        const QString path = written(QStringLiteral("query it = select course_text as c from stats"),
                                     QStringLiteral("{{#it}}{{c}}{{/it}}"));
        const template_file source = read_template(path);
        reader(store_.path())
            .write(QStringLiteral("update stats set course_text = 'before' where "
                                  "rowid = 1"));
        Connection1& program = data_environment().connection;
        program.Execute(QStringLiteral("begin"));
        program.Execute(QStringLiteral("update stats set course_text = 'after' where rowid = 1"));
        QVERIFY(fill_body(source, report_snapshot(source)).contains(QStringLiteral("before")));
        program.Execute(QStringLiteral("commit"));
        QVERIFY(fill_body(source, report_snapshot(source)).contains(QStringLiteral("after")));
    }
};

QTEST_MAIN(test_report_template)
#include "test_report_template.moc"
