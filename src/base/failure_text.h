#pragma once

#include <QString>

#include "base/failure_subject.h"
#include "base/language.h"

namespace verdane {

/// What the user reads about a failure, in a language: what happened, what it means for the data and what to
/// do, and in a paragraph of its own the rounds and the hole that it concerns. A list that is named has a
/// text of its own in place of that of the kind (`failure_words`).
QString failure_text(const run_time_failure& failure, bool french);

/// The text about a list that is full; no text for `unnamed`.
text_pair words_of_full_list(limited_list list);

/// "Round of 2026-05-31 12:00:00, Alpha, hole 4."; empty if no round and no hole is known.
QString subject_text(const failure_subject& subject, bool french);

}  // namespace verdane
