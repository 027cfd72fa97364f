#pragma once

#include "base/failure_subject.h"

namespace verdane {

/// A window that shows a round. The report of a failure of figures that names no round names this one
/// (`end_after_failure`).
class shows_subject {
public:
    shows_subject();
    virtual ~shows_subject();
    shows_subject(const shows_subject&) = delete;
    shows_subject& operator=(const shows_subject&) = delete;

    /// The round and the hole of the window; nothing before the round has a key.
    virtual failure_subject shown_subject() const = 0;
};

/// That of the window that was made last and still exists; nothing without one.
failure_subject subject_on_screen();

}  // namespace verdane
