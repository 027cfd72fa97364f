#pragma once

#include <QStringList>

#include "controls/control_array.h"
#include "controls/Form.h"

class QLayout;
class QListWidget;
class QPushButton;

namespace verdane {

/// The course list (`f_c_list`, `f_c_list_en`): every course and tee of the store, from which courses
/// are opened in the editor, added and removed. `rsvrd_fields` and `rsfield_info` are open until it is
/// unloaded.
///
/// The constructor loads it; it fails with `subscript` when the store has more than `most_courses` courses.
class f_c_list : public Form {
public:
    /// The members of the control array `Command1`.
    enum button { open = 0, add = 1, ok = 2, remove = 3 };

    f_c_list();

    /// Fills the empty list: a line for each row of `vrd_fields`, in table order.
    void show_courses(const QStringList& lines);
    /// The index of the selected line; -1 if there is none.
    int selected_course() const;
    /// The text of the selected line, which must exist.
    QString selected_line() const;
    void remove_selected_line();

    void closeForm() override;

protected:
    void unloading() override;

private:
    QLayout* make_list();
    QLayout* make_buttons();
    void set_tab_order();
    void connect_events();

    QListWidget* lines_;
    control_array<QPushButton> buttons_{u"Command1"};
};

}  // namespace verdane
