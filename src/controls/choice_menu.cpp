#include "choice_menu.h"

#include <QKeyEvent>

#include <algorithm>

namespace verdane {

void choice_menu::popup_on(const QPoint& place, const QString& caption)
{
    const QList<QAction*> all = actions();
    if (all.isEmpty())
        return;
    const auto same = std::find_if(all.begin(), all.end(),
                                   [&caption](const QAction* entry) { return entry->text() == caption; });
    popup(place);
    setActiveAction(same == all.end() ? all.front() : *same);
}

void choice_menu::keyPressEvent(QKeyEvent* event)
{
    const QString typed = event->text();
    const bool plain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
    if (plain && typed.size() == 1 && typed.front().isLetterOrNumber() && choose_by_letter(typed.front()))
        event->accept();
    else
        QMenu::keyPressEvent(event);
}

bool choice_menu::choose_by_letter(QChar letter)
{
    QList<QAction*> matching;
    for (QAction* entry : actions()) {
        if (entry->text().startsWith(letter, Qt::CaseInsensitive))
            matching << entry;
    }
    if (matching.isEmpty())
        return false;
    const auto place = matching.indexOf(activeAction());
    setActiveAction(matching[(place + 1) % matching.size()]);
    if (matching.size() == 1) {
        hide();
        matching.front()->trigger();
    }
    return true;
}

}  // namespace verdane
