#include "store/Recordset.h"

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
    return rows_->settings().name;
}

const recordset_settings& Recordset::settings() const
{
    return rows_->settings();
}

const QString& Recordset::Source() const
{
    return rows_->source();
}

void Recordset::set_Source(const QString& statement)
{
    rows_->set_source(statement);
}

void Recordset::Open(row_reading reading)
{
    rows_->open(reading);
}

void Recordset::Open(const first_columns& columns)
{
    rows_->open(row_reading::at_once, columns.ordinals);
}

void Recordset::Close()
{
    rows_->close();
}

bool Recordset::is_open() const
{
    return rows_->is_open();
}

void Recordset::Requery()
{
    rows_->requery();
}

bool Recordset::bof() const
{
    rows_->need_all_rows();
    return rows_->before_first();
}

bool Recordset::eof() const
{
    rows_->need_rows();
    return rows_->after_last();
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
    return rows_->position();
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
    if (rows_->reads_one_by_one())
        rows_->read_next();
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
    rows_->move_by(steps);
}

void Recordset::MoveTo(int row)
{
    rows_->leave_row();
    rows_->move_to_row(row);
}

void Recordset::Find(const QString& criterion, search_direction direction)
{
    rows_->leave_row();
    rows_->find(criterion, direction);
}

Field Recordset::Fields(int ordinal)
{
    rows_->need_rows();
    return {*rows_, rows_->checked_ordinal(ordinal)};
}

Field Recordset::Fields(QStringView name)
{
    rows_->need_rows();
    return {*rows_, rows_->ordinal_of(name)};
}

column_type Recordset::field_type(int ordinal) const
{
    rows_->need_rows();
    return rows_->column(ordinal).type;
}

QVariant Recordset::value_at(int row, int ordinal) const
{
    rows_->need_all_rows();
    recordset_row& at = rows_->row_at(row);
    return rows_->cell(at, rows_->checked_ordinal(ordinal));
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
    rows_->commit_all();
}

void Recordset::CancelUpdate()
{
    rows_->cancel_current();
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
