#pragma once

#include <QMessageBox>
#include <QString>

#include <memory>

#include "base/run_time_failure.h"

namespace verdane {

/// The title of a message box that has no other.
QString default_title();

/// The parent of a message box: the modal window, else the active one; null when there is none.
QWidget* active_window();

/// The content of a message box: a refusal, a notice or a question.
struct message {
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title = default_title();
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
};

/// Shows the message box above its owner, waits until it is closed and returns the button that closed it. The
/// owner is the active window afterwards.
QMessageBox::StandardButton show_message(const message& what, QWidget* owner = active_window());

/// Shows a notice with an OK button.
void show_information(const QString& text, QMessageBox::Icon icon = QMessageBox::NoIcon,
                      const QString& title = default_title());

/// Shows a question with Yes and No; true for Yes.
bool ask_yes_no(const QString& text, const QString& title = default_title());

/// The message box of a failure above `parent`, not yet shown: `words` for the user, and below them the
/// technical details. Ctrl+C copies both, or what is selected of them.
std::unique_ptr<QMessageBox> failure_box(const run_time_failure& failure, const QString& words,
                                         QWidget* parent);

/// Rings the bell of the platform, which signals a refused key.
void ring_bell();

/// The number of times that the bell rang since the start.
int bells_rung();

}  // namespace verdane
