#pragma once

#include <QWidget>

#include <functional>
#include <memory>

#include "base/language.h"
#include "controls/shortcut_table.h"

class QLabel;
class QToolBar;
class QToolButton;

namespace verdane {

class page_view;
class report_document;
class window_shortcuts;

/// The window that a report opens in (`report_preview`): its pages, and what can be done with them.
/// It keeps the language it was made in and goes away when it is closed. Nothing that fails in it
/// ends the program: a box says what went wrong.
class report_preview : public QWidget {
public:
    /// With an owner it stands above it, and takes input while the owner is modal.
    report_preview(std::shared_ptr<const report_document> document, const QString& title, QWidget* owner);

    page_view& pages() { return *pages_; }

private:
    struct command {
        QString name;
        shortcut shown;
        QString sign;
        std::function<void()> run;
    };

    void build();
    QToolBar* tool_bar();
    QToolButton* button_for(const command& what);
    std::vector<command> zoom_commands();
    std::vector<command> page_commands();
    std::vector<command> output_commands();

    void print();
    void save_pdf();
    void save_csv();
    void save_picture();
    /// Asks for a file and writes it with `write`; says so where it cannot be written.
    void save(const text_pair& caption, const text_pair& kind, const QString& ending,
              const std::function<void(const QString&)>& write);
    /// Runs `act`; a failure is told in a box.
    void guarded(const std::function<void()>& act);
    void show_state();
    QString in_own(const text_pair& text) const { return text.in(is_french_); }

    std::shared_ptr<const report_document> document_;
    bool is_french_;
    window_shortcuts* shortcuts_;
    page_view* pages_ = nullptr;
    QLabel* page_label_ = nullptr;
    QLabel* zoom_label_ = nullptr;
};

}  // namespace verdane
