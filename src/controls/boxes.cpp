#include "controls/boxes.h"

#include <QApplication>
#include <QPointer>
#include <QWindow>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

int bells = 0;

/// The toolkit replaces an empty title by the name of the program, but keeps a blank.
void show_no_title(QWidget& box)
{
    box.winId();
    box.windowHandle()->setTitle(u" "_s);
}

}  // namespace

QWidget* active_window()
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return QApplication::activeWindow();
}

QString default_title()
{
    return u"Verdane"_s;
}

QMessageBox::StandardButton show_message(const message& what, QWidget* above)
{
    const QPointer<QWidget> owner = above;
    QMessageBox box(what.icon, QString(), what.text, what.buttons, owner);
    box.setObjectName(u"message_box"_s);
    box.setWindowTitle(what.title);
    if (what.title.isEmpty())
        show_no_title(box);
    box.setTextFormat(Qt::PlainText);
    const auto answer = static_cast<QMessageBox::StandardButton>(box.exec());
    // Some platforms do not activate the window below.
    if (owner)
        owner->activateWindow();
    return answer;
}

void show_information(const QString& text, QMessageBox::Icon icon, const QString& title)
{
    show_message({text, icon, title, QMessageBox::Ok});
}

bool ask_yes_no(const QString& text, const QString& title)
{
    return show_message({text, QMessageBox::NoIcon, title, QMessageBox::Yes | QMessageBox::No}) ==
           QMessageBox::Yes;
}

void ring_bell()
{
    ++bells;
    QApplication::beep();
}

int bells_rung()
{
    return bells;
}

}  // namespace verdane
