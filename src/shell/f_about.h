#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include "controls/control_array.h"
#include "controls/Form.h"

namespace verdane {

/// Shows the version, and opens the system information tool of the platform.
class f_about : public Form {
public:
    f_about();

    QLabel* lblTitle = nullptr;
    QLabel* lblVersion = nullptr;
    QLabel* lblDescription = nullptr;
    QLabel* lblDisclaimer = nullptr;
    QLabel* Label1 = nullptr;
    control_array<QFrame> Line1{u"Line1"};
    QPushButton* cmdSysInfo = nullptr;
    QPushButton* cmdOK = nullptr;

protected:
    void activated() override;
    void unloading() override;

private:
    void make_controls();
    void lay_out();
};

}  // namespace verdane
