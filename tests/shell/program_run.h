#pragma once

#include <QStringList>
#include <QTemporaryDir>

#include <functional>

#include "tests/support/hand.h"
#include "tests/support/reader.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

/// The whole program on a store of its own in a temporary data folder, run as `main` runs it.
class program_run {
public:
    /// Lays the store down and prepares it with statements; `language` is the stored value.
    explicit program_run(int language = 0, const QStringList& statements = {});
    ~program_run();

    /// Runs the program while the script plays; the exit status.
    int play_through(const std::function<void(hand&)>& script);

    const reader& store() const { return store_; }
    static QString store_path();

private:
    QTemporaryDir home_;
    reader store_;
};

/// Statements that put a course with 18 holes of par 4 and one round on it into a store.
QStringList one_course();
QStringList one_round(const QString& key = u"20260614093000"_s);
/// The course with that many rounds on it.
QStringList rounds(int count);

}  // namespace verdane::testing
