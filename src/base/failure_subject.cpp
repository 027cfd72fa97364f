#include "base/failure_subject.h"

namespace verdane {

namespace {

failure_subject merged(failure_subject inner, const failure_subject& outer)
{
    if (inner.list == limited_list::unnamed)
        inner.list = outer.list;
    if (!inner.round.isEmpty())
        return inner;
    inner.round = outer.round;
    inner.last_round = outer.last_round;
    inner.course = outer.course;
    if (inner.hole == 0)
        inner.hole = outer.hole;
    return inner;
}

}  // namespace

failure_subject subject_of(const run_time_failure& failure)
{
    const auto* known = dynamic_cast<const failure_with_subject*>(&failure);
    return known ? known->subject() : failure_subject();
}

bool is_failure_of_figures(failure_kind kind)
{
    switch (kind) {
    case failure_kind::overflow:
    case failure_kind::subscript:
    case failure_kind::invalid_null:
        return true;
    default:
        return false;
    }
}

failure_with_subject with_subject(const run_time_failure& failure,
                                  const std::function<failure_subject()>& known)
{
    const failure_subject inner = subject_of(failure);
    if (!is_failure_of_figures(failure.kind()))
        return {failure, inner};
    try {
        return {failure, merged(inner, known())};
    } catch (const run_time_failure&) {
        return {failure, inner};
    }
}

}  // namespace verdane
