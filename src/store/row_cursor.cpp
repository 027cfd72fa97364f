#include "store/row_cursor.h"

#include <algorithm>

#include "store/Connection1.h"
#include "store/find_criterion.h"

namespace verdane {

using namespace Qt::StringLiterals;

row_cursor::row_cursor(Connection1& connection, recordset_settings settings)
    : connection_(connection), settings_(std::move(settings)), source_(settings_.source)
{
}

void row_cursor::open(row_reading reading, std::vector<int> read_first)
{
    if (open_)
        fail(failure_kind::misuse, u"the recordset is open already"_s);
    if (!connection_.is_open())
        fail(failure_kind::misuse, u"the connection is closed"_s);
    forget_rows();
    read_first_ = std::move(read_first);
    if (reading == row_reading::at_once)
        set_ = read();
    if (reading == row_reading::one_by_one)
        open_stream();
    unread_ = reading == row_reading::when_needed;
    open_ = true;
}

void row_cursor::read_again()
{
    row_set fresh = read();
    forget_rows();
    set_ = std::move(fresh);
}

void row_cursor::close_rows()
{
    need_open();
    open_ = false;
    forget_rows();
}

void row_cursor::forget_rows()
{
    stream_.reset();
    set_ = {};
    move_to(0);
}

recordset_row* row_cursor::current_or_null() const
{
    return on_row() ? set_.rows[static_cast<std::size_t>(place_)].get() : nullptr;
}

recordset_row& row_cursor::current()
{
    need_rows();
    if (!on_row())
        fail(failure_kind::misuse, u"there is no current row"_s);
    return *set_.rows[static_cast<std::size_t>(place_)];
}

recordset_row& row_cursor::row_at(int index) const
{
    if (index < 0 || index >= count())
        fail(failure_kind::misuse, u"there is no row %1"_s.arg(index));
    return *set_.rows[static_cast<std::size_t>(index)];
}

void row_cursor::need_open() const
{
    if (!open_)
        fail(failure_kind::misuse, u"the recordset is closed"_s);
}

void row_cursor::need_rows()
{
    need_open();
    if (!unread_)
        return;
    set_ = read();
    unread_ = false;
}

void row_cursor::need_all_rows()
{
    need_rows();
    if (reads_one_by_one())
        fail(failure_kind::misuse, u"its rows are read one by one"_s);
}

row_set row_cursor::read() const
{
    const lock_wait::limit wait = time_out();
    return read_rows(connection_, source_, where(), read_first_);
}

const QVariant& row_cursor::cell(recordset_row& row, int ordinal)
{
    if (!set_.has_value(row, ordinal))
        complete(row);
    return row.cells[static_cast<std::size_t>(ordinal)];
}

void row_cursor::complete(recordset_row& row)
{
    if (row.complete)
        return;
    const lock_wait::limit wait = time_out();
    complete_row(connection_, set_, row, where());
}

void row_cursor::complete_all()
{
    const lock_wait::limit wait = time_out();
    complete_rows(connection_, set_, source_, where());
    set_.read_first.clear();
}

void row_cursor::open_stream()
{
    const lock_wait::limit wait = time_out();
    auto following = std::make_unique<row_stream>(connection_, source_, where(), row_use::read_only);
    set_ = following->columns();
    replace_row(*following);
    stream_ = std::move(following);
}

void row_cursor::read_next()
{
    replace_row(*stream_);
}

void row_cursor::replace_row(row_stream& following)
{
    set_.rows.clear();
    if (auto row = following.next(set_))
        set_.rows.push_back(std::move(row));
}

void row_cursor::append(std::unique_ptr<recordset_row> row)
{
    set_.rows.push_back(std::move(row));
    move_to(count() - 1);
}

void row_cursor::remove_appended(const recordset_row& row, const recordset_row* next)
{
    std::erase_if(set_.rows, [&row](const auto& candidate) { return candidate.get() == &row; });
    const auto found = std::find_if(set_.rows.begin(), set_.rows.end(),
                                    [next](const auto& candidate) { return candidate.get() == next; });
    move_to(static_cast<int>(found - set_.rows.begin()));
}

std::unique_ptr<recordset_row> row_cursor::take_current()
{
    const auto at = set_.rows.begin() + place_;
    std::unique_ptr<recordset_row> taken = std::move(*at);
    set_.rows.erase(at);
    in_gap_ = true;
    return taken;
}

void row_cursor::move_to(int target)
{
    place_ = std::clamp(target, -1, count());
    in_gap_ = false;
}

void row_cursor::move_to_row(int index)
{
    row_at(index);
    move_to(index);
}

void row_cursor::move_by(int steps)
{
    if (steps == 0)
        return;
    // After a deletion, `place_` is already the index of the next row.
    const qint64 from = in_gap_ && steps > 0 ? place_ - 1 : place_;
    move_to(static_cast<int>(std::clamp<qint64>(from + steps, -1, count())));
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
    if (std::any_of(set_.rows.begin(), set_.rows.end(),
                    [&](const auto& row) { return !set_.has_value(*row, ordinal); }))
        complete_all();
    const auto column = static_cast<std::size_t>(ordinal);
    const auto& all = set_.rows;
    const auto matches = [&wanted, column](const auto& row) { return wanted.matches(row->cells[column]); };
    const auto start = all.begin() + std::clamp(place_, 0, count());
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

const recordset_column& row_cursor::column(int ordinal) const
{
    return set_.columns[static_cast<std::size_t>(checked_ordinal(ordinal))];
}

int row_cursor::checked_ordinal(int ordinal) const
{
    if (ordinal < 0 || ordinal >= static_cast<int>(set_.columns.size()))
        fail(failure_kind::missing_table, u"no column %1"_s.arg(ordinal));
    return ordinal;
}

int row_cursor::ordinal_of(QStringView name) const
{
    const auto found = set_.ordinals.constFind(name.toString().toLower());
    if (found == set_.ordinals.constEnd())
        fail(failure_kind::missing_table, QString(u"no column " + name));
    return found.value();
}

lock_wait::limit row_cursor::time_out() const
{
    return {connection_.waiting(), settings_.time_out_s};
}

void row_cursor::fail(failure_kind kind, const QString& what) const
{
    throw run_time_failure(kind, QString(where() + u": " + what));
}

QString row_cursor::where() const
{
    return settings_.name + u" [" + source_ + u']';
}

}  // namespace verdane
