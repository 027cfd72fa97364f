#include "scoring/club_sums.h"

#include "base/numbers.h"
#include "scoring/words.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

template <typename Count>
void count(Count& counter)
{
    counter = counter + 1;
}

void count_if(bool holds, int16& counter)
{
    if (holds)
        count(counter);
}

double length_before(const club_shot& shot)
{
    if (!shot.before)
        throw run_time_failure(failure_kind::invalid_null, u"a shot without its length"_s);
    return plain(*shot.before);
}

double rest_in_yards(const club_shot& shot)
{
    const double rest = plain(shot.after.value_or(int16{0}));
    return shot.after_in_yards ? rest : rest / feet_in_a_yard;
}

}  // namespace

bool is_clean(const club_shot& shot)
{
    return !shot.missed && !shot.sand && !shot.no_gain && shot.penalty != against_the_rules &&
           shot.penalty != out_of_bounds;
}

int16 shot_distance(const club_shot& shot)
{
    const double rest = rest_in_yards(shot);
    return to_int16(length_before(shot) + (shot.beyond_hole ? rest : -rest));
}

void club_sums::add(const club_shot& shot)
{
    count(shots);
    if (is_clean(shot)) {
        count(clean_shots);
        const int16 distance = shot_distance(shot);
        if (distance > longest)
            longest = distance;
        distance_sum += plain(distance);
    }
    count_if(shot.position == in_the_fairway, in_fairway);
    count_if(shot.position == to_the_left, left);
    count_if(shot.position == to_the_right, right);
    count_if(shot.missed, missed);
    count_if(shot.penalty > 0, penalised);
    count_if(shot.kind == approach_shot && shot.after && *shot.after == 0, holed);
}

}  // namespace verdane
