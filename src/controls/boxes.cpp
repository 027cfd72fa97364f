#include "controls/boxes.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPointer>
#include <QShortcut>
#include <QWindow>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

int bells = 0;

/// The toolkit replaces an empty title by the name of the program, but keeps a blank.
class titled_box : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    /// The native window exists now. Creating it earlier by `winId` would make native windows of all controls
    /// of the owner, and some platforms would then activate the owner instead of the box.
    void showEvent(QShowEvent* event) override
    {
        QMessageBox::showEvent(event);
        if (windowTitle().isEmpty())
            windowHandle()->setTitle(u" "_s);
    }
};

/// The selection if there is one, else all.
QString copied_text(const QMessageBox& box)
{
    const auto* label = qobject_cast<const QLabel*>(box.focusWidget());
    if (label && label->hasSelectedText())
        return label->selectedText();
    return box.text() + u"\n\n" + box.informativeText();
}

void copy_on_key(QMessageBox& box)
{
    QObject::connect(new QShortcut(QKeySequence::Copy, &box), &QShortcut::activated, &box,
                     [&box] { QGuiApplication::clipboard()->setText(copied_text(box)); });
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
    titled_box box(what.icon, QString(), what.text, what.buttons, owner);
    box.setObjectName(u"message_box"_s);
    box.setWindowTitle(what.title);
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

std::unique_ptr<QMessageBox> failure_box(const run_time_failure& failure, const QString& words,
                                         QWidget* parent)
{
    auto box =
        std::make_unique<QMessageBox>(QMessageBox::Critical, default_title(), words, QMessageBox::Ok, parent);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(failure.details());
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    copy_on_key(*box);
    return box;
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
