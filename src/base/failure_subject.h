#pragma once

#include <QString>

#include <functional>
#include <utility>

#include "base/run_time_failure.h"

namespace verdane {

/// A list of fixed length, if a failure of the kind `subscript` concerns one that the user knows.
enum class limited_list {
    unnamed,          ///< any other list
    round_keys,       ///< the places for round keys, of which each save takes one
    stored_rounds,    ///< the rounds of the diary, when it is opened
    courses,          ///< the courses, each with one tee
    putts_of_a_hole,  ///< the putts of a hole that the putt statistics count
};

/// What a failure concerns, as far as it is known.
struct failure_subject {
    limited_list list = limited_list::unnamed;
    /// Date and time of a round, or of the first one of several, as the user reads them; empty if there is
    /// none.
    QString round = {};
    /// The last one of several rounds; empty for one round.
    QString last_round = {};
    QString course = {};
    /// 1 to 18; 0 if there is none.
    int hole = 0;

    bool operator==(const failure_subject&) const = default;
};

/// A failure of which it is known what it concerns.
class failure_with_subject : public run_time_failure {
public:
    failure_with_subject(const run_time_failure& failure, failure_subject subject)
        : run_time_failure(failure), subject_(std::move(subject))
    {
    }

    const failure_subject& subject() const { return subject_; }

private:
    failure_subject subject_;
};

/// What a failure concerns; nothing if that is not known.
failure_subject subject_of(const run_time_failure& failure);

/// True for the failures of a computation: overflow, index outside a list, missing value.
bool is_failure_of_figures(failure_kind kind);

/// The failure with what it concerns. `known` is called for a failure of figures only, because it may need
/// the store; if it fails, the subject stays as it was. A round and a hole that the failure already names are
/// kept: they were added nearer to the cause.
failure_with_subject with_subject(const run_time_failure& failure,
                                  const std::function<failure_subject()>& known);

/// Calls a routine, and adds what it works on to its failure (`with_subject`).
template <typename Routine>
decltype(auto) concerning(const std::function<failure_subject()>& subject, Routine&& routine)
{
    try {
        return routine();
    } catch (const run_time_failure& failure) {
        throw with_subject(failure, subject);
    }
}

}  // namespace verdane
