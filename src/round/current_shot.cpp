#include "round/current_shot.h"

#include <array>

#include "base/language.h"
#include "controls/failure_guard.h"
#include "scoring/words.h"
#include "store/DataEnvironment1.h"
#include "store/tables/Stat_rounds.h"

namespace verdane::current_shot {

namespace {

namespace Stat_rounds = tables::Stat_rounds;

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

}  // namespace verdane::current_shot
