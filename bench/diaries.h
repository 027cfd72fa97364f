#pragma once

#include <QString>
#include <QTemporaryDir>

#include "full_diary.h"

namespace verdane::bench {

/// The diaries that everything is measured on, laid down beside the program so that their commits
/// reach a real disk (a folder for temporary files may live in memory). Each is made when it is first
/// asked for.
class diaries {
public:
    diaries();

    /// 366 rounds, where the program itself looks for its store.
    QString full() const;
    /// The first half of these rounds: how much longer the full diary takes is told by it.
    QString half() const;
    /// 300 rounds: every save takes one of the 366 places for keys, so a full diary takes none.
    QString with_room() const;
    /// What `XDG_DATA_HOME` has to be for a program that starts on the full diary.
    QString data_home() const;

    static constexpr int rounds_with_room = 300;
    static constexpr int rounds_of_half = testing::rounds_of_full_diary / 2;

private:
    QString laid_down(const QString& name, int rounds) const;

    QTemporaryDir folder_;
};

/// The diaries of this run; made at the first call.
const diaries& diaries_of_run();

/// Keeps the program's own connection open on a store.
class opened_store {
public:
    explicit opened_store(const QString& path);
    ~opened_store();
    opened_store(const opened_store&) = delete;
    opened_store& operator=(const opened_store&) = delete;
};

}  // namespace verdane::bench
