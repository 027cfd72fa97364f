#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

#include <functional>
#include <utility>

#include "controls/failure_guard.h"

/// How the events of controls reach their routines: each through `run_event`.
namespace verdane {

template <typename Routine>
void on_click(QAbstractButton& button, Routine routine)
{
    QObject::connect(&button, &QAbstractButton::clicked, &button,
                     [routine = std::move(routine)] { run_event(routine); });
}

/// Runs the routine on Enter while the list has the focus, as a double click does.
void on_enter(QListWidget& list, const std::function<void()>& routine);

/// For a button that starts long work: a double click is one click, not two runs. The second press waits
/// while the work is done and would start it again.
void take_double_click_as_one(QAbstractButton& button);

/// Each change of the text, typed or set by the program.
template <typename Routine>
void on_change(QLineEdit& box, Routine routine)
{
    QObject::connect(&box, &QLineEdit::textChanged, &box,
                     [routine = std::move(routine)] { run_event(routine); });
}

/// Each change of the selected entry, by the user or by the program.
template <typename Routine>
void on_select(QComboBox& list, Routine routine)
{
    QObject::connect(&list, &QComboBox::currentIndexChanged, &list,
                     [routine = std::move(routine)] { run_event(routine); });
}

template <typename Routine>
void on_select(QListWidget& list, Routine routine)
{
    QObject::connect(&list, &QListWidget::currentRowChanged, &list,
                     [routine = std::move(routine)] { run_event(routine); });
}

template <typename Routine>
void on_double_click(QListWidget& list, Routine routine)
{
    QObject::connect(&list, &QListWidget::itemDoubleClicked, &list,
                     [routine = std::move(routine)] { run_event(routine); });
}

}  // namespace verdane
