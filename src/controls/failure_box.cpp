#include "controls/failure_box.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QShortcut>

#include "controls/boxes.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

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

}  // namespace verdane
