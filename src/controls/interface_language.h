#pragma once

#include "base/language.h"

/// The language of the interface while the program runs: set once at the start, and again whenever the user
/// changes it.
namespace verdane {

/// Sets `is_french` and loads the texts of the toolkit (Yes, No, Cancel, the months of a calendar, the print
/// dialog) in that language.
void set_interface_language(bool french);

/// The state of a program that starts: French, until a language is set.
void reset_interface_language();

/// The text for a message that may be needed before a language is set: in the language of the interface, or
/// in both languages with `separator` between them while none is set.
QString in_known_language(const text_pair& text, QStringView separator = u"\n\n");

}  // namespace verdane
