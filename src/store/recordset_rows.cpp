#include "store/recordset_rows.h"

#include "store/column_value.h"
#include "store/Connection1.h"
#include "store/row_writer.h"
#include "store/single_commit.h"

#include <algorithm>

namespace verdane {

using namespace Qt::StringLiterals;

void Recordset::rows::fail(failure_kind kind, const QString& what) const
{
    throw run_time_failure(kind, QString(where() + u": " + what));
}

QString Recordset::rows::where() const
{
    return settings.name + u" [" + source + u']';
}

void Recordset::rows::need_open() const
{
    if (!open)
        fail(failure_kind::misuse, u"the recordset is closed"_s);
}

void Recordset::rows::need_rows()
{
    need_open();
    if (!unread)
        return;
    set = read();
    unread = false;
}

row_set Recordset::rows::read() const
{
    const lock_wait::limit wait = time_out();
    return read_rows(connection, source, where());
}

void Recordset::rows::need_all_rows()
{
    need_rows();
    if (stream != nullptr)
        fail(failure_kind::misuse, u"its rows are read one by one"_s);
}

void Recordset::rows::open_stream()
{
    const lock_wait::limit wait = time_out();
    auto rows_to_come = std::make_unique<row_stream>(connection, source, where(), row_use::read_only);
    set = rows_to_come->columns();
    pass_to_next(*rows_to_come);
    stream = std::move(rows_to_come);
}

void Recordset::rows::pass_to_next(row_stream& rows_to_come)
{
    set.rows.clear();
    if (auto row = rows_to_come.next(set))
        set.rows.push_back(std::move(row));
}

recordset_row& Recordset::rows::current()
{
    need_rows();
    if (!on_row())
        fail(failure_kind::misuse, u"there is no current row"_s);
    return *set.rows[static_cast<std::size_t>(place)];
}

int Recordset::rows::checked_ordinal(int ordinal) const
{
    if (ordinal < 0 || ordinal >= static_cast<int>(set.columns.size()))
        fail(failure_kind::missing_table, u"no column %1"_s.arg(ordinal));
    return ordinal;
}

void Recordset::rows::need_updatable()
{
    need_rows();
    if (!set.shape.updatable)
        fail(failure_kind::misuse, u"its rows cannot be written"_s);
}

void Recordset::rows::stand_at(int target)
{
    place = std::clamp(target, -1, count());
    in_gap = false;
}

void Recordset::rows::forget_rows()
{
    stream.reset();
    set = {};
    removed.clear();
    stand_at(0);
}

void Recordset::rows::commit_on_leaving()
{
    need_open();
    if (batch())
        return;
    if (recordset_row* row = current_or_null())
        commit(*row);
}

void Recordset::rows::leave_row()
{
    need_all_rows();
    commit_on_leaving();
}

void Recordset::rows::commit(recordset_row& row)
{
    if (!row.pending)
        return;
    const lock_wait::limit wait = time_out();
    row.number = write_row(connection, set, row, where());
    row.pending.reset();
}

namespace {

std::vector<recordset_row*> waiting_rows(const row_list& rows)
{
    std::vector<recordset_row*> waiting;
    for (const auto& row : rows) {
        if (row->pending)
            waiting.push_back(row.get());
    }
    return waiting;
}

}  // namespace

void Recordset::rows::commit_all()
{
    const std::vector<recordset_row*> waiting = waiting_rows(set.rows);
    if (waiting.empty() && removed.empty())
        return;
    std::vector<qint64> numbers;
    const lock_wait::limit wait = time_out();
    single_commit together(connection);
    for (const removed_row& gone : removed)
        erase_row(connection, set, gone.row->number, where());
    for (const recordset_row* row : waiting)
        numbers.push_back(write_row(connection, set, *row, where()));
    together.finish();
    // Only now: until the store has taken everything, everything stays pending.
    removed.clear();
    for (std::size_t i = 0; i < waiting.size(); ++i) {
        waiting[i]->number = numbers[i];
        waiting[i]->pending.reset();
    }
}

void Recordset::rows::cancel(recordset_row& row)
{
    if (!row.pending)
        return;
    if (!row.pending->is_new) {
        for (auto& [ordinal, before] : row.pending->before)
            row.cells[static_cast<std::size_t>(ordinal)] = std::move(before);
        row.pending.reset();
        return;
    }
    const recordset_row* origin = row.pending->came_from;
    std::erase_if(set.rows, [&row](const auto& candidate) { return candidate.get() == &row; });
    const auto back = std::find_if(set.rows.begin(), set.rows.end(),
                                   [origin](const auto& candidate) { return candidate.get() == origin; });
    stand_at(static_cast<int>(back - set.rows.begin()));
}

void Recordset::rows::write(int ordinal, const QVariant& value)
{
    need_updatable();
    recordset_row& row = current();
    const auto at = static_cast<std::size_t>(checked_ordinal(ordinal));
    if (!set.columns[at].stored)
        fail(failure_kind::misuse, QString(column_name(ordinal) + u" is no column of the table"));
    QVariant stored = located(ordinal, [&] { return converted(value, set.columns[at].type); });
    if (!row.pending)
        row.pending = std::make_unique<pending_edit>();
    auto& before = row.pending->before;
    if (std::none_of(before.begin(), before.end(), [ordinal](const auto& e) { return e.first == ordinal; }))
        before.emplace_back(ordinal, row.cells[at]);
    row.cells[at] = std::move(stored);
}

}  // namespace verdane
