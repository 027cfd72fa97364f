#include "controls/keys.h"

#include <QEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QValidator>

#include <algorithm>
#include <utility>

#include "controls/box_focus.h"
#include "controls/boxes.h"
#include "controls/failure_guard.h"

namespace verdane {

namespace {

class key_filter : public QObject {
public:
    key_filter(QLineEdit& box, std::function<key_answer(QChar)> handler)
        : QObject(&box), box_(box), handler_(std::move(handler))
    {
        box.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress)
            return consumes(*static_cast<QKeyEvent*>(event));
        if (event->type() == QEvent::InputMethod)
            return consumes(static_cast<QInputMethodEvent*>(event)->commitString());
        return false;
    }

private:
    bool consumes(const QKeyEvent& event)
    {
        const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
        if (command || event.text().isEmpty())
            return false;
        const QChar key = event.text().front();
        return (key.isPrint() || key == backspace) && consumes(QString(key));
    }

    bool consumes(const QString& characters)
    {
        bool consumed = false;
        run_event([&] {
            consumed = std::any_of(characters.begin(), characters.end(), [this](QChar key) {
                const key_answer answer = box_.isReadOnly() ? key_answer::pass : handler_(key);
                if (answer == key_answer::refuse)
                    ring_bell();
                return answer != key_answer::pass;
            });
        });
        return consumed;
    }

    QLineEdit& box_;
    std::function<key_answer(QChar)> handler_;
};

class text_filter : public QValidator {
public:
    text_filter(QLineEdit& box, std::function<key_answer(QChar)> filter)
        : QValidator(&box), filter_(std::move(filter))
    {
    }

    State validate(QString& text, int&) const override
    {
        const auto passes = [this](QChar character) {
            return character != backspace && filter_(character) == key_answer::pass;
        };
        return std::all_of(text.cbegin(), text.cend(), passes) ? Acceptable : Invalid;
    }

private:
    std::function<key_answer(QChar)> filter_;
};

constexpr int figure_length = 4;

/// A click into a box that has the focus already selects its figure, too: the next digit replaces it,
/// wherever the pointer is.
class click_selects : public QObject {
public:
    explicit click_selects(QLineEdit& box) : QObject(&box), box_(box) { box.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonRelease && !box_.hasSelectedText())
            select_figure(box_);
        return false;
    }

private:
    QLineEdit& box_;
};

key_answer take_digit(QLineEdit& box, QChar key, const std::function<void()>& move_on)
{
    if (key == backspace || digits_only(key) == key_answer::refuse)
        return digits_only(key);
    box.insert(key);
    move_on();
    return key_answer::taken;
}

}  // namespace

void filter_keys(QLineEdit& box, std::function<key_answer(QChar)> handler)
{
    new key_filter(box, std::move(handler));
}

bool is_plain_digit(QChar key)
{
    return key >= u'0' && key <= u'9';
}

key_answer digits_only(QChar key)
{
    return key == backspace || is_plain_digit(key) ? key_answer::pass : key_answer::refuse;
}

void filter_pasted_text(QLineEdit& box, std::function<key_answer(QChar)> filter)
{
    box.setValidator(new text_filter(box, std::move(filter)));
    QObject::connect(&box, &QLineEdit::inputRejected, &box, ring_bell);
}

void select_characters(QLineEdit& box, int length)
{
    box.setSelection(0, std::min(length, static_cast<int>(box.text().size())));
}

void select_figure(QLineEdit& box)
{
    select_characters(box, figure_length);
}

void watch_digit_keys(QLineEdit& box, std::function<void()> move_on)
{
    filter_keys(box,
                [&box, move_on = std::move(move_on)](QChar key) { return take_digit(box, key, move_on); });
    when_entered(box, [&box] { select_figure(box); });
    new click_selects(box);
    filter_pasted_text(box, digits_only);
}

}  // namespace verdane
