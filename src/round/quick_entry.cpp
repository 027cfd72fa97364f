#include "round/quick_entry.h"

#include <QEvent>
#include <QLineEdit>
#include <QPushButton>

#include <vector>

#include "controls/entering.h"
#include "controls/events.h"
#include "controls/keys.h"
#include "round/f_new_round.h"
#include "round/round_boxes.h"
#include "round/round_panel.h"

namespace verdane::quick_entry {

namespace {

constexpr int selection_length = 4;

/// A click into a box that has the focus already selects its figure too: the next digit replaces it,
/// wherever the pointer is.
class click_selects : public QObject {
public:
    explicit click_selects(QLineEdit& box) : QObject(&box), box_(box) { box.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonRelease && !box_.hasSelectedText())
            select_characters(box_, selection_length);
        return false;
    }

private:
    QLineEdit& box_;
};

std::vector<QLineEdit*> boxes_in_order(const f_new_round& window)
{
    std::vector<QLineEdit*> boxes;
    for (const int index : round_box::strokes)
        boxes.push_back(&window.text_vrd(index));
    for (const int index : round_box::situation)
        boxes.push_back(&window.text_p(index));
    for (const int index : round_box::penalties)
        boxes.push_back(&window.text_s(index));
    return boxes;
}

key_answer take_key(QLineEdit& box, QWidget& next, QChar key)
{
    if (key == backspace || digits_only(key) == key_answer::refuse)
        return digits_only(key);
    box.insert(key);
    next.setFocus(Qt::TabFocusReason);
    return key_answer::taken;
}

void watch_keys(QLineEdit& box, QWidget& next)
{
    filter_keys(box, [&box, &next](QChar key) { return take_key(box, next, key); });
    when_entered(box, [&box] { select_characters(box, selection_length); });
    new click_selects(box);
    filter_pasted_text(box, digits_only);
}

void stroke_changed(f_new_round& window)
{
    refresh_panel(window, false);
    sum_stroke_boxes(window);
    refresh_score(window);
}

void penalty_changed(f_new_round& window)
{
    refresh_panel(window, false);
    sum_penalty_boxes(window);
}

void watch_changes(f_new_round& window)
{
    for (const int index : round_box::strokes)
        on_change(window.text_vrd(index), [&window] { stroke_changed(window); });
    for (const auto& [index, box] : window.text_p.members())
        on_change(*box, [&window] { refresh_panel(window, false); });
    for (const auto& [index, box] : window.text_s.members())
        on_change(*box, [&window] { penalty_changed(window); });
}

}  // namespace

void watch_boxes(f_new_round& window)
{
    const std::vector<QLineEdit*> boxes = boxes_in_order(window);
    for (std::size_t place = 0; place + 1 < boxes.size(); ++place)
        watch_keys(*boxes[place], *boxes[place + 1]);
    watch_keys(*boxes.back(), window.Command1(round_box::ok));
    watch_changes(window);
}

}  // namespace verdane::quick_entry
