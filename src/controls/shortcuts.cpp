#include "controls/shortcuts.h"

#include <QAbstractButton>
#include <QShortcut>
#include <QWidget>

#include <utility>

#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "controls/leaving.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

struct key_name {
    QStringView portable;
    text_pair words;
};

constexpr key_name key_names[] = {
    {u"Del", {u"Suppr", u"Del"}},           {u"Esc", {u"Échap", u"Esc"}},
    {u"Return", {u"Entrée", u"Enter"}},     {u"PgDown", {u"Page suiv.", u"Page Down"}},
    {u"PgUp", {u"Page préc.", u"Page Up"}},
};

QString line(const QString& keys, const text_pair& words, bool french)
{
    return keys + (french ? u" : " : u": ") + words.in(french);
}

}  // namespace

QString key_text(const QKeySequence& keys, bool french)
{
    QString text = keys.toString(QKeySequence::PortableText);
    for (const auto& [portable, words] : key_names) {
        const qsizetype start = text.size() - portable.size();
        if (text == portable || text.endsWith(u'+' + portable.toString()))
            return text.left(start) + words.in(french);
    }
    return text;
}

QString tool_tip_with_keys(const text_pair& words, const QKeySequence& keys, bool french)
{
    return u"%1 (%2)"_s.arg(words.in(french), key_text(keys, french));
}

window_shortcuts::window_shortcuts(QWidget& window, bool french)
    : QObject(&window), window_(window), french_(french)
{
    // The list leaves the window as it is, so a box with a wrong text keeps the focus without a question.
    auto* help = new QShortcut(QKeySequence(Qt::Key_F1), &window);
    connect(help, &QShortcut::activated, this, [this] { run_event([this] { show_list(); }); });
}

void window_shortcuts::listen(const QKeySequence& keys, QWidget& place, std::function<void()> routine)
{
    auto* shortcut = new QShortcut(keys, &place);
    // Keys that are held down act once: one shot is removed, not one after the other.
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, [this, routine = std::move(routine)] {
        run_event([&] {
            if (leave_focused_box(window_))
                routine();
        });
    });
}

void window_shortcuts::add(const QKeySequence& keys, const text_pair& words, QAbstractButton& button)
{
    // The button's own shortcut would click a tenth of a second later.
    listen(keys, button, [&button] { button.click(); });
    button.setToolTip(tool_tip_with_keys(words, keys, french_));
    mention(keys, words);
}

void window_shortcuts::add(const QKeySequence& keys, const text_pair& words, std::function<void()> routine,
                           QWidget* control)
{
    listen(keys, window_, std::move(routine));
    if (control) {
        QStringList tips = control->toolTip().split(u'\n', Qt::SkipEmptyParts);
        control->setToolTip((tips << tool_tip_with_keys(words, keys, french_)).join(u'\n'));
    }
    mention(keys, words);
}

void window_shortcuts::mention(const QKeySequence& keys, const text_pair& words)
{
    entries_.push_back({keys, words});
}

QStringList window_shortcuts::lines() const
{
    QStringList lines;
    for (const auto& [keys, words] : entries_)
        lines << line(key_text(keys, french_), words, french_);
    lines << line(text_pair{u"Alt+lettre soulignée", u"Alt+underlined letter"}.in(french_),
                  {u"Choisir le menu, le bouton ou la zone", u"Choose the menu, button or box"}, french_);
    lines << line(key_text(Qt::Key_F1, french_), {u"Montrer cette liste", u"Show this list"}, french_);
    return lines;
}

void window_shortcuts::show_list() const
{
    show_message({lines().join(u'\n'), QMessageBox::NoIcon,
                  text_pair{u"Raccourcis clavier", u"Keyboard shortcuts"}.in(french_)},
                 &window_);
}

}  // namespace verdane
