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

    data_grid& grid() const { return *grid_; }

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
