#pragma once

#include <QChar>

#include <functional>

class QLineEdit;

namespace verdane {

/// What happens to a character that is typed into a box.
enum class key_answer {
    pass,    ///< the box inserts the character
    refuse,  ///< the bell rings and the text does not change
    taken,   ///< the handler has already handled the character
};

/// Character 8, which always passes.
constexpr QChar backspace = u'\b';

/// Calls `handler` for every character that is typed into the box or composed by an input method. It is not
/// called for other keys, such as those for pasting, moving the cursor and Enter.
void filter_keys(QLineEdit& box, std::function<key_answer(QChar)> handler);

/// True for the characters "0" to "9", false for digits of other scripts.
bool is_plain_digit(QChar key);

/// The filter of a box for digits: digits and backspace pass, any other character is refused.
key_answer digits_only(QChar key);

/// Applies a filter to text that is pasted or dropped into the box: if it refuses one of the characters, the
/// bell rings and the text does not change. A box with `filter_keys` has this filter, too.
void filter_pasted_text(QLineEdit& box, std::function<key_answer(QChar)> filter);

/// Selects the first `length` characters of a box, so that the next digit replaces them.
void select_characters(QLineEdit& box, int length);

/// Selects the figure of a box, up to 4 characters.
void select_figure(QLineEdit& box);

/// Restricts a box to digits, also for pasted text. A typed digit replaces the figure of the box, which is
/// selected by a click and whenever the box gets the focus, and runs `move_on`.
void watch_digit_keys(QLineEdit& box, std::function<void()> move_on);

}  // namespace verdane
