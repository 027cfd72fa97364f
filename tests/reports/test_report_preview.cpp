#include <QDialog>
#include <QFile>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollBar>
#include <QTimer>

#include "base/failure_words.h"
#include "base/language.h"
#include "base/run_time_failure.h"
#include "reports/report_control.h"
#include "tests/reports/preview_reader.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_report_preview : public preview_reader {
    Q_OBJECT

    std::function<bool(QWidget*, QPrinter&, int)> printer_question_;

private Q_SLOTS:
    void initTestCase() { printer_question_ = dialogs_of_reports().choose_printer; }
    void init() { start_in_english(); }
    void cleanup() { delete window_; }

    void the_window_has_its_title_and_shows_page_and_zoom()
    {
        open();
        QCOMPARE(window_->objectName(), u"report_preview"_s);
        QCOMPARE(window_->windowTitle(), u"A title"_s);
        QCOMPARE(label("page_of_pages"), u"Page 1 of 3"_s);
        QCOMPARE(label("zoom_percent"), u"100 %"_s);
    }

    void captions_are_those_of_the_language_it_was_made_in_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QStringList>("captions");
        QTest::newRow("French") << true << QStringList{u"Imprimer…"_s,       u"Enregistrer en PDF…"_s,
                                                       u"Chiffres (CSV)…"_s, u"Image…"_s,
                                                       u"Réduire"_s,         u"Agrandir"_s,
                                                       u"Pleine largeur"_s,  u"Page précédente"_s,
                                                       u"Page suivante"_s,   u"Page 2 de 3"_s};
        QTest::newRow("English") << false
                                 << QStringList{u"Print…"_s,     u"Save as PDF…"_s,  u"Figures (CSV)…"_s,
                                                u"Picture…"_s,   u"Zoom out"_s,      u"Zoom in"_s,
                                                u"Fit width"_s,  u"Previous page"_s, u"Next page"_s,
                                                u"Page 2 of 3"_s};
    }
    void captions_are_those_of_the_language_it_was_made_in()
    {
        QFETCH(bool, french);
        QFETCH(QStringList, captions);
        is_french = french;
        open();
        is_french = !french;
        click("next_page");
        QStringList seen;
        for (const char* name : {"print", "save_pdf", "save_csv", "save_picture", "zoom_out", "zoom_in",
                                 "fit_width", "previous_page", "next_page"}) {
            const auto* button = window_->findChild<QAbstractButton*>(QString::fromLatin1(name));
            seen << button->accessibleName();
            QVERIFY(button->toolTip().startsWith(button->accessibleName()));
        }
        QCOMPARE(seen << label("page_of_pages"), captions);
    }

    void the_zoom_steps_within_its_limits()
    {
        open();
        click("zoom_in");
        QCOMPARE(label("zoom_percent"), u"110 %"_s);
        press(Qt::Key_Minus, Qt::ControlModifier);
        press(Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(label("zoom_percent"), u"90 %"_s);
        press(Qt::Key_Plus, Qt::ControlModifier);
        QCOMPARE(label("zoom_percent"), u"100 %"_s);
        for (int step = 0; step < 20; ++step)
            click("zoom_out");
        QCOMPARE(window_->pages().zoom(), page_view::least_zoom);
        for (int step = 0; step < 30; ++step)
            click("zoom_in");
        QCOMPARE(window_->pages().zoom(), page_view::most_zoom);
    }

    void fit_width_leaves_nothing_to_scroll_across()
    {
        open();
        for (const int width : {700, 1500}) {
            window_->resize(width, 600);
            QCoreApplication::processEvents();
            click("fit_width");
            QCOMPARE(window_->pages().horizontalScrollBar()->maximum(), 0);
            const double shown = 297 / 25.4 * window_->logicalDpiX() * window_->pages().zoom() / 100;
            QVERIFY(shown > width - 80);
        }
    }

    void a_report_that_fits_its_window_opens_on_its_first_page()
    {
        open();
        delete window_;
        report_control control;
        control.set_WindowState(report_control::maximised);
        control.set_ReportFileName(folder_.path() + u"\\Three.rpt"_s);
        control.Action(report_control::run_now);
        window_ = control.preview();
        QVERIFY(QTest::qWaitForWindowActive(window_));
        QTRY_VERIFY(window_->pages().zoom() != 100);
        QCOMPARE(label("page_of_pages"), u"Page 1 of 3"_s);
    }

    void the_middle_of_the_view_stays_in_the_middle_when_the_zoom_changes()
    {
        open();
        click("next_page");
        for (int step = 0; step < 4; ++step) {
            click("zoom_in");
            QCOMPARE(label("page_of_pages"), u"Page 2 of 3"_s);
        }
    }

    void an_open_preview_shows_paper_and_ink()
    {
        open();
        const QImage seen = window_->pages().grab().toImage();
        int white = 0;
        int dark = 0;
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x) {
                white += qGray(seen.pixel(x, y)) > 250 ? 1 : 0;
                dark += qGray(seen.pixel(x, y)) < 90 ? 1 : 0;
            }
        QVERIFY(white > seen.width() * seen.height() / 4);
        QVERIFY(dark > 20);
    }

    void a_report_is_saved_at_the_path_of_the_file_chooser_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("ending");
        QTest::addColumn<QByteArray>("start");
        QTest::newRow("pdf") << u"save_pdf"_s << u"pdf"_s << QByteArray("%PDF");
        QTest::newRow("figures") << u"save_csv"_s << u"csv"_s << QByteArray("\xEF\xBB\xBFn\r\n1\r\n");
        QTest::newRow("picture") << u"save_picture"_s << u"png"_s << QByteArray("\x89PNG");
    }
    void a_report_is_saved_at_the_path_of_the_file_chooser()
    {
        QFETCH(QString, button);
        QFETCH(QString, ending);
        QFETCH(QByteArray, start);
        open();
        answer_ = file(u"saved."_s + ending);
        click(qPrintable(button));
        QCOMPARE(asked_.proposed, u"Three."_s + ending);
        QCOMPARE(asked_.ending, ending);
        QFile saved(answer_);
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QVERIFY(saved.readAll().startsWith(start));
        QVERIFY(box() == nullptr);
    }

    void the_key_of_saving_saves_a_pdf()
    {
        open();
        answer_ = file(u"keyed.pdf"_s);
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(pdf_pages(answer_).size(), 3);
    }

    void the_picture_is_that_of_the_page_in_view()
    {
        open();
        click("next_page");
        answer_ = file(u"second.png"_s);
        click("save_picture");
        const QString first = file(u"first.png"_s);
        click("previous_page");
        answer_ = first;
        click("save_picture");
        QVERIFY(QImage(first) != QImage(file(u"second.png"_s)));
    }

    void a_file_chooser_that_is_cancelled_writes_nothing()
    {
        open();
        click("save_pdf");
        QCOMPARE(asked_.ending, u"pdf"_s);
        QVERIFY(box() == nullptr);
    }

    void a_file_that_cannot_be_written_is_shown_and_the_preview_continues_data()
    {
        QTest::addColumn<bool>("french");
        QTest::newRow("French") << true;
        QTest::newRow("English") << false;
    }
    void a_file_that_cannot_be_written_is_shown_and_the_preview_continues()
    {
        QFETCH(bool, french);
        is_french = french;
        open();
        answer_ = file(u"nowhere/saved.pdf"_s);
        click("save_pdf");
        QVERIFY(box() != nullptr);
        QCOMPARE(box()->icon(), QMessageBox::Critical);
        QCOMPARE(box()->text(), failure_words(failure_kind::report_output).in(french));
        QCOMPARE(box()->windowTitle(), u"A title"_s);
        QCOMPARE(box()->standardButtons(), QMessageBox::Ok);
        QVERIFY(box()->informativeText().contains(answer_));
        QCOMPARE(box()->textFormat(), Qt::PlainText);
        QTest::keyClick(box(), Qt::Key_Return);
        QTRY_VERIFY(box() == nullptr);
        QVERIFY(window_->isVisible());
        answer_ = file(u"saved after all.pdf"_s);
        click("save_pdf");
        QVERIFY(QFile::exists(answer_));
    }

    void printing_uses_the_printer_that_was_set_up()
    {
        const QString path = file(u"printed.pdf"_s);
        dialogs_of_reports().choose_printer = [&](QWidget*, QPrinter& printer, int) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(path);
            return true;
        };
        open();
        press(Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(pdf_pages(path).size(), 3);
        QVERIFY(pdf_fact(path, u"Page size"_s).startsWith(u"842 x 595"_s));
    }

    void the_print_dialog_has_the_number_of_pages()
    {
        dialogs_of_reports().choose_printer = printer_question_;
        QList<int> limits;
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&limits] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return;
            limits = {dialog->minPage(), dialog->maxPage()};
            dialog->reject();
        });
        look.start(10);
        open();
        press(Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(limits, QList<int>({1, 3}));
        QVERIFY(box() == nullptr);
    }

    void printing_that_fails_is_shown_and_printing_that_is_cancelled_is_not()
    {
        bool may_continue = true;
        dialogs_of_reports().choose_printer = [&](QWidget*, QPrinter& printer, int) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(file(u"nowhere/printed.pdf"_s));
            return may_continue;
        };
        open();
        click("print");
        QVERIFY(box() != nullptr);
        delete box();
        may_continue = false;
        click("print");
        QVERIFY(box() == nullptr);
    }

    void escape_closes_and_deletes_the_window()
    {
        open();
        press(Qt::Key_Escape);
        QTRY_VERIFY(window_.isNull());
    }

    void the_preview_gets_input_above_a_modal_window()
    {
        QDialog owner;
        owner.setWindowModality(Qt::ApplicationModal);
        owner.open();
        open(&owner);
        click("next_page");
        QCOMPARE(label("page_of_pages"), u"Page 2 of 3"_s);
        press(Qt::Key_Escape);
        QTRY_VERIFY(window_.isNull());
        QVERIFY(owner.isVisible());
    }
};

QTEST_MAIN(test_report_preview)
#include "test_report_preview.moc"
