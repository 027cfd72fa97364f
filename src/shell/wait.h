#pragma once

#include <QLabel>

#include "controls/Form.h"

namespace verdane {

/// "Please Wait". It has its look, and no command opens it.
class wait_form : public Form {
public:
    wait_form();

    QLabel* Label1 = nullptr;
};

}  // namespace verdane
