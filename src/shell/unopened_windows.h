#pragma once

#include "controls/Form.h"
#include "reports/report_control.h"

class QSvgWidget;

/// Windows that no command opens.
namespace verdane {

/// A window with a picture, placed relative to the main window.
class f_flash : public Form {
public:
    f_flash();

protected:
    void activated() override;

private:
    QSvgWidget* picture_;
};

/// The window "Please Wait".
class wait_form : public Form {
public:
    wait_form();
};

/// A window with a report control.
class f_report : public Form {
public:
    f_report();

    report_control& cr2() { return cr2_; }

private:
    report_control cr2_;
};

}  // namespace verdane
