#pragma once

#include <QStringList>
#include <QTemporaryDir>

#include <functional>

#include "tests/support/hand.h"
#include "tests/support/reader.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

/// Runs the whole program, as `main` does, with a temporary data folder and a new store: in that folder, or
/// on the other engines in the registered source.
class program_run {
public:
    /// Creates the store and runs statements on it; `language` is the stored value.
    explicit program_run(int language = 0, const QStringList& statements = {});
    ~program_run();

    /// Runs the program together with the script, and returns the exit status.
    int play_through(const std::function<void(hand&)>& script);
    /// The same with a given user.
    int play_through(const std::function<void(hand&)>& script, hand& user);

    const reader& store() const { return store_; }
    /// The store that the program opens.
    static store_location store_place();
    /// The file of the embedded engine.
    static QString store_path();

private:
    QTemporaryDir home_;
    reader store_;
};

/// Statements that insert a course with 18 holes of par 4, and one round on it.
QStringList one_course();
QStringList one_round(const QString& key = u"20260614093000"_s);
/// Statements that insert the course and `count` rounds on it.
QStringList rounds(int count);

}  // namespace verdane::testing
