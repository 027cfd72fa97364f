#pragma once

#include "base/counts.h"
#include "controls/control_array.h"
#include "controls/Form.h"
#include "controls/TabStrip.h"

class QComboBox;
class QFrame;
class QGridLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;

namespace verdane {

/// The course editor (`f_courses`, `f_courses_en`): one row of `rsvrd_fields` with its row of
/// `rsfield_info`. Whoever opens it has placed both recordsets on the row to edit, or added a new row
/// to each; the editor commits or cancels them and never moves to another course.
class f_courses : public Form {
public:
    /// `new_course` says that the rows were just added.
    explicit f_courses(bool new_course);

    bool isNew;
    bool isCreated = false;
    bool needtosave = true;
    /// The page on screen, 1 to 3.
    int16 curFrame = 1;
    /// Result of the last save.
    bool saveSucceed = false;

    TabStrip* TabStrip1;
    /// The pages: 1 general, 2 holes 1 to 9, 3 holes 10 to 18.
    control_array<QFrame> frm{u"frm"};
    /// 0 slope, 1 name, 2 rating, 3 to 5 address lines.
    control_array<QLineEdit> text{u"text"};
    QComboBox* departure;
    /// Length, stroke index and par; the index is the hole less 1.
    control_array<QLineEdit> txt_verge{u"txt_verge"};
    control_array<QLineEdit> txt_hnd{u"txt_hnd"};
    control_array<QLineEdit> txt_normal{u"txt_normal"};
    /// Yards of holes 1 to 9, of holes 10 to 18 and of all.
    QLabel* lbl_alle;
    QLabel* lbl_retour;
    QLabel* lbl_total;
    QPushButton* smdsave;
    QPushButton* cmdan;

    void save() override;
    void closeForm() override;

protected:
    void unloading() override;

private:
    void lay_out();
    void make_tabs();
    QLayout* make_pages();
    QFrame* make_page(int page);
    QFrame* make_general_page();
    void add_labelled_box(QGridLayout& grid, QStringView name, const QString& caption, int index);
    void add_departure(QGridLayout& grid);
    void add_address(QGridLayout& grid);
    QFrame* make_hole_page(int page, int first_index);
    void add_headings(QGridLayout& grid, int page);
    void add_hole(QGridLayout& grid, int index);
    QLayout* make_foot();
    QLayout* make_total(const QString& caption, QLabel* figure);
    void set_tab_order();
    void wire();
    void wire_hole(int index);
};

}  // namespace verdane
