#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "base/language.h"
#include "base/run_time_failure.h"
#include "reports/preview/page_view.h"
#include "reports/preview/report_preview.h"
#include "reports/query/report_snapshot.h"
#include "reports/report_control.h"
#include "tests/reports/report_tools.h"
#include "tests/support/failures.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_report_control : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    store_folder store_;

    static void prepare_round_report(report_control& control, report_opening opening)
    {
        prepare_report(control, opening, u"\\Stat_rounds.rpt", u"\\Stat_rounds_en.rpt");
    }

private Q_SLOTS:
    void init()
    {
        is_french = true;
        set_report_store(store_.location());
        fill_stats(store_.location(), 2, u"X"_s);
    }

    void the_path_is_the_programs_folder_and_the_literal_of_the_language_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("literal");
        QTest::newRow("French") << true << u"\\Stat_rounds.rpt"_s;
        QTest::newRow("English") << false << u"\\Stat_rounds_en.rpt"_s;
    }
    void the_path_is_the_programs_folder_and_the_literal_of_the_language()
    {
        QFETCH(bool, french);
        QFETCH(QString, literal);
        is_french = french;
        report_control control;
        prepare_round_report(control, report_opening::maximised());
        QCOMPARE(control.ReportFileName(), QCoreApplication::applicationDirPath() + literal);
        QCOMPARE(control.WindowTitle(), u"Verdane International Inc."_s);
        QCOMPARE(control.WindowState(), report_control::maximised);
        QVERIFY(control.preview() == nullptr);
    }

    void a_report_opens_maximised_with_the_title_that_was_set()
    {
        report_control control;
        prepare_round_report(control, report_opening::maximised());
        control.Action(report_control::run_now);
        QVERIFY(control.preview() != nullptr);
        QCOMPARE(control.preview()->objectName(), u"report_preview"_s);
        QCOMPARE(control.preview()->windowTitle(), u"Verdane International Inc."_s);
        QVERIFY(control.preview()->isVisible());
        QVERIFY(control.preview()->isMaximized());
        QVERIFY(!control.preview()->isModal());
        delete control.preview();
    }

    void a_report_opens_at_the_zoom_it_was_set_up_with()
    {
        report_control control;
        prepare_round_report(control, report_opening::zoomed(75));
        control.Action(report_control::run_now);
        QCOMPARE(control.preview()->pages().zoom(), 75);
        QVERIFY(!control.preview()->isMaximized());
        delete control.preview();
    }

    void without_a_zoom_the_pages_fit_the_window_and_follow_its_size()
    {
        report_control control;
        prepare_round_report(control, report_opening::plain());
        control.Action(report_control::run_now);
        page_view& pages = control.preview()->pages();
        control.preview()->resize(1200, 800);
        const int wide = pages.zoom();
        control.preview()->resize(700, 800);
        QVERIFY2(pages.zoom() < wide, qPrintable(QString::number(pages.zoom())));
        pages.set_zoom(150);
        control.preview()->resize(1200, 800);
        QCOMPARE(pages.zoom(), 150);
        delete control.preview();
    }

    void several_reports_can_be_open_at_once()
    {
        report_control control;
        prepare_round_report(control, report_opening::plain());
        control.Action(report_control::run_now);
        const QPointer<QWidget> first(control.preview());
        control.Action(report_control::run_now);
        const QPointer<QWidget> second(control.preview());
        QVERIFY(first != second);
        QVERIFY(first->isVisible() && second->isVisible());
        second->close();
        QTRY_VERIFY(second.isNull());
        QVERIFY(control.preview() == nullptr);
        QVERIFY(!first.isNull());
        delete first;
    }

    void an_open_report_does_not_change_with_the_table()
    {
        report_control control;
        prepare_round_report(control, report_opening::plain());
        control.Action(report_control::run_now);
        const QImage before = control.preview()->grab().toImage();
        fill_stats(store_.location(), 30, u"Y"_s);
        control.preview()->update();
        QCOMPARE(control.preview()->grab().toImage(), before);
        delete control.preview();
    }

    void a_folder_is_one_path_whatever_its_name_contains_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("blanks") << u"my own reports"_s;
        QTest::newRow("accents") << u"Été à l'étang"_s;
#ifndef Q_OS_WIN
        QTest::newRow("a backslash") << u"back\\slash"_s;
#endif
    }
    void a_folder_is_one_path_whatever_its_name_contains()
    {
        QFETCH(QString, name);
        QVERIFY(QDir(folder_.path()).mkdir(name));
        const QString folder = folder_.filePath(name);
        template_file_in(folder, u"try.rpt"_s, u"query it = select 1"_s, {});
        report_control control;
        control.set_ReportFileName(folder + u"\\try.rpt"_s);
        control.Action(report_control::run_now);
        QVERIFY(control.preview() != nullptr);
        delete control.preview();
    }

    void a_launch_that_fails_opens_no_window()
    {
        report_control control;
        control.set_ReportFileName(folder_.path() + u"\\none.rpt"_s);
        QCOMPARE(failure_of([&] { control.Action(report_control::run_now); }), failure_kind::report_template);
        prepare_round_report(control, report_opening::plain());
        set_report_store(folder_.filePath(u"none.sqlite"_s));
        QCOMPARE(failure_of([&] { control.Action(report_control::run_now); }),
                 failure_kind::store_unreachable);
        QVERIFY(control.preview() == nullptr);
        QCOMPARE(failure_of([&] { control.Action(0); }), failure_kind::misuse);
    }

    void the_preview_closes_with_its_owner_at_the_latest()
    {
        auto owner = std::make_unique<QWidget>();
        owner->show();
        report_control control(owner.get());
        prepare_round_report(control, report_opening::plain());
        control.Action(report_control::run_now);
        const QPointer<QWidget> window(control.preview());
        QCOMPARE(window->parentWidget(), owner.get());
        QVERIFY(window->isWindow());
        owner.reset();
        QVERIFY(window.isNull());
    }
};

QTEST_MAIN(test_report_control)
#include "test_report_control.moc"
