#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include "base/run_time_failure.h"
#include "reports/fill/template_fill.h"
#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "reports/template/template_reader.h"
#include "store/Connection1.h"
#include "tests/reports/report_tools.h"
#include "tests/support/outside_connection.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString plain_head = u"page = A4 portrait\n"
                           u"query rounds = select 1 as number, 'a' as name\n"
                           u"    union all select 2, null\n"
                           u"query inner = select :number * 10 as tenfold\n"_s;

}  // namespace

class test_report_template : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    store_folder store_;

    QString written(const QString& head, const QString& body)
    {
        return template_file_in(folder_.path(), u"try.rpt"_s, head, body);
    }

    QString filled(const QString& head, const QString& body)
    {
        const template_file source = read_template(written(head, body));
        const report_snapshot snapshot(source);
        return fill_body(source, snapshot);
    }

private Q_SLOTS:
    void init() { set_report_store(store_.location()); }

    void a_wrong_template_is_an_error_that_names_file_and_line_data()
    {
        QTest::addColumn<QString>("head");
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("words");
        const auto add = [](const char* name, const QString& head, const QString& body,
                            const QString& words) { QTest::newRow(name) << head << body << words; };
        add("unknown section", plain_head, u"<p>\n{{#rouns}}x{{/rouns}}</p>"_s,
            u"try.rpt:7: no query or field rouns here"_s);
        add("unknown field", plain_head, u"{{#rounds}}\n{{nam}}{{/rounds}}"_s,
            u"try.rpt:7: no field nam here"_s);
        add("field outside its query", plain_head, u"{{name}}{{#rounds}}{{/rounds}}"_s,
            u"try.rpt:6: no field name here"_s);
        add("field of no row", plain_head, u"{{^rounds}}{{name}}{{/rounds}}"_s,
            u"try.rpt:6: no field name here"_s);
        add("section not closed", plain_head, u"\n{{#rounds}}"_s,
            u"try.rpt:7: section rounds is not closed"_s);
        add("sections crossed", plain_head, u"{{#rounds}}{{#name}}\n{{/rounds}}{{/name}}"_s,
            u"try.rpt:7: section rounds is closed inside section name"_s);
        add("section not opened", plain_head, u"{{/rounds}}"_s,
            u"try.rpt:6: section rounds is closed and was not opened"_s);
        add("tag not closed", plain_head, u"\n\n{{#rounds"_s, u"try.rpt:8: a tag {{ is not closed"_s);
        add("unescaped", plain_head, u"{{#rounds}}{{{name}}}{{/rounds}}"_s,
            u"try.rpt:6: not a field or section"_s);
        add("another file", plain_head, u"{{>other}}"_s, u"try.rpt:6: not a field or section"_s);
        add("inner query alone", plain_head, u"{{#inner}}{{tenfold}}{{/inner}}"_s,
            u"try.rpt:6: query inner takes :number"_s);
        add("wrong statement", u"page = A4 portrait\n\nquery bad = selekt 1"_s, QString(),
            u"try.rpt:3: query bad: "_s);
        add("missing table", u"query bad = select * from nowhere"_s, QString(), u"try.rpt:1: query bad: "_s);
        add("missing column", plain_head + u"query bad = select nothing from stats\n"_s, QString(),
            u"try.rpt:5: query bad: "_s);
        add("missing column of a query above",
            plain_head + u"query bad =\n    select nothing from rounds\n"_s, QString(),
            u"try.rpt:5: query bad: "_s);
        add("missing column in double quotes",
            plain_head + u"query bad =\n\n# a remark\n    select number,\n  \"nothing\" from "
                         u"rounds\n"_s,
            QString(), u"try.rpt:9: query bad: \"nothing\" is quoted and is no heading after as"_s);
        add("double quotes on the first line", u"query bad = select \"course_text\" from stats"_s, QString(),
            u"try.rpt:1: query bad: \"course_text\" is quoted"_s);
        add("double quotes in an order", u"query bad =\n    select 1 as \"Line\"\n    order by \"Line\""_s,
            QString(), u"try.rpt:3: query bad: \"Line\" is quoted"_s);
        add("double quotes after a name that ends with as",
            u"query bad = select hole_1 alias \"x\" from stats"_s, QString(),
            u"try.rpt:1: query bad: \"x\" is quoted"_s);
        add("double quotes after a comment that ends with as",
            u"query bad =\n    select 1, -- the same as\n    \"x\" from stats"_s, QString(),
            u"try.rpt:3: query bad: \"x\" is quoted"_s);
        add("writing statement", u"query bad = delete from stats"_s, QString(), u"try.rpt:1: query bad: "_s);
        add("query twice", u"query one = select 1\nquery one = select 2"_s, QString(),
            u"try.rpt:2: there are two queries named one"_s);
        add("no query", u"page = A4 portrait"_s, QString(), u"try.rpt:1: the head names no query"_s);
        add("unknown setting", u"\npaper = A4"_s, QString(), u"try.rpt:2: unknown setting paper"_s);
        add("no setting", u"A4"_s, QString(), u"try.rpt:1: not a setting"_s);
        add("continuation of nothing", u"  A4"_s, QString(), u"try.rpt:1: no setting to continue:   A4"_s);
        add("unknown paper", u"page = B5 portrait"_s, QString(), u"try.rpt:1: page is A4"_s);
        add("three margins", u"margins = 1 2 3"_s, QString(), u"try.rpt:1: margins are four numbers"_s);
        add("margin that is no number", u"margins = 1 2 3 wide"_s, QString(),
            u"try.rpt:1: margins are four numbers"_s);
        add("font without size", u"font = Sans"_s, QString(), u"try.rpt:1: font is a size"_s);
        add("csv of no query", plain_head + u"csv = other\n"_s, QString(), u"try.rpt:5: no query other"_s);
        add("csv of an inner query", plain_head + u"csv = inner\n"_s, QString(),
            u"try.rpt:4: query inner takes values from around it and cannot run alone"_s);
        add("csv separator", u"csv_separator = tab"_s, QString(), u"try.rpt:1: csv_separator is"_s);
        add("footer field", plain_head + u"footer = {{sheet}}\n"_s, QString(),
            u"try.rpt:5: no field sheet in a footer"_s);
        add("drawing without size", plain_head, u"<p>\n<svg viewBox=\"0 0 1 1\"></svg>"_s,
            u"try.rpt:7: a drawing needs a width and a height"_s);
        add("broken drawing", plain_head, u"\n\n<svg width=\"1mm\" height=\"1mm\"><g></svg>"_s,
            u"try.rpt:8: a drawing is no SVG"_s);
    }
    void a_wrong_template_is_an_error_that_names_file_and_line()
    {
        QFETCH(QString, head);
        QFETCH(QString, body);
        QFETCH(QString, words);
        const QString seen = failure_of_template(written(head, body));
        QVERIFY2(seen.startsWith(words), qPrintable(seen));
    }

    void a_template_that_is_not_there_is_an_error_that_names_it()
    {
        const QString seen = failure_of_template(folder_.filePath(u"gone.rpt"_s));
        QVERIFY2(seen.startsWith(u"gone.rpt:1: cannot open "_s), qPrintable(seen));
    }

    void a_template_without_a_body_is_an_error()
    {
        const QString path = folder_.filePath(u"head.rpt"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("page = A4 portrait\nquery one = select 1\n");
        file.close();
        QCOMPARE(failure_of_template(path), u"head.rpt:3: no line --- between the head and the body"_s);
    }

    void line_ends_marks_and_blanks_of_editors_are_ignored_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray plain = "query one = select 1 as n\n---\n{{#one}}{{n}}{{/one}}";
        QTest::newRow("line ends of two characters") << QByteArray(plain).replace("\n", "\r\n");
        QTest::newRow("mark of the encoding") << "\xEF\xBB\xBF" + plain;
        QTest::newRow("blanks after the line of dashes") << QByteArray(plain).replace("---", "---  ");
    }
    void line_ends_marks_and_blanks_of_editors_are_ignored()
    {
        QFETCH(QByteArray, bytes);
        const QString path = folder_.filePath(u"edited.rpt"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        file.close();
        const template_file source = read_template(path);
        QCOMPARE(source.queries.front().name, u"one"_s);
        QCOMPARE(fill_body(source, report_snapshot(source)), u"1"_s);
    }

    void a_store_that_cannot_be_opened_is_a_failure_of_the_store()
    {
        set_report_store(folder_.filePath(u"nowhere/none.sqlite"_s));
        const QString path = written(plain_head, u"x"_s);
        try {
            render_report(path);
            QFAIL("a report without a store");
        } catch (const run_time_failure& failure) {
            QCOMPARE(failure.kind(), failure_kind::store_unreachable);
        }
    }

    void values_are_escaped_in_texts_and_attributes()
    {
        const QString head = u"query it = select 'A & B <c> \"d\"' as course"_s;
        QCOMPARE(filled(head, u"{{#it}}<p title=\"{{course}}\">{{course}}</p>{{/it}}"_s),
                 u"<p title=\"A &amp; B &lt;c&gt; &quot;d&quot;\">"
                 u"A &amp; B &lt;c&gt; &quot;d&quot;</p>"_s);
    }

    void null_prints_as_nothing_and_a_number_as_short_as_it_is_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("printed");
        QTest::newRow("null") << u"null"_s << QString();
        QTest::newRow("nothing") << u"''"_s << QString();
        QTest::newRow("zero") << u"0"_s << u"0"_s;
        QTest::newRow("whole") << u"3.0"_s << u"3"_s;
        QTest::newRow("half") << u"2.5"_s << u"2.5"_s;
        QTest::newRow("minus") << u"-4"_s << u"-4"_s;
        QTest::newRow("blanks") << u"' ALL'"_s << u" ALL"_s;
    }
    void null_prints_as_nothing_and_a_number_as_short_as_it_is()
    {
        QFETCH(QString, value);
        QFETCH(QString, printed);
        QCOMPARE(filled(u"query it = select %1 as v"_s.arg(value), u"{{#it}}[{{v}}]{{/it}}"_s),
                 u'[' + printed + u']');
    }

    void a_section_of_a_field_is_shown_if_the_field_is_not_empty_and_not_0_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("seen");
        QTest::newRow("null") << u"null"_s << u"no"_s;
        QTest::newRow("nothing") << u"''"_s << u"no"_s;
        QTest::newRow("zero") << u"0"_s << u"no"_s;
        QTest::newRow("zero with decimals") << u"0.0"_s << u"no"_s;
        QTest::newRow("number") << u"7"_s << u"yes"_s;
        QTest::newRow("text") << u"'x'"_s << u"yes"_s;
    }
    void a_section_of_a_field_is_shown_if_the_field_is_not_empty_and_not_0()
    {
        QFETCH(QString, value);
        QFETCH(QString, seen);
        QCOMPARE(filled(u"query it = select %1 as v"_s.arg(value),
                        u"{{#it}}{{#v}}yes{{/v}}{{^v}}no{{/v}}{{/it}}"_s),
                 seen);
    }

    void a_section_of_a_query_is_shown_for_each_row_and_its_inverse_if_there_is_none()
    {
        const QString head = u"query some = select 1 as n union all select 2\n"
                             u"query none = select 1 as n where 0"_s;
        QCOMPARE(filled(head, u"{{#some}}{{n}},{{/some}}{{#none}}x{{/none}}"
                              u"{{^some}}y{{/some}}{{^none}}empty{{/none}}"_s),
                 u"1,2,empty"_s);
    }

    void a_query_selects_from_the_queries_above_it()
    {
        const QString head = u"query one = select 4 as n\n"
                             u"query two = with t as (select n * n as m from one)\n"
                             u"    select m + 1 as m from t\n"
                             u"query three = select one.n + two.m as sum from one, two"_s;
        QCOMPARE(filled(head, u"{{#three}}{{sum}}{{/three}}"_s), u"21"_s);
    }

    void an_inner_query_takes_values_from_the_rows_around_it()
    {
        QCOMPARE(filled(plain_head, u"{{#rounds}}{{number}}:{{#inner}}{{tenfold}}{{/inner}} "
                                    u"{{/rounds}}"_s),
                 u"1:10 2:20 "_s);
    }

    void a_colon_in_a_text_of_a_statement_is_no_parameter()
    {
        const template_query query{u"q"_s, u"select ':a', \":b\" -- :c\n, :d"_s};
        QCOMPARE(report_snapshot::parameters_of(query), QStringList{u"d"_s});
    }

    void double_quotes_may_be_in_headings_texts_and_comments()
    {
        const QString head = u"query it =\n    select 'say \"a\", it''s \"b\"' as \"One\",\n"
                             u"        2 AS\n    \"A \", -- nor \"here\"\n"
                             u"    /* nor \"here\" */ 3 as n\n"_s;
        QCOMPARE(filled(head, u"{{#it}}{{One}} {{n}}{{/it}}"_s),
                 u"say &quot;a&quot;, it's &quot;b&quot; 3"_s);
    }

    void a_report_reads_committed_rows_only()
    {
        const QString path =
            written(u"query it = select course_text as c from stats"_s, u"{{#it}}{{c}}{{/it}}"_s);
        const template_file source = read_template(path);
        const outside_connection other(store_.location());
        other.run(u"update stats set course_text = 'before' where rowid = 1"_s);
        other.run(u"begin"_s);
        other.run(u"update stats set course_text = 'after' where rowid = 1"_s);
        QVERIFY(fill_body(source, report_snapshot(source)).contains(u"before"_s));
        other.run(u"commit"_s);
        QVERIFY(fill_body(source, report_snapshot(source)).contains(u"after"_s));
    }

    void a_report_on_a_file_does_not_read_rows_that_the_program_has_not_committed()
    {
        // A registered source is read on the connection of the program.
        const QTemporaryDir folder;
        const store_location file = store_location::file(folder.filePath(u"Verdbase.db"_s));
        Connection1 program;
        program.Open(file);
        set_report_store(file);
        const auto restored = qScopeGuard([this] { set_report_store(store_.location()); });
        const QString path =
            written(u"query it = select course_text as c from stats"_s, u"{{#it}}{{c}}{{/it}}"_s);
        const template_file source = read_template(path);
        program.Execute(u"update stats set course_text = 'before' where rowid = 1"_s);
        program.Execute(u"begin"_s);
        program.Execute(u"update stats set course_text = 'after' where rowid = 1"_s);
        QVERIFY(fill_body(source, report_snapshot(source)).contains(u"before"_s));
        program.Execute(u"commit"_s);
        QVERIFY(fill_body(source, report_snapshot(source)).contains(u"after"_s));
    }
};

QTEST_MAIN(test_report_template)
#include "test_report_template.moc"
