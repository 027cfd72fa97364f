#include "selection_windows.h"

#include <QTest>

#include "boxes.h"
#include "f_date_range.h"
#include "hand_widgets.h"
#include "language.h"

namespace verdane::testing {

namespace {

void in_window(const std::function<void(f_date_range&)>& prepare, const std::function<void(hand&)>& script)
{
    play(
        [&] {
            f_date_range window;
            prepare(window);
            window.show_modal();
        },
        [&](hand& user) {
            user.wait_for_window(selection_window());
            script(user);
            user.click(QStringLiteral("CancelButton"));
            user.wait_until_gone(selection_window());
        });
}

void answer_plain(hand& user, QStringView french, QStringView english)
{
    user.answer({in_language(french, english), QMessageBox::NoIcon, default_title(), QMessageBox::Ok});
}

}  // namespace

QString selection_window()
{
    return in_language(u"f_date_range", u"f_date_range_en");
}

void in_selection_window(const std::function<void(hand&)>& script)
{
    in_window([](f_date_range&) {}, script);
}

QList<bar_step> bar_in_selection_window(const std::function<void(hand&)>& script)
{
    QList<bar_step> steps;
    const auto record = [&steps](f_date_range& window) {
        QProgressBar* bar = window.Status;
        QObject::connect(bar, &QProgressBar::valueChanged, bar, [&steps, bar](int value) {
            steps << bar_step{value, bar->isVisible()};
        });
    };
    in_window(record, script);
    return steps;
}

void select_range(hand& user, int from, int to)
{
    user.click_row(QStringLiteral("List1"), from);
    user.click_row(QStringLiteral("List2"), to);
}

void run(hand& user)
{
    user.click(QStringLiteral("Command2"));
}

void answer_no_detail(hand& user)
{
    answer_plain(user,
                 u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies. Faite OK pour "
                 u"vérifier si des statistiques sommaires existent.",
                 u"Verdane could not find any detailed rounds with the chosen parameters. Click on OK to "
                 u"calculate summary statistics.");
}

void answer_no_round(hand& user)
{
    answer_plain(user,
                 u"Verdane ne peut pas afficher les statistiques sommaires avec les conditions choisies.",
                 u"Verdane could not find summary statistics with the chosen parameters.");
}

void close_report(hand& user)
{
    const QString preview = QStringLiteral("report_preview");
    user.wait_until(QStringLiteral("the report"), [&] { return visible_window(preview) != nullptr; });
    user.look([&] {
        QWidget* report = visible_window(preview);
        QCOMPARE(report->windowTitle(), QStringLiteral("Verdane International Inc."));
        QVERIFY(report->isMaximized());
        QCOMPARE(report->parentWidget()->objectName(), selection_window());
        QCOMPARE(dynamic_cast<const f_date_range&>(*form_at_work()).cr2.ReportFileName(),
                 QCoreApplication::applicationDirPath() +
                     in_language(u"\\Stat_rounds.rpt", u"\\Stat_rounds_en.rpt"));
        report->close();
    });
    user.wait_until_gone(preview);
}

void run_without_detail(hand& user)
{
    run(user);
    answer_no_detail(user);
    close_report(user);
}

}  // namespace verdane::testing
