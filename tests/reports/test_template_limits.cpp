#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>

#include "base/run_time_failure.h"
#include "reports/page/page_cuts.h"
#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "reports/template/page_limits.h"
#include "tests/reports/report_tools.h"
#include "tests/support/failures.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The body starts in line 5.
const QString head =
    u"page = A4 portrait\n"
    "query one = select 1 as n\n"
    "query many = with recursive c(n) as (select 1 union all select n + 1 from c where n < 9999)"
    " select n from c\n"_s;

const QString size_words = u"a font has a size of 1 pt to 500 pt, not "_s;
const QString file_words =
    u" would load a file, and a template loads none; a drawing is an svg in its body"_s;

QString drawing(const QString& size, const QString& content)
{
    return u"<p>\n<svg %1 viewBox=\"0 0 9 9\">\n%2</svg>"_s.arg(size, content);
}

const QString nine_mm = u"width=\"9mm\" height=\"9mm\""_s;

using add_row = std::function<void(const char* name, const QString& body, const QString& words)>;

void add_font_sizes(const add_row& add)
{
    add("0", u"<p>\n<span style=\"font-size: 0\">x</span>"_s, u"6: "_s + size_words + u'0');
    add("0 pt", u"<style>\n.a { font-size: 0pt }</style>x"_s, u"6: "_s + size_words + u"0pt"_s);
    add("0 mm", u"<style>\n\n.a { color: red; font-size:0mm; }</style>x"_s, u"7: "_s + size_words + u"0mm"_s);
    add("less than a point", u"<p style=\"font-size: 0.2pt\">x"_s, u"5: "_s + size_words + u"0.2pt"_s);
    add("negative", u"<p style='font-size: -5pt'>x"_s, u"5: "_s + size_words + u"-5pt"_s);
    add("no number", u"<p style=\"font-size: nanpt\">x"_s, u"5: "_s + size_words + u"nanpt"_s);
    add("exponent", u"<p style=\"font-size: 1e9px\">x"_s, u"5: "_s + size_words + u"1e9px"_s);
    add("too large", u"<p style=\"font-size: 501pt\">x"_s, u"5: "_s + size_words + u"501pt"_s);
    add("short form", u"<p style=\"font: bold 0pt Arial\">x"_s, u"5: "_s + size_words + u"0pt"_s);
    add("font element", u"<p>\n\n<font size=\"0\">x</font>"_s,
        u"7: the size of a font element is 1 to 7, not 0"_s);
    add("taken from a row", u"{{#many}}\n<p style=\"font-size: {{n}}pt\">x</p>{{/many}}"_s,
        u"6: "_s + size_words + u"501pt"_s);
    const QString in_drawing =
        u"7: the font-size of a drawing is a number above 0 in the drawing's units, not "_s;
    for (const char* size : {"0", "-3", "nan", "inf", "12pt"})
        add(qPrintable(u"drawing "_s + QString::fromLatin1(size)),
            drawing(nine_mm, u"<text font-size=\"%1\">x</text>"_s.arg(QString::fromLatin1(size))),
            in_drawing + QString::fromLatin1(size));
    add("invisible on paper", drawing(nine_mm, u"<text font-size=\"0.01\">x</text>"_s),
        u"6: "_s + size_words + u"0.0283 pt"_s);
}

