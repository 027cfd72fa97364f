#include "round/shot_rows.h"

#include "base/text.h"
#include "scoring/Verdane_tools.h"
#include "store/DataEnvironment1.h"

namespace verdane::shot_rows {

namespace {

Recordset& rows()
{
    return data_environment().rsStat_rounds;
}

/// What every statement of a hole begins with.
constexpr QStringView start_of_statement = u"Select * from Stat_rounds where ( date= ";

QString command_in_capitals()
{
    return in_capitals(trimmed_blanks(rows().Source()));
}

std::optional<int16> figure(const Field& field)
{
    if (field.is_null())
        return std::nullopt;
    return field.int16_or_zero();
}

hole_shot read_current()
{
    Recordset& row = rows();
    hole_shot read;
    read.shot = figure(row.Fields(shot));
    read.before = figure(row.Fields(before));
    read.after = figure(row.Fields(after));
    read.unit = row.Fields(unit).text_or_empty();
    read.shot_type_value = row.Fields(shot_type_value).int16_or_zero();
    read.stickval = row.Fields(stickval).int16_or_zero();
    read.faireway = row.Fields(faireway).text_or_empty();
    read.fairval = row.Fields(fairval).int16_or_zero();
    read.penval = row.Fields(penval).int16_or_zero();
    read.missed = row.Fields(missed).yes();
    read.ts = row.Fields(ts).yes();
    read.dz = row.Fields(dz).yes();
    read.cal = row.Fields(cal).yes();
    return read;
}

void write_figure(int ordinal, const std::optional<int16>& now, const std::optional<int16>& before_now)
{
    if (now && now != before_now)
        rows().Fields(ordinal).set(*now);
}

void write_text(int ordinal, const QString& now, const QString& before_now)
{
    if (now != before_now)
        rows().Fields(ordinal).set(now);
}

void write_current(const hole_shot& now)
{
    const hole_shot was = read_current();
    write_figure(shot, now.shot, was.shot);
    write_figure(before, now.before, was.before);
    write_figure(after, now.after, was.after);
    write_text(unit, now.unit, was.unit);
    write_text(faireway, now.faireway, was.faireway);
    write_figure(fairval, std::make_optional(now.fairval), std::make_optional(was.fairval));
    if (now.cal != was.cal)
        rows().Fields(cal).set(now.cal);
}

/// Stands on each row in turn and goes back to where it stood.
template <typename Work>
void with_each_row(Work work)
{
    const int stood_on = rows().position();
    for (int row = 0; row < rows().RecordCount(); ++row) {
        rows().MoveTo(row);
        work(row);
    }
    if (stood_on >= 0)
        rows().MoveTo(stood_on);
}

}  // namespace

QString statement_of_hole(const QString& key, int16 hole_number)
{
    return start_of_statement + quoted(key) + u" ) and hole = " + QString::number(plain(hole_number)) +
           u" order by shot";
}

bool a_hole_is_loaded()
{
    return command_in_capitals().startsWith(in_capitals(start_of_statement));
}

bool is_loaded(const QString& key, int16 hole_number)
{
    return command_in_capitals() == in_capitals(statement_of_hole(key, hole_number));
}

bool on_a_row()
{
    return rows().is_open() && rows().position() >= 0;
}

shot_list read()
{
    shot_list shots;
    with_each_row([&shots](int) { shots.push_back(read_current()); });
    return shots;
}

void write(const shot_list& shots, const std::function<void(int)>& written)
{
    with_each_row([&](int row) {
        write_current(shots[static_cast<std::size_t>(row)]);
        if (written)
            written(row);
    });
    rows().Update();
}

}  // namespace verdane::shot_rows
