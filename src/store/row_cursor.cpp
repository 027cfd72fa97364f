#include "store/row_cursor.h"

#include <algorithm>

#include "store/Connection1.h"
#include "store/find_criterion.h"

namespace verdane {

using namespace Qt::StringLiterals;

row_cursor::row_cursor(Connection1& c, recordset_settings s)
    : connection(c), settings(std::move(s)), source(settings.source)
{
}

recordset_row* row_cursor::current_or_null()
{
    return on_row() ? set.rows[static_cast<std::size_t>(place)].get() : nullptr;
}

recordset_row& row_cursor::current()
{
    need_rows();
    if (!on_row())
        fail(failure_kind::misuse, u"there is no current row"_s);
    return *set.rows[static_cast<std::size_t>(place)];
}

void row_cursor::need_open() const
{
    if (!open)
        fail(failure_kind::misuse, u"the recordset is closed"_s);
}

void row_cursor::need_rows()
{
    need_open();
    if (!unread)
        return;
    set = read();
    unread = false;
}

void row_cursor::need_all_rows()
{
    need_rows();
    if (stream != nullptr)
        fail(failure_kind::misuse, u"its rows are read one by one"_s);
}

row_set row_cursor::read() const
{
    const lock_wait::limit wait = time_out();
    return read_rows(connection, source, where(), read_first);
}

const QVariant& row_cursor::cell(recordset_row& row, int ordinal)
{
    if (!set.has_value(row, ordinal))
        complete(row);
    return row.cells[static_cast<std::size_t>(ordinal)];
}

void row_cursor::complete(recordset_row& row)
{
    if (row.complete)
        return;
    const lock_wait::limit wait = time_out();
    complete_row(connection, set, row, where());
}

void row_cursor::complete_all()
{
    const lock_wait::limit wait = time_out();
    complete_rows(connection, set, source, where());
    set.read_first.clear();
}

void row_cursor::open_stream()
{
    const lock_wait::limit wait = time_out();
    auto following = std::make_unique<row_stream>(connection, source, where(), row_use::read_only);
    set = following->columns();
    read_next(*following);
    stream = std::move(following);
}

void row_cursor::read_next(row_stream& following)
{
    set.rows.clear();
    if (auto row = following.next(set))
        set.rows.push_back(std::move(row));
}

void row_cursor::move_to(int target)
{
    place = std::clamp(target, -1, count());
    in_gap = false;
}

namespace {

find_criterion criterion_of(const row_cursor& rows, const QString& text)
{
    try {
        return find_criterion(text);
    } catch (const run_time_failure& failure) {
        rows.fail(failure.kind(), failure.details());
    }
}

}  // namespace

void row_cursor::find(const QString& criterion, search_direction direction)
{
    const find_criterion wanted = criterion_of(*this, criterion);
    const int ordinal = ordinal_of(wanted.column());
    if (std::any_of(set.rows.begin(), set.rows.end(),
                    [&](const auto& row) { return !set.has_value(*row, ordinal); }))
        complete_all();
    const auto column = static_cast<std::size_t>(ordinal);
    const auto& all = set.rows;
    const auto matches = [&wanted, column](const auto& row) { return wanted.matches(row->cells[column]); };
    const auto start = all.begin() + std::clamp(place, 0, count());
    if (direction == search_direction::backward) {
        // The current row is the first one that a backward search tests.
        const auto back_from = on_row() ? start + 1 : start;
        const auto back = std::find_if(std::make_reverse_iterator(back_from), all.rend(), matches);
        if (back != all.rend()) {
            move_to(static_cast<int>(all.rend() - back) - 1);
            return;
        }
    }
    // Callers that search backward from the first row expect the whole table to be searched.
    move_to(static_cast<int>(std::find_if(start, all.end(), matches) - all.begin()));
}

int row_cursor::checked_ordinal(int ordinal) const
{
    if (ordinal < 0 || ordinal >= static_cast<int>(set.columns.size()))
        fail(failure_kind::missing_table, u"no column %1"_s.arg(ordinal));
    return ordinal;
}

int row_cursor::ordinal_of(QStringView name) const
{
    const auto found = set.ordinals.constFind(name.toString().toLower());
    if (found == set.ordinals.constEnd())
        fail(failure_kind::missing_table, QString(u"no column " + name));
    return found.value();
}

const QString& row_cursor::column_name(int ordinal) const
{
    return set.columns[static_cast<std::size_t>(ordinal)].name;
}

lock_wait::limit row_cursor::time_out() const
{
    return {connection.waiting(), settings.time_out_s};
}

void row_cursor::fail(failure_kind kind, const QString& what) const
{
    throw run_time_failure(kind, QString(where() + u": " + what));
}

QString row_cursor::where() const
{
    return settings.name + u" [" + source + u']';
}

}  // namespace verdane
