#pragma once

#include <QString>
#include <QVariant>

#include <utility>
#include <vector>

#include "base/counts.h"
#include "scoring/hole_summary.h"
#include "store/schema.h"

/// New rows of a round whose figures are counted from shots.
namespace verdane {

/// A new row of a table of the store.
class row_of_round {
public:
    explicit row_of_round(const tables::table_declaration& declaration);

    void set(int ordinal, const QString& value) { values_.at(static_cast<std::size_t>(ordinal)) = value; }
    void set(int ordinal, int16 value) { values_.at(static_cast<std::size_t>(ordinal)) = plain(value); }

    std::pair<QString, std::vector<QVariant>> named() const { return {table_.name, values_}; }

private:
    const table& table_;
    std::vector<QVariant> values_;
};

/// Writes the strokes, penalties and missed shots of a hole to a row of `games`.
void set_strokes(row_of_round& row, int hole, const hole_summary& counted);

/// Writes the situation of a hole and the lengths of its putts to a row of `games2`.
void set_situation(row_of_round& row, int hole, const hole_summary& counted);

}  // namespace verdane
