#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <string_view>

#include "store/Connection1.h"
#include "store/recovery/diary_copy.h"
#include "store/tables/cost.h"
#include "store/tables/games.h"
#include "store/tables/games2.h"
#include "store/tables/Stat_rounds.h"

/// The rows of a diary that belong to some of its rounds.
namespace verdane {

/// The tables with the rows of a round. The key is the first column of each.
inline constexpr std::array tables_of_rounds{tables::games::table.name, tables::games2::table.name,
                                             tables::cost::table.name, tables::Stat_rounds::table.name};

using text_set = QSet<QString>;

table_rows all_rows(const Connection1& store, const table& read);

/// The rows of a table of rounds with one of the keys, or with none of them.
table_rows rows_of_keys(const Connection1& store, const table& read, const text_set& keys);
table_rows rows_of_other_keys(const Connection1& store, const table& read, const text_set& keys);

/// What rounds refer to.
struct references {
    /// The codes of the courses, trimmed.
    text_set courses;
    /// The texts of `PARTNERS`.
    QStringList partners;
};

references references_of(const Connection1& store, const text_set& keys);

/// The rows of these courses, or of their holes. `code` is the ordinal of the column with the course code.
table_rows rows_of_courses(const Connection1& store, const table& read, int code, const text_set& courses);

/// The partners whose number is anywhere in one of the texts, as the selection window finds it.
table_rows rows_of_partners(const Connection1& store, const table& read, const QStringList& texts);

}  // namespace verdane
