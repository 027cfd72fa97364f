#pragma once

#include "controls/Form.h"

class QGroupBox;
class QLayout;
class QPushButton;

namespace verdane {

class data_grid;

/// The people that the user plays with (`f_partners`, `f_partners_en`): a grid bound to `rspartners`,
/// which is open while the window lives. Edits reach the recordset row by row and the store when the
/// window closes; there is no way of cancelling them.
///
/// Made, the window is loaded.
class f_partners : public Form {
public:
    f_partners();

    QGroupBox* Frame1;
    /// Columns 0 name, 1 first name, 2 and 3 address, 4 telephone, 5 mail, 6 code.
    data_grid* pgrid;
    QPushButton* add;
    QPushButton* Del;
    QPushButton* cmdSave;
    QPushButton* cmdAn;

    /// Stores everything, and closes unless a name is missing.
    void closeForm() override;

protected:
    void unloading() override;

private:
    data_grid* make_grid() const;
    void lay_out();
    QLayout* make_content();
    QLayout* make_buttons();
    void set_tab_order();
    void wire();
};

}  // namespace verdane
