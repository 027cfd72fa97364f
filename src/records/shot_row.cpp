#include "records/shot_row.h"

#include <array>

#include "base/language.h"
#include "scoring/words.h"
#include "store/tables/Stat_rounds.h"

namespace verdane {

namespace {

namespace Stat_rounds = tables::Stat_rounds;

std::optional<int16> figure(const Field& field)
{
    if (field.is_null())
        return std::nullopt;
    return field.int16_or_zero();
}

template <std::size_t Count>
QString word(const std::array<text_pair, Count>& words, int entry)
{
    return words[static_cast<std::size_t>(entry - 1)].in(is_french);
}

}  // namespace

hole_shot shot_row::read() const
{
    hole_shot shot;
    shot.shot = figure(field(Stat_rounds::shot));
    shot.before = figure(field(Stat_rounds::before));
    shot.after = figure(field(Stat_rounds::after));
    shot.unit = field(Stat_rounds::unit).text_or_empty();
    shot.shot_type_value = field(Stat_rounds::shot_type_value).int16_or_zero();
    shot.stickval = field(Stat_rounds::stickval).int16_or_zero();
    shot.faireway = field(Stat_rounds::faireway).text_or_empty();
    shot.fairval = field(Stat_rounds::fairval).int16_or_zero();
    shot.penval = field(Stat_rounds::penval).int16_or_zero();
    shot.missed = field(Stat_rounds::missed).yes();
    shot.ts = field(Stat_rounds::ts).yes();
    shot.dz = field(Stat_rounds::dz).yes();
    shot.cal = field(Stat_rounds::cal).yes();
    return shot;
}

void shot_row::write_figure(int ordinal, const std::optional<int16>& value,
                            const std::optional<int16>& stored)
{
    if (value && value != stored)
        field(ordinal).set(*value);
}

void shot_row::write_text(int ordinal, const QString& value, const QString& stored)
{
    if (value != stored)
        field(ordinal).set(value);
}

void shot_row::write(const hole_shot& shot)
{
    const hole_shot stored = read();
    write_figure(Stat_rounds::shot, shot.shot, stored.shot);
    write_figure(Stat_rounds::before, shot.before, stored.before);
    write_figure(Stat_rounds::after, shot.after, stored.after);
    write_text(Stat_rounds::unit, shot.unit, stored.unit);
    write_text(Stat_rounds::faireway, shot.faireway, stored.faireway);
    write_figure(Stat_rounds::fairval, std::make_optional(shot.fairval), std::make_optional(stored.fairval));
    if (shot.cal != stored.cal)
        field(Stat_rounds::cal).set(shot.cal);
}

void shot_row::start(const new_shot& shot)
{
    field(Stat_rounds::faireway).set(word(position_words, in_the_fairway));
    field(Stat_rounds::fairval).set(in_the_fairway);
    field(Stat_rounds::date).set(shot.key);
    field(Stat_rounds::hole).set(shot.hole);
    field(Stat_rounds::shot).set(shot.number);
    field(Stat_rounds::before).set(shot.distance);
    field(Stat_rounds::verges).set(shot.yards);
}

bool shot_row::is_complete() const
{
    return field(Stat_rounds::shot_type_value).int16_or_zero() != 0 &&
           field(Stat_rounds::stickval).int16_or_zero() != 0;
}

void shot_row::write_kind(int value, const QString& caption)
{
    field(Stat_rounds::shot_type).set(caption);
    field(Stat_rounds::shot_type_value).set(value);
}

void shot_row::set_club(int club, const QString& name)
{
    field(Stat_rounds::stickval).set(club);
    field(Stat_rounds::stick).set(name);
    if (club == putter) {
        set_kind(putt);
        field(Stat_rounds::unit).set(feet_words.in(is_french));
        return;
    }
    if (field(Stat_rounds::shot_type_value).int16_or_zero() == putt)
        write_kind(0, blank_word.toString());
    if (!is_feet_word(field(Stat_rounds::unit).text_or_empty()))
        field(Stat_rounds::unit).set(yards_words.in(is_french));
}

void shot_row::set_kind(int kind)
{
    write_kind(kind, word(kind_words, kind));
}

void shot_row::make_putt()
{
    field(Stat_rounds::stickval).set(putter);
    field(Stat_rounds::stick).set(putter_word.toString());
    field(Stat_rounds::unit).set(feet_words.in(is_french));
    set_kind(putt);
}

void shot_row::set_position(int entry)
{
    field(Stat_rounds::fairval).set(entry);
    field(Stat_rounds::faireway).set(word(position_words, entry));
}

void shot_row::clear_position()
{
    field(Stat_rounds::faireway).set(blank_word.toString());
    field(Stat_rounds::fairval).set(0);
}

void shot_row::set_penalty(int entry)
{
    const bool none = entry == no_penalty;
    field(Stat_rounds::penval).set(none ? 0 : entry);
    field(Stat_rounds::penality).set(word(penalty_words, entry));
    field(Stat_rounds::addpen).set(none ? 0 : 1);
}

void shot_row::set_yes_or_no(int ordinal, bool yes)
{
    field(ordinal).set(yes);
}

void shot_row::set_par(int16 par)
{
    field(Stat_rounds::normal).set(par);
}

bool shot_row::distance_changed()
{
    const bool with_putter = field(Stat_rounds::stickval).int16_or_zero() == putter;
    field(Stat_rounds::unit).set((with_putter ? feet_words : yards_words).in(is_french));
    if (with_putter)
        set_kind(putt);
    return with_putter;
}

}  // namespace verdane
