#include "scoring/hole_shots.h"

#include "base/numbers.h"
#include "scoring/words.h"

namespace verdane {

namespace {

void convert_to_feet(hole_shot& row, const unit_words& words)
{
    row.unit = words.feet;
    row.after = row.remaining() * feet_in_a_yard;
}

void convert_yards_to_feet(hole_shot& row, const unit_words& words)
{
    if (is_yards_word(row.unit))
        convert_to_feet(row, words);
}

void convert_to_yards(hole_shot& row, const unit_words& words)
{
    row.unit = words.yards;
    row.after = to_int16(plain(row.remaining()) / static_cast<double>(feet_in_a_yard));
}

QString unit_for(const hole_shot& row, const unit_words& words)
{
    return row.is_putt() ? words.feet : words.yards;
}

void fill_absent(hole_shot& row, const unit_words& words)
{
    row.after = row.remaining();
    if (row.unit.isEmpty())
        row.unit = unit_for(row, words);
}

void check_last(shot_list& rows, const unit_words& words)
{
    hole_shot& last = rows.back();
    if (last.is_putt()) {
        if (rows.size() > 1)
            convert_yards_to_feet(rows[rows.size() - 2], words);
        return;
    }
    if (last.remaining() == 0)
        last.cal = true;
    if (is_feet_word(last.unit))
        convert_to_yards(last, words);
}

/// Gives the row before the last one the unit that the next shot requires.
void prepare_row_before_last(hole_shot& row, bool PUT_MODE, const unit_words& words)
{
    if (!PUT_MODE)
        row.unit = words.yards;
    else if (row.is_putt() || is_feet_word(row.unit))
        row.unit = words.feet;
    else
        convert_to_feet(row, words);
}

}  // namespace

bool hole_shot::is_putt() const
{
    return shot_type_value == putt;
}

bool hole_shot::is_complete() const
{
    return shot_type_value != 0 && stickval != 0;
}

unit_words units_in(bool french)
{
    return {feet_words.in(french), yards_words.in(french)};
}

shots_check check_shots(shot_list& rows, int16 hole_length, const unit_words& words)
{
    int16 carried = hole_length;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        hole_shot& row = rows[i];
        const int number = static_cast<int>(i) + 1;
        row.shot = number;
        row.before = carried;
        fill_absent(row, words);
        carried = row.remaining();
        if (!row.is_complete())
            return {false, number};
        if (row.is_putt() && i > 0)
            convert_yards_to_feet(rows[i - 1], words);
    }
    if (!rows.empty())
        check_last(rows, words);
    return {};
}

next_shot_plan plan_next_shot(shot_list& rows, const unit_words& words)
{
    hole_shot& last = rows.back();
    if (!last.is_complete() || last.remaining() == 0)
        return {true, false, 0};
    const bool PUT_MODE = last.is_putt();
    if (PUT_MODE)
        clear_position(last);
    const int16 distance = last.remaining();
    if (rows.size() > 1)
        prepare_row_before_last(rows[rows.size() - 2], PUT_MODE, words);
    if (last.unit.isEmpty())
        last.unit = unit_for(last, words);
    return {false, PUT_MODE, distance};
}

void clear_position(hole_shot& row)
{
    row.faireway = blank_word.toString();
    row.fairval = 0;
}

}  // namespace verdane
