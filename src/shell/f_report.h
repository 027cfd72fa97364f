#pragma once

#include "controls/Form.h"
#include "reports/report_control.h"

namespace verdane {

/// A window with a report control and nothing else. No command opens it.
class f_report : public Form {
public:
    f_report();

    report_control cr2;
};

}  // namespace verdane
