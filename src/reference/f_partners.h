#pragma once

#include "controls/Form.h"

class QGroupBox;
class QLayout;
class QPushButton;

namespace verdane {

class data_grid;

/// The people that the user plays with (`f_partners`, `f_partners_en`): a grid bound to `rspartners`,
/// which is open until the window is unloaded. Edits are written to the recordset row by row and to the
/// store when the window closes; they cannot be cancelled.
///
/// The constructor loads it.
class f_partners : public Form {
public:
    enum column { name, first_name, address, city, telephone, mail, code, column_count };

    f_partners();

    /// Binds the grid to `rspartners`, which must be open, and removes that binding.
    void bind_grid();
    void unbind_grid();
    /// Writes the text that is being typed to its row and computes the row's code. To be called before
    /// anything else changes the rows.
    void finish_typing();
    /// Reads the rows again, moves the cursor to that column of the current row and sets the focus to the
    /// grid.
    void show_cell(int column_to_show);
    /// The column of the cursor.
    int current_column() const;

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
    void connect_events();

    QGroupBox* frame_;
    data_grid* grid_;
    QPushButton* add_;
    QPushButton* remove_;
    QPushButton* ok_;
    QPushButton* cancel_;
};

}  // namespace verdane
