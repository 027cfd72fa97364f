#include "store/Recordset.h"

#include <algorithm>

#include "store/Connection1.h"
#include "store/row_editor.h"

namespace verdane {

using namespace Qt::StringLiterals;

Recordset::Recordset(Connection1& connection, recordset_settings settings)
    : rows_(std::make_unique<row_editor>(connection, std::move(settings)))
{
}

Recordset::~Recordset() = default;

const QString& Recordset::name() const
{
    return rows_->settings.name;
}

const recordset_settings& Recordset::settings() const
{
    return rows_->settings;
}

const QString& Recordset::Source() const
{
    return rows_->source;
}

void Recordset::set_Source(const QString& statement)
{
    rows_->source = statement;
}

void Recordset::Open(row_reading reading)
{
    if (rows_->open)
        rows_->fail(failure_kind::misuse, u"the recordset is open already"_s);
    if (!rows_->connection.is_open())
        rows_->fail(failure_kind::misuse, u"the connection is closed"_s);
    rows_->forget_rows();
    if (reading == row_reading::at_once)
        rows_->set = rows_->read();
    if (reading == row_reading::one_by_one)
        rows_->open_stream();
    rows_->unread = reading == row_reading::when_needed;
    rows_->open = true;
}

void Recordset::Open(const first_columns& columns)
{
    rows_->read_first = columns.ordinals;
    try {
        Open();
    } catch (...) {
        rows_->read_first.clear();
        throw;
    }
}

void Recordset::Close()
{
    rows_->need_open();
    rows_->open = false;
    rows_->read_first.clear();
    rows_->forget_rows();
}

bool Recordset::is_open() const
{
    return rows_->open;
}

void Recordset::Requery()
{
    rows_->commit_on_leaving();
    if (rows_->unread)
        return;
    rows_->need_all_rows();
    // The old rows are kept until the new ones have been read: a failure changes nothing.
    row_set fresh = rows_->read();
    rows_->forget_rows();
    rows_->set = std::move(fresh);
}

bool Recordset::bof() const
{
    rows_->need_all_rows();
    return rows_->count() == 0 || rows_->place < 0;
}

bool Recordset::eof() const
{
    rows_->need_rows();
    return rows_->count() == 0 || (rows_->place >= rows_->count() && !rows_->in_gap);
}

bool Recordset::empty() const
{
    rows_->need_all_rows();
    return rows_->count() == 0;
}

int Recordset::RecordCount() const
{
    rows_->need_all_rows();
    return rows_->count();
}

int Recordset::position() const
{
    rows_->need_all_rows();
    return rows_->on_row() ? rows_->place : -1;
}

void Recordset::MoveFirst()
{
    rows_->leave_row();
    if (rows_->count() == 0)
        rows_->fail(failure_kind::misuse, u"there is no first row"_s);
    rows_->move_to(0);
}

void Recordset::MoveLast()
{
    rows_->leave_row();
    if (rows_->count() == 0)
        rows_->fail(failure_kind::misuse, u"there is no last row"_s);
    rows_->move_to(rows_->count() - 1);
}

void Recordset::MoveNext()
{
    if (rows_->stream != nullptr)
        rows_->read_next(*rows_->stream);
    else
        Move(1);
}

void Recordset::MovePrevious()
{
    Move(-1);
}

void Recordset::Move(int steps)
{
    rows_->leave_row();
    if (steps == 0)
        return;
    // In a gap `place` is the index of the next row.
    const qint64 from = rows_->in_gap && steps > 0 ? rows_->place - 1 : rows_->place;
    rows_->move_to(static_cast<int>(std::clamp<qint64>(from + steps, -1, rows_->count())));
}

void Recordset::MoveTo(int row)
{
    rows_->leave_row();
    if (row < 0 || row >= rows_->count())
        rows_->fail(failure_kind::misuse, u"there is no row %1"_s.arg(row));
    rows_->move_to(row);
}

void Recordset::Find(const QString& criterion, search_direction direction)
{
    rows_->leave_row();
    rows_->find(criterion, direction);
}

Field Recordset::Fields(int ordinal)
{
    rows_->need_rows();
    return {*this, rows_->checked_ordinal(ordinal)};
}

Field Recordset::Fields(QStringView name)
{
    rows_->need_rows();
    return {*this, rows_->ordinal_of(name)};
}

int Recordset::field_count() const
{
    rows_->need_rows();
    return static_cast<int>(rows_->set.columns.size());
}

QString Recordset::field_name(int ordinal) const
{
    rows_->need_rows();
    return rows_->set.columns[static_cast<std::size_t>(rows_->checked_ordinal(ordinal))].name;
}

column_type Recordset::field_type(int ordinal) const
{
    rows_->need_rows();
    return rows_->set.columns[static_cast<std::size_t>(rows_->checked_ordinal(ordinal))].type;
}

QVariant Recordset::value_at(int row, int ordinal) const
{
    rows_->need_all_rows();
    if (row < 0 || row >= rows_->count())
        rows_->fail(failure_kind::misuse, u"there is no row %1"_s.arg(row));
    return rows_->cell(*rows_->set.rows[static_cast<std::size_t>(row)], rows_->checked_ordinal(ordinal));
}

void Recordset::AddNew()
{
    rows_->add();
}

void Recordset::Update()
{
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
    rows_->remove();
}

bool Recordset::pending() const
{
    return rows_->pending();
}

void close_if_open(Recordset& recordset)
{
    if (recordset.is_open())
        recordset.Close();
}

}  // namespace verdane
