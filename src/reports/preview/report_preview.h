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
/// It has the language in which it was made, and is deleted when it is closed. A failure in it does not end
/// the program but is shown in a message box.
class report_preview : public QWidget {
public:
    /// It is above its owner, if it has one, and gets input although the owner is modal.
    report_preview(std::shared_ptr<const report_document> document, const QString& title, QWidget* owner);

    page_view& pages() { return *pages_; }
    const report_document& document() const { return *document_; }

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

    /// Lays out the pages that are missing. A failure is shown once.
    void lay_out_rest();
    void turn(void (page_view::*to_page)());
    void print();
    void save_pdf();
    void save_csv();
    void save_picture();
    /// Opens a file chooser and calls `write` with the path; a failure is shown in a message box.
    void save(const text_pair& caption, const text_pair& kind, const QString& ending,
              const std::function<void(const QString&)>& write);
    /// Runs `act`; a failure is shown in a message box.
    void guarded(const std::function<void()>& act);
    void show_state();
    QString in_own(const text_pair& text) const { return text.in(is_french_); }

    std::shared_ptr<const report_document> document_;
    bool is_french_;
    /// Whether the view has all pages, or those that are missing have failed.
    bool is_rest_shown_;
    window_shortcuts* shortcuts_;
    page_view* pages_ = nullptr;
    QLabel* page_label_ = nullptr;
    QLabel* zoom_label_ = nullptr;
};

}  // namespace verdane
