#include "controls/choice_menu.h"

#include <QKeyEvent>

#include <algorithm>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds longest_pause(1);

std::chrono::milliseconds steady_time()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

}  // namespace

choice_menu::time_function choice_menu::clock_ = steady_time;

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
    // A single ampersand would mark a mnemonic.
    entry.setText(QString(caption).replace(u'&', u"&&"_s));
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
    typed_.clear();
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

QList<QAction*> choice_menu::beginning_with(const QString& typed) const
{
    QList<QAction*> matching;
    for (QAction* entry : actions()) {
        if (caption_of(*entry).remove(u' ').startsWith(typed, Qt::CaseInsensitive))
            matching << entry;
    }
    return matching;
}

bool choice_menu::choose_only(QChar letter)
{
    const QList<QAction*> matching = beginning_with(QString(letter));
    if (matching.size() != 1)
        return false;
    matching.front()->trigger();
    return true;
}

QString choice_menu::continued_by(QChar letter) const
{
    const QString longer = typed_ + letter;
    const bool in_time = clock_() - typed_at_ <= longest_pause;
    return in_time && !beginning_with(longer).isEmpty() ? longer : QString(letter);
}

void choice_menu::mark(const QList<QAction*>& matching)
{
    const qsizetype marked = matching.indexOf(activeAction());
    // After a second letter the marked entry stays marked if it matches both.
    const bool marked_matches = typed_.size() > 1 && marked >= 0;
    setActiveAction(matching[marked_matches ? marked : (marked + 1) % matching.size()]);
}

bool choice_menu::choose_by_letter(QChar letter)
{
    typed_ = continued_by(letter);
    typed_at_ = clock_();
    const QList<QAction*> matching = beginning_with(typed_);
    if (matching.isEmpty())
        return false;
    mark(matching);
    if (matching.size() == 1) {
        hide();
        matching.front()->trigger();
    }
    return true;
}

}  // namespace verdane
