#include "tests/guided_day/played_round.h"

#include <QDate>

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

constexpr int strokes = 3;
constexpr int first_penalty = 7;
constexpr int figures_of_a_hole = 11;

QString today()
{
    return QDate::currentDate().toString(u"yyyyMMdd"_s);
}

}  // namespace

int played_round::figure(int hole, int place) const
{
    return holes.at(static_cast<std::size_t>(hole - 1)).at(place).digitValue();
}

int played_round::gross(int hole) const
{
    int sum = 0;
    for (int place = 0; place < figures_of_a_hole; ++place) {
        if (place < strokes || place >= first_penalty)
            sum += figure(hole, place);
    }
    return sum;
}

int played_round::gross() const
{
    int sum = 0;
    for (int hole = 1; hole <= 18; ++hole)
        sum += gross(hole);
    return sum;
}

played_round morning_round()
{
    return {today(),
            u"09"_s,
            u"30"_s,
            u"05"_s,
            {u"21210000000"_s, u"31220000000"_s, u"21110000000"_s, u"22201010000"_s, u"10100000000"_s,
             u"31210010000"_s, u"11210000000"_s, u"22211000000"_s, u"21310000000"_s, u"21210000000"_s,
             u"12201011000"_s, u"10200000000"_s, u"21210000000"_s, u"32221010000"_s, u"21110000000"_s,
             u"11210000000"_s, u"02210100001"_s, u"31320000000"_s}};
}

played_round afternoon_round()
{
    return {today(),
            u"14"_s,
            u"05"_s,
            u"00"_s,
            {u"11210000000"_s, u"21210000000"_s, u"21200000000"_s, u"10200000000"_s, u"22310010000"_s,
             u"01110000000"_s, u"11210000000"_s, u"31210000000"_s, u"32210010010"_s, u"10300000000"_s,
             u"31220000000"_s, u"21210000000"_s, u"21301010100"_s, u"11110000000"_s, u"02201000000"_s,
             u"11210000000"_s, u"22210010000"_s, u"11110000000"_s}};
}

played_round detailed_round(const QString& hours, const QString& minutes)
{
    return {today(),
            hours,
            minutes,
            u"20"_s,
            {u"12221000000"_s, u"11220000000"_s, u"11220001000"_s, u"21210000000"_s, u"11200000000"_s,
             u"22210000000"_s, u"10100000000"_s, u"21310010000"_s, u"11210000000"_s, u"21210000000"_s,
             u"31211000000"_s, u"10200000000"_s, u"11110000000"_s, u"22200100000"_s, u"21210000000"_s,
             u"11210000000"_s, u"11300010000"_s, u"21210000000"_s}};
}

}  // namespace verdane::guided_day
