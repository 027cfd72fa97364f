#include "transfer/sample_shots.h"

#include <span>

#include "base/language.h"
#include "scoring/words.h"
#include "store/row_insertion.h"
#include "store/tables/golf_bag.h"

namespace verdane {

namespace {

/// The word of a code, which counts from 1; a blank for 0.
QString word_of(std::span<const text_pair> words, int16 code)
{
    const int number = plain(code);
    return number == 0 ? blank_word.toString() : words[static_cast<std::size_t>(number - 1)].in(is_french);
}

QString name_of_club(int16 club)
{
    return QStringView(tables::sticknames::new_names.at(static_cast<std::size_t>(plain(club) - 1)))
        .toString();
}

int number_or_zero(const std::optional<int16>& value)
{
    return plain(value.value_or(int16(0)));
}

std::vector<QVariant> row_of(const sample_hole& hole, const hole_shot& shot)
{
    return {hole.key,
            hole.number,
            number_or_zero(shot.before),
            number_or_zero(shot.after),
            word_of(kind_words, shot.shot_type_value),
            name_of_club(shot.stickval),
            false,
            shot.missed,
            shot.ts,
            shot.dz,
            word_of(position_words, shot.fairval),
            word_of(penalty_words, shot.penval),
            number_or_zero(shot.shot),
            plain(shot.stickval),
            plain(shot.fairval),
            plain(shot.penval),
            plain(shot.shot_type_value),
            shot.cal,
            hole.par(),
            plain(shot.penval) > 0 ? 1 : 0,
            shot.unit,
            hole.yards()};
}

}  // namespace

int sample_hole::yards() const
{
    return course.yards.at(static_cast<std::size_t>(number - 1)).toInt();
}

int sample_hole::par() const
{
    return course.pars.at(static_cast<std::size_t>(number - 1)).toInt();
}

void add_shots(row_insertion& insertion, const sample_hole& hole, const shot_list& shots)
{
    for (const hole_shot& shot : shots)
        insertion.add(row_of(hole, shot));
}

}  // namespace verdane
