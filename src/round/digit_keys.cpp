#include "round/digit_keys.h"

#include <QEvent>
#include <QLineEdit>

#include <utility>

#include "controls/entering.h"
#include "controls/keys.h"

namespace verdane {

namespace {

constexpr int selection_length = 4;

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

key_answer take_key(QLineEdit& box, QChar key, const std::function<void()>& move_on)
{
    if (key == backspace || digits_only(key) == key_answer::refuse)
        return digits_only(key);
    box.insert(key);
    move_on();
    return key_answer::taken;
}

}  // namespace

void watch_digit_keys(QLineEdit& box, std::function<void()> move_on)
{
    filter_keys(box, [&box, move_on = std::move(move_on)](QChar key) { return take_key(box, key, move_on); });
    when_entered(box, [&box] { select_figure(box); });
    new click_selects(box);
    filter_pasted_text(box, digits_only);
}

void select_figure(QLineEdit& box)
{
    select_characters(box, selection_length);
}

}  // namespace verdane
