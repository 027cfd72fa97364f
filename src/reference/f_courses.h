#pragma once

#include "base/counts.h"
#include "controls/control_array.h"
#include "controls/Form.h"
#include "reference/course_holes.h"

class QFrame;
class QLabel;
class QLayout;
class QPushButton;

namespace verdane {

class course_general_page;
class TabStrip;

/// The course editor (`f_courses`, `f_courses_en`): one row of `rsvrd_fields` with its row of
/// `rsfield_info`. The caller has moved both recordsets to the row to edit, or added a new row to each; the
/// editor commits or cancels them and never moves to another course.
class f_courses : public Form {
public:
    /// `new_course` is true if the rows were just added.
    explicit f_courses(bool new_course);

    /// True if the rows were added for this editor, also after they have been saved.
    bool isNew() const { return isNew_; }
    /// Always false: opening the editor sets it, and nothing else changes it.
    bool isCreated() const { return isCreated_; }
    /// True from the start until the first save, and after any change.
    bool needtosave() const { return needtosave_; }
    /// The page on screen: 1 general, 2 holes 1 to 9, 3 holes 10 to 18.
    int16 curFrame() const { return curFrame_; }
    /// Result of the last save.
    bool saveSucceed() const { return saveSucceed_; }

    void mark_changed() { needtosave_ = true; }
    /// Until the save has succeeded, it counts as failed.
    void save_begins() { saveSucceed_ = false; }
    void save_succeeded() { saveSucceed_ = true; }
    /// The changes are no longer to be saved; the result of the last save does not change.
    void changes_are_settled() { needtosave_ = false; }

    /// The name of the course, trimmed.
    QString course_name() const;
    /// The digit of the tee, 0 to 7, and its name; -1 and an empty name if there is none.
    int tee() const;
    QString tee_text() const;
    /// Name, rating and slope are not blank.
    bool has_name_and_figures() const;

    /// Between the pages and the rows; `edited_course` describes the routines.
    void show_rows();
    void write_key(const QString& base) const;
    void write_rows() const;

    /// The page of the selected tab.
    int16 selected_page() const;
    /// Replaces the page on screen.
    void show_page(int16 page);
    void focus_first_box();
    /// Shows the sums of the lengths. Fails with `overflow` when a sum exceeds 16 bits.
    void show_totals();

    void save() override;
    void closeForm() override;

protected:
    void unloading() override;

private:
    void lay_out();
    void make_tabs();
    QLayout* make_pages();
    QLayout* make_foot();
    QLayout* make_total(const QString& caption, QLabel* figure);
    void set_tab_order();
    void connect_events();
    void add_shortcuts();

    const bool isNew_;
    const bool isCreated_ = false;
    bool needtosave_ = true;
    bool saveSucceed_ = false;
    int16 curFrame_ = 1;

    TabStrip* tabs_;
    control_array<QFrame> pages_{u"frm"};
    course_general_page* general_;
    course_holes holes_{*this};
    QLabel* front_yards_;
    QLabel* back_yards_;
    QLabel* total_yards_;
    QPushButton* ok_;
    QPushButton* cancel_;
};

}  // namespace verdane
