#pragma once

#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>

#include <functional>
#include <utility>

#include "controls/failure_guard.h"

/// Connects events of controls with routines. Each routine is called through `run_event`, which handles
/// failures.
namespace verdane {

/// A click on a button, by mouse or key.
template <typename Routine>
void on_click(QAbstractButton& button, Routine routine)
{
    QObject::connect(&button, &QAbstractButton::clicked, &button,
                     [routine = std::move(routine)] { run_event(routine); });
}

/// Enter while the list has the focus.
void on_enter(QListWidget& list, const std::function<void()>& routine);

/// Makes a double click on a button act as one click. For a button that starts long work: the second press is
/// handled after the work and would start it again.
void take_double_click_as_one(QAbstractButton& button);

/// Each change of the text, by the user or by the program.
template <typename Routine>
void on_change(QLineEdit& box, Routine routine)
{
    QObject::connect(&box, &QLineEdit::textChanged, &box,
                     [routine = std::move(routine)] { run_event(routine); });
}

/// A double click on a line.
template <typename Routine>
void on_double_click(QListWidget& list, Routine routine)
{
    QObject::connect(&list, &QListWidget::itemDoubleClicked, &list,
                     [routine = std::move(routine)] { run_event(routine); });
}

/// A signal of a pane or of another control of the program, with its values.
template <typename Sender, typename Signal, typename Routine>
void on_signal(Sender& sender, Signal signal, Routine routine)
{
    QObject::connect(&sender, signal, &sender, [routine = std::move(routine)](const auto&... values) {
        run_event([&] { routine(values...); });
    });
}

/// Calls a routine once, after the window was painted for the first time. For work that need not delay the
/// start.
void after_first_paint(QWidget& window, std::function<void()> routine);

}  // namespace verdane
