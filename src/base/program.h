#pragma once

#include <QString>

#include "base/language.h"

/// What the programs, Verdane and `verdane-store`, need at their start, and the language of their interface.
namespace verdane {

/// The version of the program, "1.4", from the project's declaration in the main `CMakeLists.txt`.
QString program_version();

/// What the user types in a shell to run `verdane-store`: its name if the shell finds it (PATH), otherwise
/// the quoted path of the program in the folder of the running one.
QString command_of_store_program();
/// The text in quotes, as one word of a shell.
QString in_shell_quotes(QString text);

/// Makes a write beyond the limit on file sizes (`ulimit -f`) fail like a write to a full disk. Without this
/// call such a write ends the process. Called once, at the start; does nothing on systems without that limit.
void let_oversized_writes_fail();

/// Loads the toolkit's own texts in the current language (`is_french`), and sets its locale. The texts are in
/// English if the files of the toolkit's translations are missing.
void load_toolkit_texts();

/// Sets `is_french` and loads the texts of the toolkit (Yes, No, Cancel, the months of a calendar, the print
/// dialog) in that language. Called at the start, and again whenever the user changes the language.
void set_interface_language(bool french);

/// The state of a program that starts: French, until a language is set.
void reset_interface_language();

/// The text for a message that may be needed before a language is set: in the language of the interface, or
/// in both languages with `separator` between them while none is set.
QString in_known_language(const text_pair& text, QStringView separator = u"\n\n");

}  // namespace verdane
