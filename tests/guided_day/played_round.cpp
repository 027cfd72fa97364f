#include "tests/guided_day/played_round.h"

#include <QDate>

namespace verdane::guided_day {

namespace {

constexpr int strokes = 3;
constexpr int first_penalty = 7;
constexpr int figures_of_a_hole = 11;

QString today()
{
    return QDate::currentDate().toString(QStringLiteral("yyyyMMdd"));
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
            QStringLiteral("09"),
            QStringLiteral("30"),
            QStringLiteral("05"),
            {QStringLiteral("21210000000"), QStringLiteral("31220000000"), QStringLiteral("21110000000"),
             QStringLiteral("22201010000"), QStringLiteral("10100000000"), QStringLiteral("31210010000"),
             QStringLiteral("11210000000"), QStringLiteral("22211000000"), QStringLiteral("21310000000"),
             QStringLiteral("21210000000"), QStringLiteral("12201011000"), QStringLiteral("10200000000"),
             QStringLiteral("21210000000"), QStringLiteral("32221010000"), QStringLiteral("21110000000"),
             QStringLiteral("11210000000"), QStringLiteral("02210100001"), QStringLiteral("31320000000")}};
}

played_round afternoon_round()
{
    return {today(),
            QStringLiteral("14"),
            QStringLiteral("05"),
            QStringLiteral("00"),
            {QStringLiteral("11210000000"), QStringLiteral("21210000000"), QStringLiteral("21200000000"),
             QStringLiteral("10200000000"), QStringLiteral("22310010000"), QStringLiteral("01110000000"),
             QStringLiteral("11210000000"), QStringLiteral("31210000000"), QStringLiteral("32210010010"),
             QStringLiteral("10300000000"), QStringLiteral("31220000000"), QStringLiteral("21210000000"),
             QStringLiteral("21301010100"), QStringLiteral("11110000000"), QStringLiteral("02201000000"),
             QStringLiteral("11210000000"), QStringLiteral("22210010000"), QStringLiteral("11110000000")}};
}

played_round told_round(const QString& hours, const QString& minutes)
{
    return {today(),
            hours,
            minutes,
            QStringLiteral("20"),
            {QStringLiteral("12221000000"), QStringLiteral("11220000000"), QStringLiteral("11220001000"),
             QStringLiteral("21210000000"), QStringLiteral("11200000000"), QStringLiteral("22210000000"),
             QStringLiteral("10100000000"), QStringLiteral("21310010000"), QStringLiteral("11210000000"),
             QStringLiteral("21210000000"), QStringLiteral("31211000000"), QStringLiteral("10200000000"),
             QStringLiteral("11110000000"), QStringLiteral("22200100000"), QStringLiteral("21210000000"),
             QStringLiteral("11210000000"), QStringLiteral("11300010000"), QStringLiteral("21210000000")}};
}

}  // namespace verdane::guided_day
