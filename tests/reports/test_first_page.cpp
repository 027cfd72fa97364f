#include <QPainter>
#include <QPrinter>
#include <QScrollBar>

#include "tests/reports/preview_reader.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int page_count = 4;

constexpr int dots_per_inch = 100;

QImage painted_early(const report_document& document)
{
    const double dots_per_mm = dots_per_inch / 25.4;
    QImage image((document.page_size_mm() * dots_per_mm).toSize(), QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(dots_per_mm * 1000));
    image.setDotsPerMeterY(qRound(dots_per_mm * 1000));
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(dots_per_mm, dots_per_mm);
    document.paint_early(painter, 0);
    return image;
}

/// Counts the pages that are laid out after a preview is painted first, before any other event is handled.
class first_paint : public QObject {
public:
    explicit first_paint(report_preview& preview) : preview_(preview)
    {
        preview.pages().viewport()->installEventFilter(this);
    }

    /// Closes the preview at that time.
    void close_afterwards() { closes_ = true; }

    int pages() const { return pages_; }

    bool eventFilter(QObject* viewport, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            viewport->removeEventFilter(this);
            // Posted before the event is delivered, so it is handled before those that the painting posts.
            QMetaObject::invokeMethod(
                this, [this] { painted(); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    void painted()
    {
        pages_ = preview_.document().pages_so_far();
        if (closes_)
            preview_.close();
    }

    report_preview& preview_;
    int pages_ = 0;
    bool closes_ = false;
};

}  // namespace

/// A report whose second page starts with a page break.
class test_first_page : public preview_reader {
    Q_OBJECT

    QString template_with(const QString& later_pages)
    {
        return template_file_in(folder_.path(), u"Four.rpt"_s,
                                u"page = A4 landscape\ntitle = Four\nfooter = Page {{page}} of {{pages}}\n"
                                u"query it = select 2 as n union all select 3 union all select 4"_s,
                                u"<p>sheet-1-</p>"_s + later_pages);
    }
    QString four_pages()
    {
        return template_with(u"{{#it}}<p style=\"page-break-before: always\">sheet-{{n}}-</p>{{/it}}"_s);
    }

    /// Shows the preview without handling any event, so that nothing is painted yet.
    report_preview* shown(const QString& path)
    {
        auto* window = new report_preview(render_report(path), u"A title"_s, nullptr);
        window->show();
        return window;
    }
    void show(const QString& path) { window_ = shown(path); }

    void click_at_once(const char* name)
    {
        window_->findChild<QAbstractButton*>(QString::fromLatin1(name))->click();
    }

    void has_all_pages(const QString& path)
    {
        const QStringList pages = pdf_pages(path);
        QCOMPARE(pages.size(), page_count);
        for (int page = 1; page <= page_count; ++page) {
            QVERIFY2(pages[page - 1].contains(u"sheet-%1-"_s.arg(page)), qPrintable(pages[page - 1]));
            QVERIFY2(pages[page - 1].contains(u"Page %1 of 4"_s.arg(page)), qPrintable(pages[page - 1]));
        }
    }

private Q_SLOTS:
    void init() { start_in_english(); }
    void cleanup() { delete window_; }

    void it_is_painted_before_the_others_are_laid_out()
    {
        show(four_pages());
        const first_paint paint(*window_);
        QTRY_VERIFY(window_->document().is_complete());
        QCOMPARE(paint.pages(), 1);
        QCOMPARE(window_->document().pages_so_far(), page_count);
    }

    void the_number_of_pages_is_shown_when_all_are_laid_out_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("early");
        QTest::addColumn<QString>("complete");
        QTest::newRow("French") << true << u"Page 1 de …"_s << u"Page 1 de 4"_s;
        QTest::newRow("English") << false << u"Page 1 of …"_s << u"Page 1 of 4"_s;
    }
    void the_number_of_pages_is_shown_when_all_are_laid_out()
    {
        QFETCH(bool, french);
        QFETCH(QString, early);
        QFETCH(QString, complete);
        is_french = french;
        show(four_pages());
        QCOMPARE(label("page_of_pages"), early);
        is_french = !french;
        QTRY_COMPARE(label("page_of_pages"), complete);
        QVERIFY(window_->pages().verticalScrollBar()->maximum() > 2 * window_->pages().viewport()->height());
    }

    void its_footer_has_the_number_of_pages_only_when_all_are_laid_out()
    {
        const auto document = render_report(four_pages());
        const QImage early = painted_early(*document);
        QVERIFY(!document->is_complete());
        QVERIFY(document->page_image(0, dots_per_inch) != early);
        QCOMPARE(painted_early(*document), document->page_image(0, dots_per_inch));
    }

    void a_report_without_a_page_break_is_complete_at_once()
    {
        show(template_with({}));
        QVERIFY(window_->document().is_complete());
        QCOMPARE(label("page_of_pages"), u"Page 1 of 1"_s);
    }

    void a_page_break_before_any_text_makes_no_empty_first_page()
    {
        const QString path = template_file_in(
            folder_.path(), u"Break.rpt"_s, u"page = A4 landscape\nquery it = select 1 as n"_s,
            u"<style>p { color: #000000 }</style><p style=\"page-break-before: always\">x</p>"_s);
        show(path);
        QVERIFY(window_->document().is_complete());
        QCOMPARE(window_->document().pages_so_far(), 1);
    }

    void the_last_page_can_be_reached_before_anything_is_painted()
    {
        show(four_pages());
        for (int turn = 1; turn < page_count; ++turn)
            click_at_once("next_page");
        QCOMPARE(label("page_of_pages"), u"Page 4 of 4"_s);
        QCoreApplication::processEvents();
        QCOMPARE(label("page_of_pages"), u"Page 4 of 4"_s);
    }

    void a_zoom_before_the_other_pages_are_laid_out_is_kept()
    {
        show(four_pages());
        click_at_once("zoom_in");
        QTRY_COMPARE(label("page_of_pages"), u"Page 1 of 4"_s);
        QCOMPARE(label("zoom_percent"), u"110 %"_s);
    }

    void a_pdf_saved_at_once_has_all_pages_with_their_number()
    {
        show(four_pages());
        answer_ = file(u"at once.pdf"_s);
        click_at_once("save_pdf");
        has_all_pages(answer_);
        QTRY_COMPARE(label("page_of_pages"), u"Page 1 of 4"_s);
    }

    void printing_at_once_prints_all_pages_with_their_number()
    {
        const QString path = file(u"printed at once.pdf"_s);
        int most = 0;
        dialogs_of_reports().choose_printer = [&](QWidget*, QPrinter& printer, int pages) {
            most = pages;
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(path);
            return true;
        };
        show(four_pages());
        click_at_once("print");
        QCOMPARE(most, page_count);
        has_all_pages(path);
    }

    void figures_and_a_picture_saved_at_once_are_those_of_the_whole_report()
    {
        show(four_pages());
        answer_ = file(u"at once.csv"_s);
        click_at_once("save_csv");
        QFile figures(answer_);
        QVERIFY(figures.open(QIODevice::ReadOnly));
        QCOMPARE(figures.readAll(), QByteArray("\xEF\xBB\xBFn\r\n2\r\n3\r\n4\r\n"));
        answer_ = file(u"at once.png"_s);
        click_at_once("save_picture");
        const auto whole = render_report(four_pages());
        QCOMPARE(whole->page_count(), page_count);
        QCOMPARE(QImage(answer_).convertToFormat(QImage::Format_RGB32), whole->page_image(0, 200));
    }

    void a_preview_that_is_closed_after_its_first_page_lays_out_no_other()
    {
        const auto document = render_report(four_pages());
        window_ = new report_preview(document, u"A title"_s, nullptr);
        first_paint paint(*window_);
        paint.close_afterwards();
        window_->show();
        QTRY_VERIFY(window_.isNull());
        QCOMPARE(paint.pages(), 1);
        QVERIFY(!document->is_complete());
    }

    void two_reports_at_a_time_are_both_completed()
    {
        show(four_pages());
        const QPointer<report_preview> other = shown(four_pages());
        QTRY_VERIFY(window_->document().is_complete() && other->document().is_complete());
        delete other;
        QCOMPARE(label("page_of_pages"), u"Page 1 of 4"_s);
    }

    void a_failure_of_a_later_page_is_shown_once_and_again_when_it_prevents_a_command()
    {
        show(template_with(u"\n<p style=\"page-break-before: always\"><svg width=\"9mm\"></svg></p>"_s));
        QTRY_VERIFY(box() != nullptr);
        QVERIFY2(box()->informativeText().contains(u"Four.rpt:7: a drawing needs"_s),
                 qPrintable(box()->informativeText()));
        delete box();
        click_at_once("next_page");
        click_at_once("zoom_in");
        window_->pages().viewport()->repaint();
        QCoreApplication::processEvents();
        QVERIFY(box() == nullptr);
        QCOMPARE(label("page_of_pages"), u"Page 1 of …"_s);
        answer_ = file(u"never.pdf"_s);
        click_at_once("save_pdf");
        QVERIFY(box() != nullptr);
        QVERIFY(!QFile::exists(answer_));
        delete box();
    }
};

QTEST_MAIN(test_first_page)
#include "test_first_page.moc"
