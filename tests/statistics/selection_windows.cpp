#include "tests/statistics/selection_windows.h"

#include <QListWidget>
#include <QProgressBar>
#include <QTest>

#include <algorithm>
#include <array>

#include "base/language.h"
#include "controls/boxes.h"
#include "statistics/f_date_range.h"
#include "tests/support/hand_widgets.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

struct launch {
    statistics_mode mode;
    QString button;
    report_control& (f_date_range::*control)();
    QStringView french_file;
    QStringView english_file;
};

const launch& launch_of(statistics_mode mode)
{
    using enum statistics_mode;
    static const std::array<launch, 4> launches{{
        {club, u"Command1"_s, &f_date_range::cr1, u"\\r_statSticks.rpt", u"\\r_statSticks_en.rpt"},
        {putt, u"OKButton"_s, &f_date_range::cr3, u"\\statPuts.rpt", u"\\statPuts_en.rpt"},
        {round, u"Command2"_s, &f_date_range::cr2, u"\\Stat_rounds.rpt", u"\\Stat_rounds_en.rpt"},
        {cost, u"Command3"_s, &f_date_range::cr2, u"\\r_cost3.rpt", u"\\r_cost3_en.rpt"},
    }};
    return *std::find_if(launches.begin(), launches.end(),
                         [mode](const launch& one) { return one.mode == mode; });
}

void in_window(statistics_mode mode, const std::function<void(f_date_range&)>& prepare,
               const std::function<void(hand&)>& script)
{
    play(
        [&] {
            f_date_range window(mode);
            prepare(window);
            window.show_modal();
        },
        [&](hand& user) {
            user.wait_for_window(selection_window());
            script(user);
            user.click(u"CancelButton"_s);
            user.wait_until_closed(selection_window());
        });
}

}  // namespace

QString selection_window()
{
    return in_language(u"f_date_range", u"f_date_range_en");
}

void in_selection_window(const std::function<void(hand&)>& script, statistics_mode mode)
{
    in_window(
        mode, [](f_date_range&) {}, script);
}

QList<bar_step> bar_in_selection_window(const std::function<void(hand&)>& script, statistics_mode mode)
{
    QList<bar_step> steps;
    const auto record = [&steps](f_date_range& window) {
        auto* bar = &find_control<QProgressBar>(window, u"Status"_s);
        QObject::connect(bar, &QProgressBar::valueChanged, bar, [&steps, bar](int value) {
            steps << bar_step{value, bar->isVisible()};
        });
    };
    in_window(mode, record, script);
    return steps;
}

void select_all_rounds(const f_date_range& window)
{
    auto& last_round = find_control<QListWidget>(window, u"List2"_s);
    last_round.setCurrentRow(last_round.count() - 1);
}

void select_range(hand& user, int from, int to)
{
    user.click_row(u"List1"_s, from);
    user.click_row(u"List2"_s, to);
}

void run(hand& user, statistics_mode mode)
{
    user.click(launch_of(mode).button);
}

void answer_plain(hand& user, QStringView french, QStringView english)
{
    user.answer({in_language(french, english), QMessageBox::NoIcon, default_title(), QMessageBox::Ok});
}

void answer_no_detail(hand& user)
{
    answer_plain(user,
                 u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies. Faite OK pour "
                 u"vérifier si des statistiques sommaires existent.",
                 u"Verdane could not find any detailed rounds with the chosen parameters. Click on OK to "
                 u"calculate summary statistics.");
}

void answer_no_shots(hand& user)
{
    answer_plain(user,
                 u"Verdane n'a trouvé aucune ronde avec les conditions choisies. Verdane affichera seulement "
                 u"les statistiques sommaires.",
                 u"Verdane could not find any rounds with the chosen parameters. Verdane will display "
                 u"summary statistics only.");
}

void answer_no_round(hand& user)
{
    answer_plain(user,
                 u"Verdane ne peut pas afficher les statistiques sommaires avec les conditions choisies.",
                 u"Verdane could not find summary statistics with the chosen parameters.");
}

void close_report(hand& user, statistics_mode mode)
{
    const QString preview = u"report_preview"_s;
    user.wait_until(u"the report"_s, [&] { return visible_window(preview) != nullptr; });
    user.look([&] {
        const launch& expected = launch_of(mode);
        const auto& control = (dynamic_cast<f_date_range&>(*active_form()).*expected.control)();
        const bool zoomed = mode == statistics_mode::putt;
        QWidget* report = visible_window(preview);
        QCOMPARE(report->windowTitle(), u"Verdane International Inc."_s);
        QCOMPARE(report->isMaximized(), !zoomed);
        QCOMPARE(control.page_zoom().value_or(0), zoomed ? 75 : 0);
        QCOMPARE(report->parentWidget()->objectName(), selection_window());
        QCOMPARE(control.ReportFileName(), QCoreApplication::applicationDirPath() +
                                               in_language(expected.french_file, expected.english_file));
        report->close();
    });
    user.wait_until_closed(preview);
}

void run_without_detail(hand& user)
{
    run(user);
    answer_no_detail(user);
    close_report(user);
}

}  // namespace verdane::testing
