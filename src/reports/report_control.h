#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

#include <optional>
#include <utility>

#include "reports/query/report_tables.h"

namespace verdane {

class report_preview;

/// A report control of a window (`cr1`, `cr2`, `cr3`): the template of a report and the state of its window.
/// Nothing resets it; each launch sets what it needs.
class report_control {
public:
    static constexpr int maximised = 2;
    static constexpr int run_now = 1;

    /// The window above which reports open. It may be modal. A report can be open at the same time, and
    /// closes with the window at the latest.
    explicit report_control(QWidget* owner = nullptr) : owner_(owner) {}

    /// 0 for a normal window, 2 for a maximised one.
    int WindowState() const { return window_state_; }
    void set_WindowState(int state) { window_state_ = state; }

    /// Zoom of the pages in percent of their true size.
    void PageZoom(int percent) { page_zoom_ = percent; }
    std::optional<int> page_zoom() const { return page_zoom_; }

    const QString& WindowTitle() const { return window_title_; }
    void set_WindowTitle(const QString& title) { window_title_ = title; }

    /// The template's path as the program gives it, with a backslash before the file's name on every
    /// platform.
    const QString& ReportFileName() const { return report_file_name_; }
    void set_ReportFileName(const QString& path) { report_file_name_ = path; }

    /// The rows that the report reads in addition to those of the store. Kept until the next call.
    void pass_rows(passed_rows rows) { passed_ = std::move(rows); }

    /// With 1: reads the template and the committed rows of the store, opens the preview and returns
    /// while it is open. If the user stops the queries, a message box confirms it and no preview opens. Fails
    /// with `report_template` or as the store does, and with `misuse` for any other value.
    void Action(int value);

    /// The preview that the last `Action` opened, as long as it is open.
    report_preview* preview() const;

private:
    QPointer<QWidget> owner_;
    int window_state_ = 0;
    std::optional<int> page_zoom_;
    QString window_title_;
    QString report_file_name_;
    passed_rows passed_;
    QPointer<QWidget> preview_;
};

/// How a report's window opens: maximised, or with a zoom.
struct report_opening {
    bool is_maximised = false;
    std::optional<int> zoom_percent;

    static report_opening maximised() { return {true, {}}; }
    static report_opening zoomed(int percent) { return {false, percent}; }
    static report_opening plain() { return {}; }
};

/// Sets a control up for a report: window state or zoom, then title, then the path of the template,
/// which is the program's folder followed by the literal of the current language (each begins with a
/// backslash). The caller starts the report with `Action(report_control::run_now)` after it has committed
/// every row, and does nothing afterwards.
void prepare_report(report_control& control, report_opening opening, QStringView french_literal,
                    QStringView english_literal);

}  // namespace verdane
