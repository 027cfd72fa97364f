#include "store/Connection1.h"
#include "store/recordset_rows.h"
#include "store/row_writer.h"

#include <algorithm>

/// Adding, writing, committing and removing rows.
namespace verdane {

void Recordset::AddNew()
{
    rows_->need_updatable();
    rows_->commit_on_leaving();
    auto row = std::make_unique<recordset_row>();
    for (const recordset_column& column : rows_->set.columns)
        row->cells.push_back(column.default_value);
    row->pending = std::make_unique<pending_edit>();
    row->pending->is_new = true;
    row->pending->came_from = rows_->current_or_null();
    rows_->set.rows.push_back(std::move(row));
    rows_->stand_at(rows_->count() - 1);
}

void Recordset::Update()
{
    // With a batch lock the row is marked by what waits on it, and nothing is left to do.
    rows_->commit_on_leaving();
}

void Recordset::UpdateBatch(affect)
{
    rows_->need_open();
    if (rows_->batch())
        rows_->commit_all();
    else
        rows_->commit_on_leaving();
}

void Recordset::CancelUpdate()
{
    rows_->need_open();
    if (recordset_row* row = rows_->current_or_null())
        rows_->cancel(*row);
}

void Recordset::Delete()
{
    rows_->need_updatable();
    recordset_row& row = rows_->current();
    const bool in_store = !row.pending || !row.pending->is_new;
    if (in_store && !rows_->batch()) {
        const lock_wait::limit wait = rows_->time_out();
        erase_row(rows_->connection, rows_->set, row.number, rows_->where());
    }
    const auto place = static_cast<std::size_t>(rows_->place);
    auto& all = rows_->set.rows;
    if (in_store && rows_->batch()) {
        rows_->cancel(row);
        rows_->removed.push_back({place, std::move(all[place])});
    }
    all.erase(all.begin() + rows_->place);
    rows_->in_gap = true;
}

bool Recordset::pending() const
{
    if (!rows_->open)
        return false;
    const auto waits = [](const auto& row) { return row->pending != nullptr; };
    if (rows_->batch())
        return !rows_->removed.empty() || std::any_of(rows_->set.rows.begin(), rows_->set.rows.end(), waits);
    const recordset_row* row = rows_->current_or_null();
    return row != nullptr && row->pending != nullptr;
}

void Recordset::drop_pending()
{
    if (!rows_->open)
        return;
    auto& all = rows_->set.rows;
    std::erase_if(all, [](const auto& row) { return row->pending && row->pending->is_new; });
    // Backwards, so that each row finds the place that it had when it was removed.
    for (auto gone = rows_->removed.rbegin(); gone != rows_->removed.rend(); ++gone)
        all.insert(all.begin() + static_cast<std::ptrdiff_t>(std::min(gone->place, all.size())),
                   std::move(gone->row));
    rows_->removed.clear();
    for (const auto& row : all)
        rows_->cancel(*row);
    rows_->stand_at(rows_->place);
}

}  // namespace verdane
