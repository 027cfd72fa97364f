#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "reports/fill/template_fill.h"
#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "reports/template/template_reader.h"
#include "tests/reports/report_tools.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QByteArray words = "layout = try.layout\n"
                         "title = Tries\n"
                         "footer = Page {{page}}\n"
                         "csv_separator = ;\n"
                         "\n"
                         "[words]\n"
                         "# The caption of the rows\n"
                         "caption = Strokes\n";

const QByteArray layout = "page = A5 landscape\n"
                          "query rows =\n"
                          "    select 1 as n union all\n"
                          "    select 2\n"
                          "---\n"
                          "<p>{{title}}</p>\n"
                          "{{#rows}}<p>{{words.caption}} {{n}}</p>{{/rows}}\n";

}  // namespace

/// Templates that name a layout. What holds for every template is tested with whole templates.
class test_template_layouts : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    store_folder store_;

    QString written(const QString& name, const QByteArray& bytes)
    {
        const QString path = folder_.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }

    QString try_template(const QByteArray& its_words, const QByteArray& its_layout)
    {
        written(u"try.layout"_s, its_layout);
        return written(u"try.rpt"_s, its_words);
    }

    QString filled(const QByteArray& its_words, const QByteArray& its_layout)
    {
        const template_file source = read_template(try_template(its_words, its_layout));
        return fill_body(source, report_snapshot(source));
    }

