#include "round/shot_rows.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/numbers.h"
#include "controls/failure_guard.h"
#include "controls/recordset_model.h"
#include "scoring/words.h"
#include "store/DataEnvironment1.h"
#include "store/Recordset.h"
#include "store/tables/Stat_rounds.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

namespace Stat_rounds = tables::Stat_rounds;

/// In force when no round window is open.
const QString statement_without_hole = u"select * from stat_rounds"_s;

/// Makes each of the first rows the current one in turn, then the row that was current before.
template <typename Work>
void with_first_rows(Recordset& rows, int count, Work work)
{
    const int current = rows.position();
    for (int row = 0; row < count; ++row) {
        rows.MoveTo(row);
        work(row);
    }
    if (current >= 0)
        rows.MoveTo(current);
}

}  // namespace

QString statement_of_hole(const QString& key, int16 hole)
{
    return u"Select * from Stat_rounds where ( date= " + quoted(key) + u" ) and hole = " +
           QString::number(plain(hole)) + u" order by shot";
}

shot_rows::shot_rows()
    : rows_(data_environment().rsStat_rounds),
      statement_(rows_, rows_.settings().source, statement_without_hole)
{
    close_if_open(rows_);
}

recordset_model* shot_rows::make_model(std::vector<bound_column> columns)
{
    return new recordset_model(rows_, std::move(columns));
}

void shot_rows::set_hole(const QString& key, int16 hole)
{
    rows_.set_Source(statement_of_hole(key, hole));
    loaded_ = {key, hole};
}

void shot_rows::open_hole(const QString& key, int16 hole)
{
    set_hole(key, hole);
    rows_.Open();
}

void shot_rows::change_hole(const QString& key, int16 hole)
{
    finishes_without_failure([this] { rows_.Update(); });
    finishes_without_failure([this] { rows_.Close(); });
    set_hole(key, hole);
    finishes_without_failure([this] {
        rows_.Open();
        rows_.Requery();
    });
}

void shot_rows::reopen()
{
    close_if_open(rows_);
    // The whole table is read only if a row of it is needed.
    rows_.Open(loaded_ ? row_reading::at_once : row_reading::when_needed);
    rows_.Requery();
}

void shot_rows::commit()
{
    if (rows_.is_open())
        rows_.Update();
}

void shot_rows::commit_all()
{
    rows_.UpdateBatch();
}

void shot_rows::drop_changes()
{
    finishes_without_failure([this] { rows_.CancelUpdate(); });
}

void shot_rows::close()
{
    rows_.Update();
    rows_.Close();
    rows_.set_Source(statement_without_hole);
    loaded_.reset();
}

bool shot_rows::is_open() const
{
    return rows_.is_open();
}

bool shot_rows::has_hole() const
{
    return rows_.is_open() && loaded_;
}

bool shot_rows::has_hole(const QString& key, int16 hole) const
{
    return has_hole() && loaded_->key == key && loaded_->number == hole;
}

int shot_rows::count() const
{
    return rows_.RecordCount();
}

bool shot_rows::last_is_putt() const
{
    return !empty() && to_int16(rows_.value_at(count() - 1, Stat_rounds::shot_type_value).toDouble()) == putt;
}

bool shot_rows::only_blank_shot() const
{
    if (!has_hole() || count() != 1)
        return false;
    const std::array entered{Stat_rounds::stickval, Stat_rounds::shot_type_value, Stat_rounds::after};
    return std::all_of(entered.begin(), entered.end(),
                       [this](int ordinal) { return rows_.value_at(0, ordinal).toInt() == 0; });
}

bool shot_rows::on_a_row() const
{
    return rows_.is_open() && rows_.position() >= 0;
}

bool shot_rows::on_first_row() const
{
    return rows_.is_open() && rows_.position() == 0;
}

void shot_rows::move_to(int place)
{
    rows_.MoveTo(place);
}

void shot_rows::move_to_last()
{
    rows_.MoveLast();
}

bool shot_rows::on_last_row()
{
    bool last = false;
    finishes_without_failure([&] {
        rows_.MoveNext();
        last = rows_.eof();
        rows_.MovePrevious();
    });
    return last;
}

void shot_rows::add_first(const new_shot& shot)
{
    rows_.AddNew();
    current().start(shot);
    rows_.Update();
    rows_.Close();
    rows_.Open();
    rows_.MoveFirst();
}

void shot_rows::add(const new_shot& shot)
{
    rows_.AddNew();
    current().start(shot);
}

void shot_rows::remove_current()
{
    rows_.Delete();
    rows_.UpdateBatch();
    if (!rows_.empty())
        rows_.MoveFirst();
}

shot_list shot_rows::read()
{
    shot_list shots;
    with_first_rows(rows_, count(), [&](int) { shots.push_back(current().read()); });
    return shots;
}

void shot_rows::write(std::span<const hole_shot> shots)
{
    with_first_rows(rows_, static_cast<int>(shots.size()),
                    [&](int row) { current().write(shots[static_cast<std::size_t>(row)]); });
    rows_.Update();
}

}  // namespace verdane
