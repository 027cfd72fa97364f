#pragma once

#include "controls/control_array.h"
#include "controls/Form.h"

class QLayout;
class QListWidget;
class QPushButton;

namespace verdane {

/// The course list (`f_c_list`, `f_c_list_en`): every course and tee of the store, from which courses
/// are opened in the editor, added and removed. While it is loaded it keeps `rsvrd_fields` and
/// `rsfield_info` open.
///
/// Made, it is loaded: it fails with `subscript` when the store has more courses than the list can
/// hold.
class f_c_list : public Form {
public:
    f_c_list();

    /// One line a row of `vrd_fields`, in table order.
    QListWidget* List1;
    /// 0 open, 1 add, 2 OK, 3 delete.
    control_array<QPushButton> Command1{u"Command1"};

    void closeForm() override;

protected:
    void unloading() override;

private:
    QLayout* make_list();
    QLayout* make_buttons();
    void set_tab_order();
    void wire();
};

}  // namespace verdane