private Q_SLOTS:
    void init() { set_report_store(store_.location()); }

    void a_template_takes_its_page_queries_and_body_from_its_layout()
    {
        const template_file source = read_template(try_template(words, layout));
        QCOMPARE(source.file_name, u"try.rpt"_s);
        QCOMPARE(source.layout_name, u"try.layout"_s);
        QCOMPARE(source.paper, QPageSize::A5);
        QCOMPARE(source.title, u"Tries"_s);
        QCOMPARE(source.footer, u"Page {{page}}"_s);
        QCOMPARE(source.csv_separator, QChar(u';'));
        QCOMPARE(fill_body(source, report_snapshot(source)),
                 u"<p>Tries</p>\n<p>Strokes 1</p><p>Strokes 2</p>\n"_s);
    }

    void a_report_with_a_layout_has_the_name_of_its_template()
    {
        QCOMPARE(render_report(try_template(words, layout))->base_name(), u"try"_s);
    }

    void a_word_is_printed_as_it_is_written_data()
    {
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<QString>("in_body");
        QTest::addColumn<QString>("in_query");
        QTest::newRow("accents") << "Pénalités à l’été"_ba << u"Pénalités à l’été"_s
                                 << u"Pénalités à l’été"_s;
        QTest::newRow("single quote") << "Trou d'un coup"_ba << u"Trou d'un coup"_s << u"Trou d'un coup"_s;
        QTest::newRow("markup") << "A & B <b>\"c\"</b>"_ba << u"A &amp; B &lt;b&gt;&quot;c&quot;&lt;/b&gt;"_s
                                << u"A &amp; B &lt;b&gt;&quot;c&quot;&lt;/b&gt;"_s;
        QTest::newRow("line break") << "Golf<br>Cart"_ba << u"Golf<br>Cart"_s << u"Golf&lt;br&gt;Cart"_s;
        QTest::newRow("tag") << "{{n}} {{{n}}}"_ba << u"&#123;&#123;n}} &#123;&#123;&#123;n}}}"_s
                             << u"{{n}} {{{n}}}"_s;
        QTest::newRow("statement") << "'; delete from stats; --"_ba << u"'; delete from stats; --"_s
                                   << u"'; delete from stats; --"_s;
        QTest::newRow("parameter") << ":nothing"_ba << u":nothing"_s << u":nothing"_s;
        QTest::newRow("blanks inside") << "3  putts"_ba << u"3  putts"_s << u"3  putts"_s;
        QTest::newRow("blanks around") << "  putts  "_ba << u"putts"_s << u"putts"_s;
        QTest::newRow("blanks in double quotes") << "\" to \""_ba << u" to "_s << u" to "_s;
        QTest::newRow("a double quote alone") << "\""_ba << u"&quot;"_s << u"&quot;"_s;
        QTest::newRow("equals sign") << "a = b"_ba << u"a = b"_s << u"a = b"_s;
        QTest::newRow("nothing") << ""_ba << QString() << QString();
        QTest::newRow("several lines")
            << "one\n    two\n# a remark\n  three"_ba << u"one two three"_s << u"one two three"_s;
    }
    void a_word_is_printed_as_it_is_written()
    {
        QFETCH(QByteArray, word);
        QFETCH(QString, in_body);
        QFETCH(QString, in_query);
        const QByteArray its_words = "layout = try.layout\n[words]\nit = " + word + '\n';
        const QByteArray its_layout = "query rows = select {{words.it}} as t, 1 as n\n---\n"
                                      "{{words.it}}|{{ words.it }}|{{#rows}}{{t}}{{/rows}}";
        QCOMPARE(filled(its_words, its_layout), in_body + u'|' + in_body + u'|' + in_query);
    }

    void a_word_is_a_heading_of_the_figures()
    {
        const QByteArray its_layout = "query rows = select 7 as {{words.caption}}\n---\n{{words.caption}}";
        const QString csv = folder_.filePath(u"try.csv"_s);
        render_report(try_template("layout = try.layout\n[words]\ncaption = Écart d'un coup\n", its_layout))
            ->save_csv(csv);
        QFile file(csv);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(file.readAll()).remove(QChar::ByteOrderMark),
                 u"Écart d'un coup\r\n7\r\n"_s);
    }

    void a_query_is_checked_with_its_words_in_place()
    {
        QCOMPARE(
            failure_of_template(try_template("layout = try.layout\n[words]\nit = %.99999c\n",
                                             "query bad =\n    select printf({{words.it}}, 'x')\n---\n")),
            u"try.layout:1: query bad: printf repeats a character at most 9999 times"_s);
    }

    void words_may_be_in_a_whole_template()
    {
        const QString path = written(u"whole.rpt"_s, "query one = select 1 as n\n[words]\nname = A & B\n---\n"
                                                     "{{words.name}}");
        const template_file source = read_template(path);
        QCOMPARE(fill_body(source, report_snapshot(source)), u"A &amp; B"_s);
    }

    void line_ends_of_two_characters_and_a_byte_order_mark_are_ignored_in_both_files()
    {
        const auto edited = [](QByteArray text) -> QByteArray {
            return "\xEF\xBB\xBF" + text.replace("\n", "\r\n");
        };
        QCOMPARE(filled(edited(words), edited(layout)), filled(words, layout));
    }

    void a_wrong_word_or_layout_is_an_error_that_names_file_and_line_data()
    {
        QTest::addColumn<QByteArray>("its_words");
        QTest::addColumn<QByteArray>("its_layout");
        QTest::addColumn<QString>("complaint");
        const auto with_word = [](const QByteArray& line) -> QByteArray { return words + line; };
        const auto with_body = [](const QByteArray& body) -> QByteArray { return layout + body; };
        const auto with_setting = [](const QByteArray& setting) -> QByteArray { return setting + layout; };
        const auto naming = [](const QByteArray& name) -> QByteArray {
            return "title = Try\nlayout = " + name + '\n';
        };

        QTest::newRow("unused word") << with_word("spare = x\n") << layout
                                     << u"try.rpt:9: try.layout has no {{words.spare}}"_s;
        QTest::newRow("two unused words") << with_word("spare = x\nanother = y\n") << layout
                                          << u"try.rpt:9: try.layout has no {{words.spare}}"_s;
        QTest::newRow("word in a query only") << with_word("spare = x\n") << with_body("{{! not here }}\n")
                                              << u"try.rpt:9: try.layout has no"_s;
        QTest::newRow("unknown word in the body")
            << words << with_body("\n{{words.captoin}}\n") << u"try.layout:9: no word captoin in try.rpt"_s;
        QTest::newRow("unknown word in a query")
            << words << with_setting("query more =\n    select 1,\n    {{words.more}} as m\n")
            << u"try.layout:3: no word more in try.rpt"_s;
        QTest::newRow("word twice") << with_word("caption = again\n") << layout
                                    << u"try.rpt:9: there are two words named caption"_s;
        QTest::newRow("word with a blank in its name")
            << with_word("my caption = x\n") << layout
            << u"try.rpt:9: the name of a word has no blank: my caption"_s;
        QTest::newRow("word without a value")
            << with_word("spare\n") << layout << u"try.rpt:9: not a setting: spare"_s;
        QTest::newRow("word in three braces")
            << words << with_body("{{{words.caption}}}") << u"try.layout:8: not a field or section"_s;
        QTest::newRow("section of a word") << words << with_body("{{#words.caption}}x{{/words.caption}}")
                                           << u"try.layout:8: not a field or section"_s;
        QTest::newRow("words in the layout")
            << words << with_setting("[words]\n")
            << u"try.layout:1: the words are in the template, not in its layout"_s;

        QTest::newRow("missing layout") << naming("gone.layout") << layout << u"try.rpt:2: cannot open "_s;
        const QString name = u"try.rpt:2: layout is the name of a file in the folder of the template"_s;
        for (const char* path :
             {"../try.layout", "sub/try.layout", "/tmp/try.layout", "..\\try.layout", "C:try.layout", "..",
              ".layout", "try.rpt", "try.layout.txt", "", "a b.layout", "https://localhost/try.layout"})
            QTest::addRow("layout named %s", path) << naming(path) << layout << name;
        QTest::newRow("two layouts") << words.mid(0, 20) + "layout = try.layout\n"
                                     << layout << u"try.rpt:2: a template has one layout"_s;
        QTest::newRow("layout that names another layout")
            << words << with_setting("layout = other.layout\n")
            << u"try.layout:1: a layout names no other layout"_s;
        QTest::newRow("layout that names itself") << words << with_setting("\nlayout = try.layout\n")
                                                  << u"try.layout:2: a layout names no other layout"_s;
        QTest::newRow("layout without a body")
            << words << "page = A4 portrait\nquery one = select 1\n"_ba
            << u"try.layout:3: no line --- between the head and the body"_s;
        QTest::newRow("template with a layout and a body")
            << with_word("---\n<p>x</p>\n") << layout << u"try.rpt:9: a template with a layout has no body"_s;
        for (const char* setting : {"page = A4 portrait", "margins = 9 9 9 9", "font = 9pt Sans",
                                    "query one = select 1", "csv = rows"})
            QTest::addRow("setting of a layout in the template, %s", setting)
                << setting + "\n"_ba + words << layout
                << u"try.rpt:1: %1 is a setting of the layout"_s.arg(
                       QString::fromLatin1(setting).section(u' ', 0, 0));
        for (const char* setting : {"title = Try", "footer = Try", "csv_separator = ;"})
            QTest::addRow("setting of a template in the layout, %s", setting)
                << words << setting + "\n"_ba + layout
                << u"try.layout:1: %1 is a setting of the template"_s.arg(
                       QString::fromLatin1(setting).section(u' ', 0, 0));
        QTest::newRow("footer field") << "footer = {{sheet}}\n" + words.mid(0, 20) + words.mid(57) << layout
                                      << u"try.rpt:1: no field sheet in a footer"_s;
    }
    void a_wrong_word_or_layout_is_an_error_that_names_file_and_line()
    {
        QFETCH(QByteArray, its_words);
        QFETCH(QByteArray, its_layout);
        QFETCH(QString, complaint);
        const QString seen = failure_of_template(try_template(its_words, its_layout));
        QVERIFY2(seen.startsWith(complaint), qPrintable(seen));
    }

    void what_is_wrong_in_a_layout_is_reported_with_its_file_and_line_data()
    {
        QTest::addColumn<QByteArray>("head");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("complaint");
        QTest::newRow("statement") << "query bad = selekt 1\n"_ba
                                   << ""_ba << u"1: query bad: "_s;
        QTest::newRow("column in double quotes") << "query bad =\n    select \"nothing\" from stats\n"_ba
                                                 << ""_ba << u"2: query bad: \"nothing\" is quoted"_s;
        QTest::newRow("table") << "query bad = select * from games\n"_ba
                               << ""_ba << u"1: query bad: "_s;
        QTest::newRow("margins") << "margins = 90 90 90 90\n"_ba
                                 << ""_ba << u"1: the margins leave"_s;
        QTest::newRow("csv of no query") << "csv = other\n"_ba
                                         << ""_ba << u"1: no query other"_s;
        QTest::newRow("unknown field") << ""_ba
                                       << "\n{{nam}}"_ba << u"9: no field nam here"_s;
        QTest::newRow("section not closed") << ""_ba
                                            << "{{#rows}}"_ba << u"8: section rows is not closed"_s;
        QTest::newRow("drawing") << ""_ba
                                 << "\n<svg width=\"1mm\" height=\"1mm\"><g></svg>"_ba
                                 << u"9: a drawing is no SVG"_s;
        QTest::newRow("font size") << ""_ba
                                   << "\n<p style=\"font-size: 0pt\">x"_ba
                                   << u"9: a font has a size of 1 pt to 500 pt"_s;
        QTest::newRow("picture") << ""_ba
                                 << "{{words.caption}}<img src=\"x.png\">"_ba
                                 << u"8: img would load a file"_s;
        QTest::newRow("file in a style sheet")
            << ""_ba
            << "<style>\n.a { background-image: url(x.png) }</style>"_ba << u"9: url would load a file"_s;
    }
    void what_is_wrong_in_a_layout_is_reported_with_its_file_and_line()
    {
        QFETCH(QByteArray, head);
        QFETCH(QByteArray, body);
        QFETCH(QString, complaint);
        const QString seen = failure_of_template(try_template(words, head + layout + body));
        QVERIFY2(seen.startsWith(u"try.layout:"_s + complaint), qPrintable(seen));
    }

    void a_layout_that_is_too_long_is_refused()
    {
        QCOMPARE(failure_of_template(try_template(words, layout + QByteArray("x\n").repeated(500'000))),
                 u"try.layout:1: the layout is longer than 1000000 bytes"_s);
    }

    void a_layout_that_its_words_make_too_long_is_refused()
    {
        const QByteArray its_words =
            "layout = try.layout\n[words]\ncaption = " + QByteArray("x ").repeated(1000);
        const QByteArray many = layout + QByteArray("{{words.caption}}\n").repeated(40'000);
        QCOMPARE(failure_of_template(try_template(its_words, many)),
                 u"try.layout:506: with its words the layout is longer than 1000000 characters"_s);
    }
};

QTEST_MAIN(test_template_layouts)
#include "test_template_layouts.moc"
