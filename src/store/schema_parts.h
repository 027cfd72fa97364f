#pragma once

#include "scoring/limits.h"
#include "store/schema.h"

#include <initializer_list>

/// The words in which the tables are written down, and the three groups they are written in.
namespace verdane {

/// A table's columns, put one after the other. Every word returns the list, so that a table reads
/// from top to bottom in the order of its ordinals.
class column_list {
public:
    column_list& text(std::initializer_list<QStringView> names);
    column_list& one(QStringView name, column_type type, const QVariant& default_value = {});
    /// `prefix_FIRST` to `prefix_LAST`.
    column_list& run(QStringView prefix, int first, int last, column_type type,
                     const QVariant& default_value = {});
    /// For each hole in turn, one whole number for each prefix: `a_1`, `b_1`, `a_2`, `b_2`, ...
    column_list& by_hole(std::initializer_list<QStringView> prefixes, const QVariant& default_value = {});
    /// A place that nothing writes, which keeps the ordinals behind it where readers expect them.
    column_list& spare(QStringView name) { return one(name, column_type::any); }
    column_list& spares(QStringView prefix, int count) { return run(prefix, 1, count, column_type::any); }

    operator std::vector<column>() const { return columns_; }

private:
    std::vector<column> columns_;
};

/// `games`, `games2`, `cost`, `Stat_rounds`.
std::vector<table> round_tables();
/// Courses, partners, the golf bag and the settings.
std::vector<table> reference_tables();
/// What the reports print from.
std::vector<table> report_tables();

}  // namespace verdane
