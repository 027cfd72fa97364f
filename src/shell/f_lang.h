#pragma once

#include <QPushButton>

#include "controls/control_array.h"
#include "controls/Form.h"

namespace verdane {

/// Asks for the language when the store holds none yet. Bilingual by nature, so it has no twin.
/// `rssettings` is open on its row.
class f_lang : public Form {
public:
    f_lang();

    control_array<QPushButton> Command1{u"Command1"};
    QPushButton* Command2 = nullptr;

private:
    void choose(int language);
};

}  // namespace verdane
