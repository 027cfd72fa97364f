#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "tests/reports/report_tools.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// Rows of three printed lines each, with the number of the row in the first and the last line.
QString row_head(const QString& page, int rows)
{
    return u"page = %1\nmargins = 20 15 25 15\nfont = 10pt DejaVu Sans\n"
           u"title = Rows\nfooter = Page {{page}} of {{pages}}\n"
           u"query rows = with recursive c(n) as (select 1 union all select n + 1 from c "
           u"where n < %2) select n from c\n"_s.arg(page)
               .arg(rows);
}

const QString row_body =
    u"<style>td { padding: 1.3mm; }</style><p>{{title}}</p>"
    u"<table width=\"180mm\"><thead><tr><th>HEADING</th></tr></thead>\n"
    u"{{#rows}}<tr><td>start-{{n}}-<br>middle<br>end-{{n}}-</td></tr>{{/rows}}</table>"_s;

int ink_in(const QImage& image, const QRect& place)
{
    int dark = 0;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            dark += qGray(image.pixel(x, y)) < 200 ? 1 : 0;
    return dark;
}

int unlike_pixels(const QImage& one, const QImage& other)
{
    int unlike = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            unlike += qAbs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > 100 ? 1 : 0;
    return unlike;
}

}  // namespace

class test_report_pages : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    store_folder store_;

    std::shared_ptr<const report_document> rendered(const QString& head, const QString& body)
    {
        return render_report(template_file_in(folder_.path(), u"pages.rpt"_s, head, body));
    }

    QStringList pages_of(const report_document& document)
    {
        const QString path = folder_.filePath(u"pages.pdf"_s);
        document.save_pdf(path);
        return pdf_pages(path);
    }

