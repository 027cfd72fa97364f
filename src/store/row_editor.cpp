#include "store/row_editor.h"

#include <algorithm>

#include "store/column_value.h"
#include "store/commits.h"
#include "store/Connection1.h"
#include "store/row_writer.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool is_pending(const std::unique_ptr<recordset_row>& row)
{
    return row->pending != nullptr;
}

std::vector<recordset_row*> pending_rows(const row_list& rows)
{
    std::vector<recordset_row*> pending;
    for (const auto& row : rows) {
        if (is_pending(row))
            pending.push_back(row.get());
    }
    return pending;
}

}  // namespace

void row_editor::close()
{
    close_rows();
    removed_.clear();
}

void row_editor::requery()
{
    commit_on_leaving();
    if (is_unread())
        return;
    need_all_rows();
    read_again();
    removed_.clear();
}

bool row_editor::pending() const
{
    if (!is_open())
        return false;
    if (batch())
        return !removed_.empty() || std::any_of(set().rows.begin(), set().rows.end(), is_pending);
    const recordset_row* row = current_or_null();
    return row != nullptr && row->pending != nullptr;
}

void row_editor::commit_on_leaving()
{
    need_open();
    if (batch())
        return;
    if (recordset_row* row = current_or_null())
        commit(*row);
}

void row_editor::leave_row()
{
    need_all_rows();
    commit_on_leaving();
}

void row_editor::commit(recordset_row& row)
{
    if (!row.pending)
        return;
    const lock_wait::limit wait = time_out();
    row.number = write_row(connection(), set(), row, where());
    row.pending.reset();
}

void row_editor::commit_all()
{
    need_open();
    if (batch())
        commit_batch();
    else
        commit_on_leaving();
}

void row_editor::commit_batch()
{
    const std::vector<recordset_row*> pending = pending_rows(set().rows);
    if (pending.empty() && removed_.empty())
        return;
    std::vector<qint64> numbers;
    const lock_wait::limit wait = time_out();
    single_commit together(connection());
    for (const auto& row : removed_)
        erase_row(connection(), set(), *row, where());
    for (const recordset_row* row : pending)
        numbers.push_back(write_row(connection(), set(), *row, where()));
    together.finish();
    // Nothing in memory changes before the commit, so after a failure everything is still pending.
    removed_.clear();
    for (std::size_t i = 0; i < pending.size(); ++i) {
        pending[i]->number = numbers[i];
        pending[i]->pending.reset();
    }
}

void row_editor::cancel_current()
{
    need_open();
    if (recordset_row* row = current_or_null())
        cancel(*row);
}

void row_editor::cancel(recordset_row& row)
{
    if (!row.pending)
        return;
    if (!row.pending->is_new) {
        for (auto& [ordinal, before] : row.pending->before)
            row.cells[static_cast<std::size_t>(ordinal)] = std::move(before);
        row.pending.reset();
        return;
    }
    remove_appended(row, row.pending->came_from);
}

void row_editor::need_updatable()
{
    need_rows();
    if (!set().shape.updatable)
        fail(failure_kind::misuse, u"its rows cannot be written"_s);
}

void row_editor::add()
{
    need_updatable();
    commit_on_leaving();
    auto row = std::make_unique<recordset_row>();
    for (const recordset_column& column : set().columns)
        row->cells.push_back(column.default_value);
    row->pending = std::make_unique<pending_edit>();
    row->pending->is_new = true;
    row->pending->came_from = current_or_null();
    append(std::move(row));
}

void row_editor::write(int ordinal, const QVariant& value)
{
    need_updatable();
    recordset_row& row = current();
    const auto at = static_cast<std::size_t>(checked_ordinal(ordinal));
    if (!set().columns[at].stored)
        fail(failure_kind::misuse, QString(column(ordinal).name + u" is no column of the table"));
    complete(row);
    QVariant stored = located(ordinal, [&] { return converted(value, set().columns[at].type); });
    if (!row.pending)
        row.pending = std::make_unique<pending_edit>();
    auto& before = row.pending->before;
    if (std::none_of(before.begin(), before.end(), [ordinal](const auto& e) { return e.first == ordinal; }))
        before.emplace_back(ordinal, row.cells[at]);
    row.cells[at] = std::move(stored);
}

void row_editor::remove()
{
    need_updatable();
    recordset_row& row = current();
    const bool in_store = !row.pending || !row.pending->is_new;
    if (in_store)
        number_equal_rows(set(), row);
    if (in_store && !batch()) {
        const lock_wait::limit wait = time_out();
        erase_row(connection(), set(), row, where());
    }
    if (in_store && batch())
        cancel(row);
    std::unique_ptr<recordset_row> taken = take_current();
    if (in_store && batch())
        removed_.push_back(std::move(taken));
}

}  // namespace verdane
