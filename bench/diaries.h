#pragma once

#include <QString>
#include <QTemporaryDir>

#include <optional>

#include "store/store_location.h"
#include "tests/support/full_diary.h"

namespace verdane::bench {

/// The diaries for the measurements, created in the program's folder so that their commits reach a
/// real disk (a folder for temporary files may be in memory). Each is created when it is first
/// used.
class diaries {
public:
    diaries();

    /// 366 rounds, in the folder in which the program looks for its store.
    QString full() const;
    /// The first half of these rounds, to measure growth.
    QString half() const;
    /// 300 rounds: every save uses one of the 366 entries for keys, so a full diary allows no save.
    QString with_free_keys() const;
    /// The same rounds as `full` on the registered data source, which must be empty at first. Nothing if no
    /// source is registered.
    std::optional<store_location> on_source() const;
    /// The value of `XDG_DATA_HOME` with which the program opens the full diary.
    QString data_home() const;

    static constexpr int rounds_with_free_keys = 300;
    static constexpr int rounds_of_half = testing::rounds_of_full_diary / 2;

private:
    QString created(const QString& name, int rounds) const;

    QTemporaryDir folder_;
    mutable bool is_on_source_ = false;
};

/// The diaries of this run; made at the first call.
const diaries& diaries_of_run();

/// Keeps the program's connection open on a store.
class opened_store {
public:
    explicit opened_store(const store_location& store);
    explicit opened_store(const QString& path) : opened_store(store_location::file(path)) {}
    ~opened_store();
    opened_store(const opened_store&) = delete;
    opened_store& operator=(const opened_store&) = delete;
};

}  // namespace verdane::bench
