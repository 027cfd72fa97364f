#pragma once

#include <QSvgWidget>

#include "controls/Form.h"

namespace verdane {

/// A picture window. It has its look, and no command opens it.
class f_flash : public Form {
public:
    f_flash();

    QSvgWidget* Image1 = nullptr;

protected:
    void activated() override;
};

}  // namespace verdane
