#pragma once

#include <QMessageBox>
#include <QString>

namespace verdane {

/// The title of a box to which no other was given.
QString default_title();

/// The window above which a box belongs: the modal one, else the active one; null when there is none.
QWidget* window_at_work();

/// One message box: what a refusal, a notice or a question shows.
struct message {
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title = default_title();
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
};

/// Shows the box above its owner, waits for the answer and returns it. The owner then gets the keyboard
/// back.
QMessageBox::StandardButton show_message(const message& what, QWidget* owner = window_at_work());

/// A notice with an OK button.
void tell(const QString& text, QMessageBox::Icon icon = QMessageBox::NoIcon,
          const QString& title = default_title());

/// A question with Yes and No; true for Yes.
bool ask_yes_no(const QString& text, const QString& title = default_title());

/// The platform's bell: how a refused key is signalled.
void ring_bell();

/// How often the bell rang since the start.
int bells_rung();

}  // namespace verdane
