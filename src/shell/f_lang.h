#pragma once

#include "controls/Form.h"

namespace verdane {

/// The window in which the user chooses the language if the store has none yet. Its captions are in both
/// languages, so it has no twin. Writes the language to the current row of `rssettings`, which must be open.
class f_lang : public Form {
public:
    f_lang();

private:
    void choose(int language);
};

/// The values of the column `language` of the table `settings`. Any other value that is not Null means that
/// no language has been chosen yet.
constexpr int french_value = 1;
constexpr int english_value = 2;

constexpr bool is_language_value(int value)
{
    return value == french_value || value == english_value;
}

}  // namespace verdane
