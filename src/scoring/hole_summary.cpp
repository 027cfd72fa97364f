#include "scoring/hole_summary.h"

#include "base/checked_array.h"
#include "scoring/words.h"

namespace verdane {

namespace {

class summary_walk {
public:
    void take(hole_shot& row)
    {
        kinds_[plain(row.shot_type_value)].add(1);
        // The blank shot of a new hole has no kind.
        if (row.shot_type_value != 0)
            count(row);
        measure(row);
        previous_after_ = row.remaining();
    }

    hole_summary result() const
    {
        hole_summary summary;
        summary.counts = {{strokes(), penalties()}, situation_};
        summary.isdetailed =
            summary.counts.long_shots > 0 || summary.counts.approach > 0 || summary.counts.putts > 0;
        summary.putt_lengths[0] = first_putt_;
        for (std::size_t i = 1; i < putt_lengths_kept && later_putts_[i] != 0; ++i)
            summary.putt_lengths[i] = later_putts_[i];
        return summary;
    }

private:
    stroke_counts strokes() const
    {
        return {kinds_[long_shot].sum, kinds_[approach_shot].sum, kinds_[putt].sum};
    }

    penalty_counts penalties() const
    {
        return {penalties_[against_the_rules].sum, penalties_[water_hazard].sum,
                penalties_[out_of_bounds].sum, penalties_[lost_ball].sum};
    }

    void count(hole_shot& row)
    {
        count_situation(row);
        penalties_[plain(row.penval)].add(1);
        count_position(row);
    }

    void count_situation(const hole_shot& row)
    {
        situation_.missed += row.missed ? 1 : 0;
        situation_.sand += row.ts ? 1 : 0;
        situation_.recovery += row.dz ? 1 : 0;
    }

    void count_position(hole_shot& row)
    {
        if (row.is_putt() && row.fairval != 0)
            clear_position(row);
        else if (row.fairval == in_the_fairway)
            situation_.fairway += 1;
    }

    /// The length of a putt is the distance that the shot before it left. After the first putt every shot has
    /// a length.
    void measure(const hole_shot& row)
    {
        if (on_the_green_ && next_later_putt_ < putt_lengths_kept)
            later_putts_[next_later_putt_++] = previous_after_;
        if (row.is_putt() && !on_the_green_) {
            on_the_green_ = true;
            first_putt_ = previous_after_;
        }
    }

    /// Shots by kind; 0: not yet chosen.
    checked_array<tally, 4> kinds_;
    /// Shots by penalty; 0: none.
    checked_array<tally, 5> penalties_;
    situation_counts situation_;
    bool on_the_green_ = false;
    int16 first_putt_ = 0;
    int16 previous_after_ = 0;
    std::array<int16, putt_lengths_kept> later_putts_{0, 0, 0, 0, 0, 0};
    std::size_t next_later_putt_ = 1;
};

}  // namespace

hole_summary summarise(shot_list& rows)
{
    summary_walk walk;
    for (hole_shot& row : rows)
        walk.take(row);
    return walk.result();
}

}  // namespace verdane
