#include "reports/report_control.h"

#include <QCoreApplication>

#include "base/language.h"
#include "base/run_time_failure.h"
#include "controls/screen_limits.h"
#include "reports/preview/page_view.h"
#include "reports/preview/report_preview.h"
#include "reports/preview/report_wait.h"
#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The last backslash separates folder and file. Earlier ones belong to the name of the folder, which may
/// contain one on some platforms.
QString path_of_platform(QString path)
{
    const qsizetype before_file = path.lastIndexOf(u'\\');
    return before_file < 0 ? path : path.replace(before_file, 1, u'/');
}

/// The report; null if the user stopped it, which a message box has confirmed.
std::shared_ptr<const report_document> document_or_stopped(const QString& path, const QString& title,
                                                           const passed_rows& passed)
{
    QString where;
    {
        report_wait wait(title);
        try {
            return render_report(
                path, [&wait] { return wait.may_continue(); }, passed);
        } catch (const report_stopped& stopped) {
            where = stopped.where();
        }
    }
    show_report_stopped(title, where);
    return nullptr;
}

}  // namespace

void report_control::Action(int value)
{
    if (value != run_now)
        throw run_time_failure(failure_kind::misuse, u"a report control has no action %1"_s.arg(value));
    preview_.clear();
    const auto document = document_or_stopped(path_of_platform(report_file_name_), window_title_, passed_);
    if (document == nullptr)
        return;
    auto* window = new report_preview(document, window_title_, owner_);
    preview_ = window;
    if (page_zoom_)
        window->pages().set_zoom(*page_zoom_);
    else
        window->pages().fit_width();
    if (window_state_ == maximised)
        window->showMaximized();
    else
        window->show();
    keep_on_screen(*window);
    window->raise();
    window->activateWindow();
}

report_preview* report_control::preview() const
{
    return static_cast<report_preview*>(preview_.data());
}

void prepare_report(report_control& control, report_opening opening, QStringView french_literal,
                    QStringView english_literal)
{
    if (opening.is_maximised)
        control.set_WindowState(report_control::maximised);
    if (opening.zoom_percent)
        control.PageZoom(*opening.zoom_percent);
    control.set_WindowTitle(u"Verdane International Inc."_s);
    control.set_ReportFileName(QCoreApplication::applicationDirPath() +
                               in_language(french_literal, english_literal));
}

}  // namespace verdane
