#pragma once

namespace verdane {

/// What the column `language` of the table `settings` holds. Any other value that is not Null means
/// that no language was chosen yet.
constexpr int french_value = 1;
constexpr int english_value = 2;

constexpr bool is_language_value(int value)
{
    return value == french_value || value == english_value;
}

}  // namespace verdane
