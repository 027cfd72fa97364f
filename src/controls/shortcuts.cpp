#include "controls/shortcuts.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QShortcut>
#include <QWidget>

#include <utility>

#include "controls/box_focus.h"
#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "controls/guide.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

struct key_name {
    QStringView portable;
    text_pair name;
};

constexpr key_name key_names[] = {
    {u"Del", {u"Suppr", u"Del"}},           {u"Esc", {u"Échap", u"Esc"}},
    {u"Return", {u"Entrée", u"Enter"}},     {u"PgDown", {u"Page suiv.", u"Page Down"}},
    {u"PgUp", {u"Page préc.", u"Page Up"}},
};

QString line_of(const QString& keys, const text_pair& caption, bool french)
{
    return keys + (french ? u" : " : u": ") + caption.in(french);
}

QString line_of(const shortcut& which, bool french)
{
    return line_of(key_text(which.keys, french), which.caption, french);
}

}  // namespace

QString key_text(QKeyCombination keys, bool french)
{
    QString text = QKeySequence(keys).toString(QKeySequence::PortableText);
    for (const auto& [portable, name] : key_names) {
        const qsizetype start = text.size() - portable.size();
        if (text == portable || text.endsWith(u'+' + portable.toString()))
            return text.left(start) + name.in(french);
    }
    return text;
}

QString tool_tip_of(const shortcut& which, bool french)
{
    return u"%1 (%2)"_s.arg(which.caption.in(french), key_text(which.keys, french));
}

window_shortcuts::window_shortcuts(QWidget& window, bool french)
    : QObject(&window), window_(window), french_(french)
{
    // Guide and list change nothing in the window, so it does not matter whether the box with the focus may
    // be left.
    listen_always(shortcut_table::open_guide.keys, [this] { open_guide(window_, french_); });
    listen_always(shortcut_table::list_of_shortcuts.keys, [this] { show_list(); });
}

void window_shortcuts::listen_always(QKeyCombination keys, std::function<void()> routine)
{
    auto* listener = new QShortcut(keys, &window_);
    listener->setAutoRepeat(false);
    connect(listener, &QShortcut::activated, this, [routine = std::move(routine)] { run_event(routine); });
}

void window_shortcuts::listen(QKeyCombination keys, QWidget& place, std::function<void()> routine)
{
    auto* listener = new QShortcut(keys, &place);
    // Otherwise Ctrl+Delete, held down, would remove one shot after the other.
    listener->setAutoRepeat(false);
    connect(listener, &QShortcut::activated, this, [this, routine = std::move(routine)] {
        run_event([&] {
            if (leave_focused_box(window_))
                routine();
        });
    });
}

void window_shortcuts::add(const shortcut& which, QAbstractButton& button)
{
    // The shortcut property of a button would click it a tenth of a second later.
    listen(which.keys, button, [&button] { button.click(); });
    button.setToolTip(tool_tip_of(which, french_));
    mention(which);
}

void window_shortcuts::add(const shortcut& which, std::function<void()> routine, QWidget* control)
{
    listen(which.keys, window_, std::move(routine));
    if (control) {
        QStringList tips = control->toolTip().split(u'\n', Qt::SkipEmptyParts);
        control->setToolTip((tips << tool_tip_of(which, french_)).join(u'\n'));
    }
    mention(which);
}

QStringList window_shortcuts::lines() const
{
    QStringList lines;
    for (const shortcut& which : listed_)
        lines << line_of(which, french_);
    lines << line_of(text_pair{u"Alt+lettre soulignée", u"Alt+underlined letter"}.in(french_),
                     {u"Choisir le menu, le bouton ou la zone", u"Choose the menu, button or box"}, french_);
    lines << line_of(shortcut_table::open_guide, french_)
          << line_of(shortcut_table::list_of_shortcuts, french_);
    return lines;
}

void window_shortcuts::show_list() const
{
    show_message({lines().join(u'\n'), QMessageBox::NoIcon,
                  text_pair{u"Raccourcis clavier", u"Keyboard shortcuts"}.in(french_)},
                 &window_);
}

}  // namespace verdane
