#pragma once

#include <QChar>

#include <functional>

class QLineEdit;

namespace verdane {

/// What a box does with a key that was typed into it.
enum class key_answer {
    pass,    ///< the box takes the character
    refuse,  ///< the bell rings and the box stays as it is
    taken,   ///< the handler has put the character where it belongs itself
};

/// Character 8, which always passes.
constexpr QChar backspace = u'\b';

/// Asks `handler` for every character that is typed into the box (also those composed by an input
/// method). Commands of the keyboard, such as pasting, moving and Enter, do not pass through it.
void filter_keys(QLineEdit& box, std::function<key_answer(QChar)> handler);

/// True for the characters "0" to "9", compared by code: digits of other scripts are none.
bool is_plain_digit(QChar key);

/// The filter of a box of digits: those and backspace pass, any other key is refused.
key_answer digits_only(QChar key);

/// What comes into the box by another road than the keys (pasted, dropped) has to pass, character by
/// character; else the bell rings and the box stays as it is. A box with a filter for its keys has one for
/// this, too.
void filter_pasted_text(QLineEdit& box, std::function<key_answer(QChar)> filter);

/// Selects the first `length` characters of a box, so that a new digit replaces its figure.
void select_characters(QLineEdit& box, int length);

}  // namespace verdane
