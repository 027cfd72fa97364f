#pragma once

#include "controls/Form.h"

namespace verdane {

/// Lets the user choose the language when the store has none yet. One window with captions in both languages,
/// so it has no twin. Writes the language to the current row of `rssettings`, which must be open.
class f_lang : public Form {
public:
    f_lang();

private:
    void choose(int language);
};

}  // namespace verdane
