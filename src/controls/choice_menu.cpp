#include "choice_menu.h"

#include <QKeyEvent>

#include <algorithm>

namespace verdane {

QAction* choice_menu::add_choice(const QString& name, const QString& caption)
{
    QAction* entry = addAction(QString());
    entry->setObjectName(name);
    set_caption(*entry, caption);
    return entry;
}

void choice_menu::set_caption(QAction& entry, const QString& caption)
{
    entry.setData(caption);
    // The toolkit would read an ampersand as the mark of a key.
    entry.setText(QString(caption).replace(u'&', QStringLiteral("&&")));
}

QString choice_menu::caption_of(const QAction& entry)
{
    return entry.data().toString();
}

void choice_menu::popup_on(const QPoint& place, const QString& caption)
{
    const QList<QAction*> all = actions();
    if (all.isEmpty())
        return;
    const auto same = std::find_if(
        all.begin(), all.end(), [&caption](const QAction* entry) { return caption_of(*entry) == caption; });
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

QList<QAction*> choice_menu::beginning_with(QChar letter) const
{
    QList<QAction*> matching;
    for (QAction* entry : actions()) {
        if (caption_of(*entry).startsWith(letter, Qt::CaseInsensitive))
            matching << entry;
    }
    return matching;
}

bool choice_menu::choose_only(QChar letter)
{
    const QList<QAction*> matching = beginning_with(letter);
    if (matching.size() != 1)
        return false;
    matching.front()->trigger();
    return true;
}

bool choice_menu::choose_by_letter(QChar letter)
{
    const QList<QAction*> matching = beginning_with(letter);
    if (matching.isEmpty())
        return false;
    setActiveAction(matching[(matching.indexOf(activeAction()) + 1) % matching.size()]);
    if (matching.size() == 1) {
        hide();
        matching.front()->trigger();
    }
    return true;
}

}  // namespace verdane
