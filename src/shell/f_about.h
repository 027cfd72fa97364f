#pragma once

#include <QString>

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

/// The platform's system information tool; empty where there is none.
QString system_information_tool();

/// Starts that tool with a normal window, or shows a message that there is none.
void show_system_information();

}  // namespace verdane