private Q_SLOTS:
    void init() { set_report_store(store_.location()); }

    void no_row_is_cut_and_every_page_has_the_table_head_and_its_number_data()
    {
        QTest::addColumn<QString>("page");
        for (const char* page : {"A4 landscape", "A4 portrait", "Letter landscape", "A5 portrait"})
            QTest::newRow(page) << QString::fromLatin1(page);
    }
    void no_row_is_cut_and_every_page_has_the_table_head_and_its_number()
    {
        QFETCH(QString, page);
        const auto document = rendered(row_head(page, 60), row_body);
        const QStringList pages = pages_of(*document);
        QCOMPARE(pages.size(), document->page_count());
        QVERIFY(pages.size() > 2);
        int next = 1;
        for (qsizetype number = 0; number < pages.size(); ++number) {
            const QString& text = pages[number];
            QVERIFY(text.contains(u"HEADING"_s));
            QVERIFY(text.contains(u"Page %1 of %2"_s.arg(number + 1).arg(pages.size())));
            for (; text.contains(u"start-%1-"_s.arg(next)); ++next)
                QVERIFY2(text.contains(u"end-%1-"_s.arg(next)), qPrintable(text));
        }
        QCOMPARE(next, 61);
    }

    void no_text_is_on_two_pages()
    {
        const QString body = u"<svg width=\"100mm\" height=\"250mm\" viewBox=\"0 0 100 250\">"
                             u"<text x=\"0\" y=\"10\">upper-word</text>"
                             u"<text x=\"0\" y=\"249\">lower-word</text></svg>"
                             u"<table width=\"180mm\"><thead><tr><th>HEADING</th></tr></thead>\n"
                             u"{{#rows}}<tr><td>row-{{n}}-</td></tr>{{/rows}}</table>"_s;
        const QString all = pages_of(*rendered(row_head(u"A4 portrait"_s, 150), body)).join(u' ');
        QCOMPARE(all.count(u"upper-word"_s), 1);
        QCOMPARE(all.count(u"lower-word"_s), 1);
        for (int row = 1; row <= 150; ++row)
            QCOMPARE(all.count(u"row-%1-"_s.arg(row)), 1);
    }

    void a_repeated_head_looks_like_the_first_one_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("align");
        const QString plain = u"cellspacing=\"0\" style=\"border-collapse: collapse\""_s;
        const QString boxed = u"cellspacing=\"2mm\" border=\"1mm\""_s;
        for (const char* align : {"top", "middle", "bottom"}) {
            QTest::addRow("plain table, %s", align) << plain << QString::fromLatin1(align);
            QTest::addRow("table of boxes, %s", align) << boxed << QString::fromLatin1(align);
        }
    }
    void a_repeated_head_looks_like_the_first_one()
    {
        QFETCH(QString, table);
        QFETCH(QString, align);
        const QString body =
            u"<style>th { vertical-align: %2; background-color: #000000; color: #ffffff; "
            u"padding: 1mm } td { vertical-align: %2; padding: 1mm }</style>"
            u"<table width=\"118mm\" %1><thead><tr><th>low</th><th>of<br>three<br>lines</th>"
            u"</tr></thead>{{#rows}}<tr><td>start-{{n}}-<br>end-{{n}}-</td><td>{{n}}</td></tr>"
            u"{{/rows}}</table>"_s.arg(table, align);
        const auto document = rendered(row_head(u"A5 portrait"_s, 30), body);
        QVERIFY(document->page_count() > 1);
        // 15 mm from the left and 20 from the top, as high as three lines.
        const QRect head(150, 200, 1180, 150);
        const QImage first = document->page_image(0, 254).copy(head);
        const QImage again = document->page_image(1, 254).copy(head);
        QVERIFY(ink_in(first, first.rect()) > 100000);
        const int different = unlike_pixels(first, again);
        QVERIFY2(different < 200, qPrintable(QString::number(different)));
    }

    void the_last_four_rows_stay_together_if_they_fit_on_a_page_data()
    {
        QTest::addColumn<int>("rows");
        for (int rows = 1; rows <= 40; ++rows)
            QTest::addRow("%d rows", rows) << rows;
    }
    void the_last_four_rows_stay_together_if_they_fit_on_a_page()
    {
        QFETCH(int, rows);
        const QString body = u"<table width=\"180mm\"><thead><tr><th>HEADING</th></tr></thead>\n"
                             u"{{#rows}}<tr><td>start-{{n}}-</td></tr>{{/rows}}</table>"_s;
        const QString last = pages_of(*rendered(row_head(u"A5 landscape"_s, rows), body)).constLast();
        for (int row = qMax(1, rows - 3); row <= rows; ++row)
            QVERIFY2(last.contains(u"start-%1-"_s.arg(row)), qPrintable(last));
    }

    void last_rows_too_tall_for_one_page_are_neither_cut_nor_separated_further()
    {
        const QString body =
            u"<table width=\"120mm\"><thead><tr><th>HEADING</th></tr></thead>\n{{#rows}}<tr><td>start-{{n}}-"
            u"<br>2<br>3<br>4<br>5<br>6<br>7<br>end-{{n}}-</td></tr>{{/rows}}</table>"_s;
        const QStringList pages = pages_of(*rendered(row_head(u"A5 landscape"_s, 7), body));
        QCOMPARE(pages.size(), 4);
        for (const QString& page : pages)
            QCOMPARE(page.count(u"end-"_s), page.count(u"start-"_s));
    }

    void rows_that_one_cell_spans_stay_on_one_page()
    {
        const QString body =
            u"<table width=\"180mm\"><thead><tr><th>HEADING</th><th>x</th></tr></thead>{{#rows}}"
            u"<tr><td rowspan=\"3\">start-{{n}}-</td><td>a</td></tr><tr><td>b</td></tr>"
            u"<tr><td>end-{{n}}-</td></tr>{{/rows}}</table>"_s;
        const QStringList pages = pages_of(*rendered(row_head(u"A4 portrait"_s, 40), body));
        QVERIFY(pages.size() > 1);
        for (const QString& page : pages)
            QCOMPARE(page.count(u"start-"_s), page.count(u"end-"_s));
    }

    void a_row_taller_than_a_page_continues_on_the_next_ones()
    {
        const QString body = u"<table><tr><td>{{#rows}}start-{{n}}-<br>{{/rows}}</td></tr>"
                             u"<tr><td>after</td></tr></table>"_s;
        const QStringList pages = pages_of(*rendered(row_head(u"A5 landscape"_s, 60), body));
        QVERIFY(pages.size() > 2);
        QVERIFY(pages.front().contains(u"start-1-"_s));
        QVERIFY(pages.back().contains(u"after"_s));
        QVERIFY(pages.join(u' ').contains(u"start-60-"_s));
    }

    void a_page_break_starts_a_page_and_makes_no_empty_one_data()
    {
        QTest::addColumn<QString>("body");
        QTest::newRow("after")
            << u"{{#rows}}<p style=\"page-break-after: always\">start-{{n}}-</p>{{/rows}}"_s;
        QTest::newRow("before")
            << u"{{#rows}}<p style=\"page-break-before: always\">start-{{n}}-</p>{{/rows}}"_s;
        QTest::newRow("tables")
            << u"{{#rows}}<table style=\"page-break-before: always\"><tr><td>start-{{n}}-</td></tr></table>"
               u"{{/rows}}"_s;
    }
    void a_page_break_starts_a_page_and_makes_no_empty_one()
    {
        QFETCH(QString, body);
        const QStringList pages = pages_of(*rendered(row_head(u"A4 portrait"_s, 4), body));
        QCOMPARE(pages.size(), 4);
        for (int page = 0; page < 4; ++page)
            QVERIFY(pages[page].contains(u"start-%1-"_s.arg(page + 1)));
    }

    void few_rows_or_none_make_one_page_data()
    {
        QTest::addColumn<QString>("body");
        QTest::newRow("few") << row_body;
        QTest::newRow("none") << QString();
    }
    void few_rows_or_none_make_one_page()
    {
        QFETCH(QString, body);
        QCOMPARE(rendered(row_head(u"A4 portrait"_s, 3), body)->page_count(), 1);
    }

    void a_page_has_the_size_of_its_paper_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("points");
        QTest::newRow("A4 across") << u"A4 landscape"_s << u"842 x 595 pts"_s;
        QTest::newRow("A4 upright") << u"A4 portrait"_s << u"595 x 842 pts"_s;
        QTest::newRow("Letter across") << u"Letter landscape"_s << u"792 x 612 pts"_s;
    }
    void a_page_has_the_size_of_its_paper()
    {
        QFETCH(QString, page);
        QFETCH(QString, points);
        pages_of(*rendered(row_head(page, 3), row_body));
        const QString seen = pdf_fact(folder_.filePath(u"pages.pdf"_s), u"Page size"_s);
        QVERIFY2(seen.startsWith(points), qPrintable(seen));
    }

    void margins_are_kept_free_in_millimetres()
    {
        const auto document = rendered(row_head(u"A4 portrait"_s, 60), row_body);
        const QImage image = document->page_image(0, 254);
        QCOMPARE(image.size(), QSize(2100, 2970));
        QCOMPARE(ink_in(image, QRect(0, 0, 2100, 200)), 0);
        QCOMPARE(ink_in(image, QRect(0, 0, 150, 2970)), 0);
        QCOMPARE(ink_in(image, QRect(1951, 0, 149, 2970)), 0);
        QVERIFY(ink_in(image, QRect(150, 200, 1800, 2520)) > 1000);
    }

    void a_footer_is_above_the_edge_where_printers_do_not_print_data()
    {
        QTest::addColumn<QString>("bottom");
        for (const char* bottom : {"10", "15", "30"})
            QTest::newRow(bottom) << QString::fromLatin1(bottom);
    }
    void a_footer_is_above_the_edge_where_printers_do_not_print()
    {
        QFETCH(QString, bottom);
        const QString head =
            row_head(u"A4 portrait"_s, 1).replace(u"20 15 25 15"_s, u"20 15 %1 15"_s.arg(bottom));
        const QImage image = rendered(head, row_body)->page_image(0, 254);
        QCOMPARE(ink_in(image, QRect(0, 2970 - 60, 2100, 60)), 0);
        QVERIFY(ink_in(image, QRect(0, 2970 - bottom.toInt() * 10, 2100, bottom.toInt() * 10 - 60)) > 100);
    }

    void a_body_wider_than_its_page_is_printed_smaller_and_whole()
    {
        const QString body = u"<table width=\"300mm\"><tr><td width=\"295mm\">left</td>"
                             u"<td>|</td></tr></table>"_s;
        const QImage image = rendered(row_head(u"A4 portrait"_s, 1), body)->page_image(0, 254);
        QVERIFY(ink_in(image, QRect(1850, 200, 100, 200)) > 0);
        QCOMPARE(ink_in(image, QRect(1951, 0, 149, 2500)), 0);
    }

    void lengths_in_mm_and_pt_are_those_on_paper()
    {
        const QString body =
            u"<svg width=\"40mm\" height=\"20mm\" viewBox=\"0 0 2 1\"><rect width=\"2\" height=\"1\"/></svg>"_s;
        const QImage image = rendered(row_head(u"A4 portrait"_s, 1), body)->page_image(0, 254);
        QVERIFY(qAbs(ink_in(image, image.rect().adjusted(0, 0, 0, -300)) - 400 * 200) < 2000);
    }

    void a_picture_shows_the_same_page_at_any_resolution()
    {
        const auto document = rendered(row_head(u"A4 portrait"_s, 20), row_body);
        const QImage coarse = document->page_image(0, 75);
        const QImage fine = document->page_image(0, 300).scaled(coarse.size(), Qt::IgnoreAspectRatio,
                                                                Qt::SmoothTransformation);
        qint64 difference = 0;
        for (int y = 0; y < coarse.height(); ++y)
            for (int x = 0; x < coarse.width(); ++x)
                difference += qAbs(qGray(coarse.pixel(x, y)) - qGray(fine.pixel(x, y)));
        QVERIFY(difference / (coarse.width() * coarse.height()) < 4);
    }

    void a_drawing_stays_a_drawing_in_a_pdf()
    {
        const QString body = u"<svg width=\"60mm\" height=\"60mm\" viewBox=\"0 0 9 9\">"
                             u"<circle cx=\"4\" cy=\"4\" r=\"4\" fill=\"#1f7a4d\"/></svg>"_s;
        const auto document = rendered(row_head(u"A4 portrait"_s, 1), body);
        pages_of(*document);
        QFile file(folder_.filePath(u"pages.pdf"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(!file.readAll().contains("/Subtype /Image"));
    }

    void text_is_black_on_white_whatever_colours_the_desktop_has()
    {
        QPalette night;
        night.setColor(QPalette::Text, Qt::white);
        night.setColor(QPalette::Base, Qt::black);
        QGuiApplication::setPalette(night);
        const QImage image = rendered(row_head(u"A4 portrait"_s, 5), row_body)->page_image(0, 100);
        QGuiApplication::setPalette(QPalette());
        QCOMPARE(image.pixelColor(2, 2), QColor(Qt::white));
        QVERIFY(ink_in(image, image.rect()) > 200);
    }
};

QTEST_MAIN(test_report_pages)
#include "test_report_pages.moc"
