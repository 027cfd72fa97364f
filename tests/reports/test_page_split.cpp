#include <QTemporaryDir>
#include <QTest>

#include "reports/page/page_split.h"
#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "tests/reports/report_tools.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

bool has_ink(const QImage& image)
{
    QImage blank(image);
    blank.fill(Qt::white);
    return image != blank;
}

}  // namespace

/// HTML that is laid out in two parts, at its first page break.
class test_page_split : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    store_folder store_;

    QList<QImage> pages_of(const QString& body)
    {
        const QString path =
            template_file_in(folder_.path(), u"split.rpt"_s,
                             u"page = A5 landscape\nfooter = {{page}}/{{pages}}\n"
                             u"query rows = with recursive c(n) as (select 1 union all select n + 1 from c "
                             u"where n < 40) select n from c"_s,
                             body);
        const auto document = render_report(path);
        was_split_ = !document->is_complete();
        QList<QImage> pages;
        for (int page = 0; page < document->page_count(); ++page)
            pages << document->page_image(page, 100);
        return pages;
    }

    bool was_split_ = false;

private Q_SLOTS:
    void init() { set_report_store(store_.location()); }

    void html_is_split_at_its_first_page_break_outside_other_elements_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("rest");
        const QString broken = u"<p style=\"margin: 0; page-break-before:always\">b</p><p>c</p>"_s;
        QTest::newRow("paragraph") << u"<p>a</p>"_s + broken << u"<p>a</p>"_s << broken;
        QTest::newRow("paragraph that is not closed") << u"<p>a"_s + broken << u"<p>a"_s << broken;
        const QString table = u"<TABLE STYLE='Page-Break-Before: ALWAYS'><tr><td>b</td></tr></TABLE>"_s;
        QTest::newRow("table in capital letters") << u"a"_s + table << u"a"_s << table;
        QTest::newRow("style sheets") << u"<style>p { }</style>a<style>td { }</style>"_s + broken
                                      << u"<style>p { }</style>a<style>td { }</style>"_s
                                      << u"<style>p { }</style><style>td { }</style>"_s + broken;
        QTest::newRow("first of two") << u"a"_s + broken + broken << u"a"_s << broken + broken;
        const QStringList not_split{u"<p>a</p>"_s,
                                    QString(),
                                    u"<div>"_s + broken + u"</div>"_s,
                                    u"<p style=\"page-break-before: auto\">a</p>"_s,
                                    u"<p title=\"page-break-before: always\">a</p>"_s,
                                    u"<span style=\"page-break-before: always\">a</span>"_s,
                                    u"<p style=\"page-break-after: always\">a</p>"_s,
                                    u"<!--"_s + broken + u"-->"_s};
        for (const QString& whole : not_split)
            QTest::newRow(qPrintable(u"not: "_s + whole)) << whole << whole << QString();
    }
    void html_is_split_at_its_first_page_break_outside_other_elements()
    {
        QFETCH(QString, html);
        const split_html split = split_at_page_break(html);
        QTEST(split.first, "first");
        QTEST(split.rest, "rest");
    }

    void both_parts_have_the_same_pages_as_the_whole()
    {
        const QString body =
            u"<style>td { padding: 1mm; color: #102030 } th { background-color: #1f7a4d }</style>"
            u"<p>first</p><table width=\"100mm\"><tr><td>a</td></tr></table>"
            u"<p style=\"page-break-before: always\">second</p>"
            u"<table width=\"120mm\"><thead><tr><th>HEAD</th></tr></thead>"
            u"{{#rows}}<tr><td>row {{n}}</td></tr>{{/rows}}</table>"_s;
        const QList<QImage> split = pages_of(body);
        QVERIFY(was_split_);
        const QList<QImage> whole = pages_of(u"<div>"_s + body + u"</div>"_s);
        QVERIFY(!was_split_);
        QVERIFY(whole.size() > 3);
        QCOMPARE(split, whole);
    }

    void each_part_that_is_wider_than_its_page_is_printed_smaller()
    {
        const QString wide =
            u"<table width=\"300mm\"><tr><td width=\"295mm\">left</td><td>|</td></tr></table>"_s;
        const QList<QImage> both =
            pages_of(wide + u"<p style=\"page-break-before: always; margin: 0\">"_s + u"</p>"_s + wide);
        QVERIFY(was_split_);
        QCOMPARE(both.size(), 2);
        for (const QImage& page : both) {
            const int margin = page.width() * 15 / 210;
            const QRect right_end(page.width() - 2 * margin, margin, margin, margin);
            QVERIFY(has_ink(page.copy(right_end)));
            QVERIFY(!has_ink(page.copy(right_end.translated(margin, 0))));
        }
    }
};

QTEST_MAIN(test_page_split)
#include "test_page_split.moc"
