#pragma once

#include <QString>
#include <QStringList>

#include <optional>

#include "tests/support/full_diary.h"
#include "tests/transfer/stored_files.h"

/// Diaries whose first rounds are archived.
namespace verdane::testing {

/// The first round of the diary of a `copied_folder` that is not archived: the rounds are on consecutive days
/// from 1 January 2023.
constexpr int first_kept_round = 5;
inline const QString day_of_first_kept_round = u"2023-01-06"_s;

/// The rows of a store as texts of tables and values: those of rounds before a day, those of other rounds,
/// and those of all other tables.
struct divided_rows {
    QStringList before;
    QStringList from;
    QStringList others;

    bool operator==(const divided_rows&) const = default;
};

divided_rows rows_divided_at(const QString& path, const QString& day);

/// The diary of a `copied_folder`, and a path for its old rounds.
struct archived_folder : copied_folder {
    QStringList arguments() const { return arguments_for(file_argument(diary), day_of_first_kept_round); }
    QStringList arguments_for(const QString& store, const QString& day) const
    {
        return {u"archive"_s, store, day, file_argument(target)};
    }
    std::optional<int> archive() const { return store_run(arguments()).run(); }

    divided_rows rows() const { return rows_divided_at(diary, day_of_first_kept_round); }
    /// True if the rounds of a diary that had these rows have been moved, and nothing else has changed.
    bool is_archived(const divided_rows& original) const;
};

}  // namespace verdane::testing
