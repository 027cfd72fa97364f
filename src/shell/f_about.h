#pragma once

#include "controls/Form.h"

class QLayout;
class QPushButton;

namespace verdane {

/// Shows the version and which store is open, and opens the system information tool of the platform.
class f_about : public Form {
public:
    f_about();

protected:
    void activated() override;
    void unloading() override;

private:
    QLayout* make_texts();
    QLayout* make_buttons();
    void lay_out();

    QPushButton* ok_;
};

}  // namespace verdane