void add_nesting(const add_row& add)
{
    add("tables", u"<table><tr><td>\n"_s.repeated(20), u"9: tables are nested more than 4 deep"_s);
    add("elements", u"<div>\n"_s.repeated(20'000), u"55: elements are nested more than 50 deep"_s);
    add("elements in every row", u"\n{{#many}}\n<b>{{n}}\n{{/many}}"_s,
        u"7: elements are nested more than 50 deep"_s);
    add("elements of a drawing", drawing(nine_mm, u"<g>\n"_s.repeated(100) + u"</g>"_s.repeated(100)),
        u"55: elements are nested more than 50 deep"_s);
    add("sections", u"\n"_s + u"{{#one}}"_s.repeated(100'000), u"6: sections are nested more than 50 deep"_s);
    add("drawing without an end", u"<p>\n<svg width=\"1mm\" height=\"1mm\">\n"_s,
        u"6: a drawing is not closed"_s);
}

void add_sizes(const add_row& add)
{
    add("length", u"<table>\n<tr><td width=\"99999999999mm\">x"_s,
        u"6: a length is at most 500 mm, not 99999999999mm"_s);
    add("length in a style", u"<p style=\"margin-top: 501mm\">x"_s,
        u"5: a length is at most 500 mm, not 501mm"_s);
    add("length without a unit", u"<table>\n<tr><td width=\"99999999999\">x"_s,
        u"6: width is at most 14173, not 99999999999"_s);
    add("share", u"<p style=\"line-height: 99999%\">x"_s, u"5: a length is at most 500 mm, not 99999%"_s);
    add("span", u"<table>\n<tr><td colspan=\"99999999999\">x"_s,
        u"6: colspan is at most 1000, not 99999999999"_s);
    add("drawing", drawing(u"width=\"501mm\" height=\"9mm\""_s, {}),
        u"6: a length is at most 500 mm, not 501mm"_s);
    add("word", u"\n"_s + u"x"_s.repeated(10'001),
        u"6: a word has at most 10000 characters without a blank"_s);
    add("filled body", u"\n{{#many}}<p>%1</p>\n{{/many}}"_s.arg(u"abcde fghi "_s.repeated(11)),
        u"5: the filled body has more than 1000000 characters"_s);
    add("rows in rows", u"\n\n{{#many}}{{#many}}{{n}}{{/many}}{{/many}}"_s,
        u"7: the sections place more than 10000000 characters"_s);
    add("height", u"\n{{#many}}<p style=\"margin-top: 490mm\">x</p>\n{{/many}}"_s,
        u"7: the page may be taller than 1000000 mm"_s);
    add("pages", u"\n{{#many}}<p style=\"page-break-before: always\">x</p>\n{{/many}}"_s,
        u"5: the report has more than 1000 pages"_s);
}

void add_files(const add_row& add)
{
    for (const char* source : {"file:///etc/hostname", "../picture.png", "/tmp/picture.png", "picture.png",
                               "http://localhost/picture.png", "data:image/png;base64,AAAA", "drawing:0"})
        add(source, u"<p>\n<img src=\"%1\">"_s.arg(QString::fromLatin1(source)), u"6: img"_s + file_words);
    add("background", u"\n<table background=\"picture.png\"><tr><td>x"_s, u"6: background"_s + file_words);
    add("url", u"<style>\n.a { background-image: URL(picture.png) }</style>x"_s, u"6: URL"_s + file_words);
    add("url in a tag", u"\n<p style=\"background-image:url(picture.png)\">x"_s, u"6: url"_s + file_words);
    add("import", u"<style>\n@import 'page.css';</style>x"_s, u"6: @import"_s + file_words);
    add("style sheet", u"\n<link rel=\"stylesheet\" type=\"text/css\" href=\"page.css\">x"_s,
        u"6: link"_s + file_words);
    // The check of the page does not recognise this reference; the layout, which loads no file, does.
    add("url in disguise", u"<style>\np { background-image: u\\72l(file:///page.png) }</style><p>x</p>"_s,
        u"5: file:///page.png"_s + file_words);
    add("picture in a drawing", drawing(nine_mm, u"<image href=\"/tmp/p.png\" width=\"9\" height=\"9\"/>"_s),
        u"6: a drawing holds no image"_s);
    add("repeated drawing", drawing(nine_mm, u"<use href=\"#a\"/>"_s), u"6: a drawing holds no use"_s);
    add("style sheet of a drawing", drawing(nine_mm, u"<?xml-stylesheet href=\"/tmp/page.css\"?>"_s),
        u"6: a drawing holds no instructions"_s);
    add("styles of a drawing", drawing(nine_mm, u"<style>text { fill: red }</style>"_s),
        u"6: a drawing holds no style"_s);
}

}  // namespace

class test_template_limits : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    store_folder store_;

    QString complaint(const QString& its_head, const QString& body)
    {
        return failure_of_template(template_file_in(folder_.path(), u"try.rpt"_s, its_head, body));
    }

private Q_SLOTS:
    void init() { set_report_store(store_.location()); }

    void a_page_that_cannot_be_laid_out_is_refused_with_file_and_line_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("words");
        const auto rows_of = [](const char* group, void (*add_rows)(const add_row&)) {
            add_rows([group](const char* name, const QString& body, const QString& words) {
                QTest::addRow("%s, %s", group, name) << body << words;
            });
        };
        rows_of("font size", add_font_sizes);
        rows_of("nesting", add_nesting);
        rows_of("size", add_sizes);
        rows_of("file", add_files);
    }
    void a_page_that_cannot_be_laid_out_is_refused_with_file_and_line()
    {
        QFETCH(QString, body);
        QFETCH(QString, words);
        QCOMPARE(complaint(head, body), u"try.rpt:"_s + words);
    }

    void a_head_that_leaves_no_page_is_refused_with_file_and_line_data()
    {
        QTest::addColumn<QString>("settings");
        QTest::addColumn<QString>("words");
        QTest::newRow("no height")
            << u"page = A5 landscape\nmargins = 80 10 80 10\n"_s
            << u"try.rpt:2: the margins leave 190 mm by -12 mm of the page; at least 20 mm "
               "by 20 mm must be left"_s;
        QTest::newRow("paper set later")
            << u"margins = 80 10 80 10\npage = A5 landscape\n"_s
            << u"try.rpt:1: the margins leave 190 mm by -12 mm of the page; at least 20 mm by 20 mm must be left"_s;
        QTest::newRow("no width")
            << u"\n\npage = A5 portrait\nmargins = 10 70 10 70\n"_s
            << u"try.rpt:4: the margins leave 8 mm by 190 mm of the page; at least 20 mm by "
               "20 mm must be left"_s;
        QTest::newRow("not a number")
            << u"margins = nan 10 10 10\n"_s
            << u"try.rpt:1: margins are four numbers in millimetres: top right bottom left"_s;
        QTest::newRow("font of 0") << u"\nfont = 0pt Sans\n"_s << u"try.rpt:2: "_s + size_words + u"0pt"_s;
        QTest::newRow("huge font") << u"font = 99999999999999999999pt Sans\n"_s
                                   << u"try.rpt:1: "_s + size_words + u"99999999999999999999pt"_s;
        QTest::newRow("empty query") << u"query two =\n    -- nothing\n"_s
                                     << u"try.rpt:1: query two is empty"_s;
    }
    void a_head_that_leaves_no_page_is_refused_with_file_and_line()
    {
        QFETCH(QString, settings);
        QFETCH(QString, words);
        QCOMPARE(complaint(settings + u"query one = select 1 as n\n"_s, u"x"_s), words);
    }

    void margins_that_leave_a_small_page_are_accepted()
    {
        const QString small = u"page = A5 landscape\nmargins = 64 95 64 95\nfont = 8pt DejaVu Sans\n"
                              "query one = select 1 as n\n"_s;
        const auto document =
            render_report(template_file_in(folder_.path(), u"small.rpt"_s, small, u"<p>one</p><p>two</p>"_s));
        QCOMPARE(document->page_count(), 1);
    }

    void a_file_too_long_for_a_template_is_refused()
    {
        QCOMPARE(complaint(head, u"x\n"_s.repeated(500'000)),
                 u"try.rpt:1: the template is longer than 1000000 bytes"_s);
    }

    void usual_but_incomplete_markup_is_laid_out_data()
    {
        QTest::addColumn<QString>("body");
        QTest::newRow("rows and cells without ends")
            << u"<table>"_s + u"<tr><td>a<td>b"_s.repeated(300) + u"</table>"_s;
        QTest::newRow("entries and paragraphs without ends")
            << u"<p>a"_s.repeated(300) + u"<ul>"_s + u"<li>a</li>"_s.repeated(300);
        QTest::newRow("elements without content") << u"<br>x<hr>"_s.repeated(300);
        QTest::newRow("four tables inside one another")
            << u"<table><tr><td>"_s.repeated(4) + u"x"_s + u"</td></tr></table>"_s.repeated(4);
        QTest::newRow("sizes in words and units")
            << u"<p style=\"font-size: small\">x<p style=\"font-size: 3mm\">x<font size=\"+1\">x</font>"_s;
        QTest::newRow("markup in a comment") << u"<!-- <img src=\"x.png\"> -->x"_s;
        QTest::newRow("brackets in texts and values") << u"<p title=\"a > b\">1 < 2 > 0</p>"_s;
    }
    void usual_but_incomplete_markup_is_laid_out()
    {
        QFETCH(QString, body);
        const QString path = template_file_in(folder_.path(), u"usual.rpt"_s, head, body);
        QCOMPARE(failure_of_template(path), QString());
        QVERIFY(render_report(path)->page_count() > 0);
    }

    void cutting_into_pages_ends_whatever_the_height_of_the_page_data()
    {
        QTest::addColumn<double>("height");
        for (const double height : {0.0, -12.0, 1e-9})
            QTest::addRow("%g", height) << height;
    }
    void cutting_into_pages_ends_whatever_the_height_of_the_page()
    {
        QFETCH(double, height);
        QTextDocument document;
        document.setHtml(
            u"<p>one</p><table><thead><tr><td>head</td></tr></thead><tr><td>row</td></tr></table>"_s);
        const template_place place{u"try.rpt"_s, 7};
        QCOMPARE(failure_of([&] { cut_into_pages(document, height, place); }), failure_kind::report_template);
    }

    void a_head_and_a_row_taller_than_a_page_are_cut_over_pages()
    {
        QTextDocument document;
        document.setTextWidth(500);
        const QString lines = u"line<br>"_s.repeated(60);
        document.setHtml(
            u"<table><thead><tr><td>%1</td></tr></thead><tr><td>%1</td></tr><tr><td>x</td></tr></table>"_s
                .arg(lines));
        const std::vector<page_cut> pages = cut_into_pages(document, 100, {u"try.rpt"_s, 7});
        QVERIFY(pages.size() > 10 && pages.size() < 100);
        QVERIFY(qAbs(pages.back().body.bottom - document.size().height()) < 10);
    }
};

QTEST_MAIN(test_template_limits)
#include "test_template_limits.moc"
