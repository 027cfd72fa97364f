#include "round/shot_rows.h"

#include <array>

#include "base/language.h"
#include "controls/failure_guard.h"
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

std::optional<int16> figure(const Field& field)
{
    if (field.is_null())
        return std::nullopt;
    return field.int16_or_zero();
}

hole_shot read_current(Recordset& row)
{
    hole_shot shot;
    shot.shot = figure(row.Fields(Stat_rounds::shot));
    shot.before = figure(row.Fields(Stat_rounds::before));
    shot.after = figure(row.Fields(Stat_rounds::after));
    shot.unit = row.Fields(Stat_rounds::unit).text_or_empty();
    shot.shot_type_value = row.Fields(Stat_rounds::shot_type_value).int16_or_zero();
    shot.stickval = row.Fields(Stat_rounds::stickval).int16_or_zero();
    shot.faireway = row.Fields(Stat_rounds::faireway).text_or_empty();
    shot.fairval = row.Fields(Stat_rounds::fairval).int16_or_zero();
    shot.penval = row.Fields(Stat_rounds::penval).int16_or_zero();
    shot.missed = row.Fields(Stat_rounds::missed).yes();
    shot.ts = row.Fields(Stat_rounds::ts).yes();
    shot.dz = row.Fields(Stat_rounds::dz).yes();
    shot.cal = row.Fields(Stat_rounds::cal).yes();
    return shot;
}

void write_figure(Field field, const std::optional<int16>& value, const std::optional<int16>& stored)
{
    if (value && value != stored)
        field.set(*value);
}

void write_text(Field field, const QString& value, const QString& stored)
{
    if (value != stored)
        field.set(value);
}

void write_current(Recordset& row, const hole_shot& shot)
{
    const hole_shot stored = read_current(row);
    write_figure(row.Fields(Stat_rounds::shot), shot.shot, stored.shot);
    write_figure(row.Fields(Stat_rounds::before), shot.before, stored.before);
    write_figure(row.Fields(Stat_rounds::after), shot.after, stored.after);
    write_text(row.Fields(Stat_rounds::unit), shot.unit, stored.unit);
    write_text(row.Fields(Stat_rounds::faireway), shot.faireway, stored.faireway);
    write_figure(row.Fields(Stat_rounds::fairval), std::make_optional(shot.fairval),
                 std::make_optional(stored.fairval));
    if (shot.cal != stored.cal)
        row.Fields(Stat_rounds::cal).set(shot.cal);
}

/// Makes each row the current one in turn, then the row that was current before.
template <typename Work>
void with_each_row(Recordset& rows, Work work)
{
    const int current = rows.position();
    for (int row = 0; row < rows.RecordCount(); ++row) {
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

void shot_rows::commit_first_shot()
{
    rows_.Update();
    rows_.Close();
    rows_.Open();
    rows_.MoveFirst();
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

void shot_rows::remove_current()
{
    rows_.Delete();
    rows_.UpdateBatch();
    if (!rows_.empty())
        rows_.MoveFirst();
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

bool shot_rows::on_a_row() const
{
    return rows_.is_open() && rows_.position() >= 0;
}

shot_list shot_rows::read() const
{
    shot_list shots;
    with_each_row(rows_, [&](int) { shots.push_back(read_current(rows_)); });
    return shots;
}

void shot_rows::write(const shot_list& shots, const std::function<void(int)>& written)
{
    with_each_row(rows_, [&](int row) {
        write_current(rows_, shots[static_cast<std::size_t>(row)]);
        if (written)
            written(row);
    });
    rows_.Update();
}

namespace current_shot {

namespace {

Recordset& row()
{
    return data_environment().rsStat_rounds;
}

void write_kind(int value, const QString& caption)
{
    row().Fields(Stat_rounds::shot_type).set(caption);
    row().Fields(Stat_rounds::shot_type_value).set(value);
}

void write_unit(const text_pair& words)
{
    row().Fields(Stat_rounds::unit).set(words.in(is_french));
}

template <std::size_t Count>
QString word(const std::array<text_pair, Count>& words, int entry)
{
    return words[static_cast<std::size_t>(entry - 1)].in(is_french);
}

bool is_last()
{
    bool last = false;
    finishes_without_failure([&last] {
        row().MoveNext();
        last = row().eof();
        row().MovePrevious();
    });
    return last;
}

}  // namespace

bool is_complete()
{
    return row().Fields(Stat_rounds::shot_type_value).int16_or_zero() != 0 &&
           row().Fields(Stat_rounds::stickval).int16_or_zero() != 0;
}

void set_club(int club, const QString& name)
{
    row().Fields(Stat_rounds::stickval).set(club);
    row().Fields(Stat_rounds::stick).set(name);
    if (club == putter) {
        set_kind(putt);
        write_unit(feet_words);
        return;
    }
    if (row().Fields(Stat_rounds::shot_type_value).int16_or_zero() == putt)
        write_kind(0, blank_word.toString());
    if (!is_feet_word(row().Fields(Stat_rounds::unit).text_or_empty()))
        write_unit(yards_words);
}

void set_kind(int kind)
{
    write_kind(kind, word(kind_words, kind));
}

void make_putt()
{
    row().Fields(Stat_rounds::stickval).set(putter);
    row().Fields(Stat_rounds::stick).set(putter_word.toString());
    write_unit(feet_words);
    set_kind(putt);
}

void set_position(int entry)
{
    row().Fields(Stat_rounds::fairval).set(entry);
    row().Fields(Stat_rounds::faireway).set(word(position_words, entry));
}

void clear_position()
{
    row().Fields(Stat_rounds::faireway).set(blank_word.toString());
    row().Fields(Stat_rounds::fairval).set(0);
}

void set_penalty(int entry)
{
    const bool none = entry == no_penalty;
    row().Fields(Stat_rounds::penval).set(none ? 0 : entry);
    row().Fields(Stat_rounds::penality).set(word(penalty_words, entry));
    row().Fields(Stat_rounds::addpen).set(none ? 0 : 1);
}

void set_yes_or_no(QStringView column, bool yes)
{
    row().Fields(column).set(yes);
}

void set_par(int16 par)
{
    row().Fields(Stat_rounds::normal).set(par);
}

bool distance_changed()
{
    if (row().Fields(Stat_rounds::stickval).int16_or_zero() != putter) {
        write_unit(yards_words);
        return false;
    }
    write_unit(feet_words);
    set_kind(putt);
    return is_last();
}

}  // namespace current_shot

}  // namespace verdane
