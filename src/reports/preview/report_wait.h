#pragma once

#include <QElapsedTimer>
#include <QString>

#include <memory>

class QDialog;

namespace verdane {

/// The window in which the user can stop a long report. It has a Stop button, opens after two seconds above
/// the active window, and the program repaints meanwhile. Other windows get no input until the report ends.
class report_wait {
public:
    /// `title` is the title of the window.
    explicit report_wait(QString title);
    ~report_wait();
    report_wait(const report_wait&) = delete;
    report_wait& operator=(const report_wait&) = delete;

    /// Handles the events that are waiting; false once the user stopped the report.
    bool may_continue();

private:
    void open();

    QString title_;
    QElapsedTimer since_start_;
    QElapsedTimer since_events_;
    std::unique_ptr<QDialog> window_;
    bool is_stopped_ = false;
};

/// Shows the message box after a report was stopped; `where` names the query that was running.
void show_report_stopped(const QString& title, const QString& where);

}  // namespace verdane
