#pragma once

#include <QElapsedTimer>
#include <QString>

#include <memory>

class QDialog;

namespace verdane {

/// Lets the user stop a report that takes long: after two seconds a window with a Stop button opens above the
/// active window, and the program repaints. Other windows get no input meanwhile.
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
