#include "scoring/hole_shots.h"

#include "base/language.h"
#include "base/numbers.h"
#include "scoring/words.h"

namespace verdane {

namespace {

void turn_to_feet(hole_shot& row, const unit_words& words)
{
    row.unit = words.feet;
    row.after = row.remaining() * feet_in_a_yard;
}

void turn_to_feet_where_in_yards(hole_shot& row, const unit_words& words)
{
    if (is_yards_word(row.unit))
        turn_to_feet(row, words);
}

void turn_to_yards(hole_shot& row, const unit_words& words)
{
    row.unit = words.yards;
    row.after = to_int16(plain(row.remaining()) / static_cast<double>(feet_in_a_yard));
}

/// A putt has none, in words and in code.
void clear_position(hole_shot& row)
{
    row.faireway = blank_word.toString();
    row.fairval = 0;
}

QString unit_for(const hole_shot& row, const unit_words& words)
{
    return row.is_putt() ? words.feet : words.yards;
}

void fill_empty(hole_shot& row, const unit_words& words)
{
    row.after = row.remaining();
    if (row.unit.isEmpty())
        row.unit = unit_for(row, words);
}

void examine_last(shot_list& rows, const unit_words& words)
{
    hole_shot& last = rows.back();
    if (last.is_putt()) {
        if (rows.size() > 1)
            turn_to_feet_where_in_yards(rows[rows.size() - 2], words);
        return;
    }
    if (last.remaining() == 0)
        last.cal = true;
    if (is_feet_word(last.unit))
        turn_to_yards(last, words);
}

/// Brings the row ahead of the last one to the unit that the next shot asks for.
void prepare_row_ahead(hole_shot& row, bool PUT_MODE, const unit_words& words)
{
    if (!PUT_MODE)
        row.unit = words.yards;
    else if (row.is_putt() || is_feet_word(row.unit))
        row.unit = words.feet;
    else
        turn_to_feet(row, words);
}

class summary_walk {
public:
    void take(hole_shot& row)
    {
        result_.kinds[plain(row.shot_type_value)].count += 1;
        // Without a kind a shot, such as the blank one of a new hole, counts in no box.
        if (row.shot_type_value != 0)
            count(row);
        measure(row);
        previous_after_ = row.remaining();
    }

    hole_summary result()
    {
        result_.isdetailed = result_.kinds[long_shot].count > 0 || result_.kinds[approach_shot].count > 0 ||
                             result_.kinds[putt].count > 0;
        result_.putt_lengths[0] = first_putt_;
        for (std::size_t i = 1; i < lengths_kept && later_putts_[i] != 0; ++i)
            result_.putt_lengths[i] = later_putts_[i];
        return result_;
    }

private:
    void count(hole_shot& row)
    {
        count_situation(row);
        result_.penalties[plain(row.penval)].count += 1;
        count_position(row);
    }

    void count_situation(const hole_shot& row)
    {
        result_.missed += row.missed ? 1 : 0;
        result_.sand += row.ts ? 1 : 0;
        result_.recovery += row.dz ? 1 : 0;
    }

    void count_position(hole_shot& row)
    {
        if (row.is_putt() && row.fairval != 0)
            clear_position(row);
        else if (row.fairval == in_the_fairway)
            result_.fairway += 1;
    }

    /// A putt is as long as what the shot before it left. Behind the first putt every shot counts.
    void measure(const hole_shot& row)
    {
        if (on_the_green_ && next_later_putt_ < lengths_kept)
            later_putts_[next_later_putt_++] = previous_after_;
        if (row.is_putt() && !on_the_green_) {
            on_the_green_ = true;
            first_putt_ = previous_after_;
        }
    }

    hole_summary result_;
    bool on_the_green_ = false;
    int16 first_putt_ = 0;
    int16 previous_after_ = 0;
    std::array<int16, lengths_kept> later_putts_{0, 0, 0, 0, 0, 0};
    std::size_t next_later_putt_ = 1;
};

}  // namespace

bool hole_shot::is_putt() const
{
    return shot_type_value == putt;
}

bool hole_shot::is_told() const
{
    return shot_type_value != 0 && stickval != 0;
}

unit_words units_of_interface()
{
    return {feet_words.in(is_french), yards_words.in(is_french)};
}

shots_check check_shots(shot_list& rows, int16 hole_length, const unit_words& words)
{
    int16 carried = hole_length;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        hole_shot& row = rows[i];
        const int number = static_cast<int>(i) + 1;
        row.shot = number;
        row.before = carried;
        fill_empty(row, words);
        carried = row.remaining();
        if (!row.is_told())
            return {false, number};
        if (row.is_putt() && i > 0)
            turn_to_feet_where_in_yards(rows[i - 1], words);
    }
    if (!rows.empty())
        examine_last(rows, words);
    return {};
}

next_shot_plan plan_next_shot(shot_list& rows, const unit_words& words)
{
    hole_shot& last = rows.back();
    if (!last.is_told() || last.remaining() == 0)
        return {true, false, 0};
    const bool PUT_MODE = last.is_putt();
    if (PUT_MODE)
        clear_position(last);
    const int16 distance = last.remaining();
    if (rows.size() > 1)
        prepare_row_ahead(rows[rows.size() - 2], PUT_MODE, words);
    if (last.unit.isEmpty())
        last.unit = unit_for(last, words);
    return {false, PUT_MODE, distance};
}

hole_summary summarise(shot_list& rows)
{
    summary_walk walk;
    for (hole_shot& row : rows)
        walk.take(row);
    return walk.result();
}

}  // namespace verdane
