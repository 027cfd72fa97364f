#include "tests/guided_day/day.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

/// The columns of a hole in the order of the quick page.
QStringList columns_of(int hole)
{
    QStringList columns;
    for (const QString& name :
         {u"games.long_"_s, u"games.approach_"_s, u"games.putt_"_s, u"games2.fairway_"_s, u"games2.sand_"_s,
          u"games.missed_"_s, u"games2.recovery_"_s, u"games.pen_water_"_s, u"games.pen_lost_"_s,
          u"games.pen_rule_"_s, u"games.pen_bounds_"_s})
        columns << name + QString::number(hole);
    return columns;
}

}  // namespace

void check_round(const day& today, const played_round& round)
{
    const QString from = u" from games join games2 using (date) where date = '%1'"_s.arg(round.key());
    today.user.same(today.store.number(u"select count(*)" + from), 1, u"rows of the round"_s);
    for (int hole = 1; hole <= 18; ++hole) {
        const QString figures = today.store.text(u"select " + columns_of(hole).join(u" || ") + from);
        today.user.same(figures, round.holes.at(static_cast<std::size_t>(hole - 1)),
                        u"stored figures of hole %1"_s.arg(hole));
    }
    today.user.same(today.store.text(u"select field" + from), today.card.name, u"course of the round"_s);
}

void check_store(day& today)
{
    check_round(today, today.round);
    const QString where = u" where date = '%1'"_s.arg(today.round.key());
    today.user.same(today.store.number(u"select fg * 1000 + nrt from cost" + where), 85020,
                    u"costs of the round"_s);
    today.user.same(today.store.number(u"select conditionM from games2" + where), today.french ? 1 : 3,
                    u"weather of the round"_s);
    today.user.same(today.store.number(u"select all_holes from stats where rowid = 1"_s), today.round.gross(),
                    u"strokes in the report"_s);
}

}  // namespace verdane::guided_day
