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

    bool isNew;
    bool isCreated = false;
    bool needtosave = true;
    /// The page on screen: 1 general, 2 holes 1 to 9, 3 holes 10 to 18.
    int16 curFrame = 1;
    /// Result of the last save.
    bool saveSucceed = false;

    course_general_page& general() const { return *general_; }
    course_holes& holes() { return holes_; }
    const course_holes& holes() const { return holes_; }

    /// The page of the selected tab.
    int16 selected_page() const;
    /// Replaces the page on screen.
    void show_page(int16 page);
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
