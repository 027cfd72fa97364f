#pragma once

#include <QDate>
#include <QObject>
#include <QThread>

#include <functional>
#include <memory>
#include <utility>

#include "base/language.h"
#include "base/run_time_failure.h"
#include "store/recovery/dated_copies.h"
#include "store/store_location.h"

namespace verdane {

/// Writes the copy of the day of the embedded store (`store/dated_copies.h`) in a thread of its own, so that
/// the windows can be used meanwhile. A failure is reported and has no other effect.
class daily_copy {
public:
    using failure_report = std::function<void(const run_time_failure&)>;

    /// Writes the copy of a day; `write_dated_copy` but for tests.
    using copy_writer = std::function<bool(const QString& store, QDate day)>;

    explicit daily_copy(copy_writer write = write_dated_copy) : write_(std::move(write)) {}
    /// Waits until the copy is written or has failed. A failure is not reported any more.
    ~daily_copy();
    daily_copy(const daily_copy&) = delete;
    daily_copy& operator=(const daily_copy&) = delete;

    /// Starts to write the copy of today, once. Does nothing with a registered source. `report` is called in
    /// the thread of the caller.
    void start(const store_location& store, failure_report report);

private:
    copy_writer write_;
    /// Belongs to the thread of the windows, in which the report of the other thread is called.
    std::unique_ptr<QObject> receiver_;
    std::unique_ptr<QThread> thread_;
};

/// One line that says why there is no copy of the day.
text_pair copy_failure_words(failure_kind kind);

}  // namespace verdane
