#include "tests/support/full_diary.h"

#include <QDate>
#include <QTime>

#include <algorithm>

#include "store/Connection1.h"
#include "store/schema.h"
#include "store/tables/golf_bag.h"
#include "tests/support/diary.h"
#include "tests/support/golfer.h"
#include "tests/support/table_filler.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned seed = 19980614;
constexpr int holes = 18;
constexpr int putts_kept = 6;
constexpr int weathers = 4;
constexpr int amounts = 12;

struct partner {
    QString surname;
    QString name;
    int code;
};

const std::vector<partner>& partners()
{
    static const std::vector<partner> all{
        {u"Anne"_s, u"Larivière"_s, 1507}, {u"Bruno"_s, u"Keller"_s, 1129}, {u"Chloé"_s, u"O Brien"_s, 1266},
        {u"Denis"_s, u"Tremblay"_s, 1418}, {u"Ella"_s, u"Fraser"_s, 1003},  {u"Félix"_s, u"Gagnon"_s, 1187}};
    return all;
}

QString name_of_club(int club)
{
    return QStringView(tables::sticknames::new_names.at(static_cast<std::size_t>(club - 1))).toString();
}

const std::vector<diary_course>& courses()
{
    static const std::vector<diary_course> all = [] {
        std::vector<diary_course> list;
        for (const scorecard& card : published_scorecards())
            list.push_back(course_of(card.name, card.tee));
        return list;
    }();
    return all;
}

void add_reference_data(const store_location& place)
{
    Connection1().Open(place);
    const diary book(place);
    for (const diary_course& course : courses())
        book.add(course);
    for (const partner& one : partners())
        book.add_partner(one.surname, one.name, one.code);
}

int count(const played_shots& shots, bool (*of_kind)(const played_shot&))
{
    return static_cast<int>(std::count_if(shots.begin(), shots.end(), of_kind));
}

template <int played_shot::*code, int value>
int count_of(const played_shots& shots)
{
    return count(shots, [](const played_shot& shot) { return shot.*code == value; });
}

template <bool played_shot::*flag>
int count_of(const played_shots& shots)
{
    return count(shots, [](const played_shot& shot) { return shot.*flag; });
}

constexpr auto kind = &played_shot::kind;
constexpr auto penalty = &played_shot::penalty;

/// The lengths of the putts, in feet: the distance before each one.
QVariantList putt_lengths(const played_shots& shots)
{
    QVariantList lengths;
    for (const played_shot& shot : shots) {
        if (shot.kind == 3 && lengths.size() < putts_kept)
            lengths << shot.before;
    }
    while (lengths.size() < putts_kept)
        lengths << 0;
    return lengths;
}

QStringList columns_of_games()
{
    QStringList columns{u"date"_s, u"field"_s, u"CODEF"_s};
    for (int h = 1; h <= holes; ++h) {
        for (const QString& figure : {u"long"_s, u"approach"_s, u"putt"_s, u"pen_rule"_s, u"pen_water"_s,
                                      u"pen_bounds"_s, u"pen_lost"_s, u"missed"_s})
            columns << u"%1_%2"_s.arg(figure).arg(h);
    }
    return columns;
}

QVariantList figures_in_games(const played_shots& shots)
{
    return {count_of<kind, 1>(shots),    count_of<kind, 2>(shots),
            count_of<kind, 3>(shots),    count_of<penalty, 3>(shots),
            count_of<penalty, 1>(shots), count_of<penalty, 4>(shots),
            count_of<penalty, 2>(shots), count_of<&played_shot::missed>(shots)};
}

QStringList columns_of_games2()
{
    QStringList columns{u"date"_s, u"FC"_s, u"conditionM"_s, u"PARTNERS"_s, u"temperature"_s};
    for (int h = 1; h <= holes; ++h) {
        for (const QString& figure : {u"sand"_s, u"recovery"_s, u"fairway"_s})
            columns << u"%1_%2"_s.arg(figure).arg(h);
        for (int putt = 1; putt <= putts_kept; ++putt)
            columns << u"putt_len_%1_%2"_s.arg(h).arg(putt);
    }
    return columns;
}

QVariantList figures_in_games2(const played_shots& shots, bool detailed)
{
    // A hole without shots has no lengths of putts.
    return QVariantList{count_of<&played_shot::sand>(shots), count_of<&played_shot::no_gain>(shots),
                        count_of<&played_shot::fairway, 1>(shots)} +
           putt_lengths(detailed ? shots : played_shots());
}

QStringList columns_of_cost()
{
    QStringList columns;
    const table& cost = *find_table(u"cost");
    for (const column& each : cost.columns)
        columns << each.name;
    return columns;
}

QStringList columns_of_shots()
{
    return u"date hole before after shot_type stick beyong_hole missed ts dz faireway penality "
           u"shot stickval fairval penval shot_type_value cal normal addpen unit verges"_s.split(u' ');
}

/// The captions of a code in the language of a round.
struct captions {
    QStringList kind;
    QStringList fairway;
    QStringList penalty;
    QString yards;
    QString feet;
};

const captions& captions_in(bool french)
{
    static const captions in_french{{u" "_s, u"Long"_s, u"Approche"_s, u"Putt"_s},
                                    {u" "_s, u"Dans l'allé"_s, u"Gauche"_s, u"Droite"_s},
                                    {u" "_s, u"Eau"_s, u"Balle perdue"_s, u"Règlement"_s, u"Hors limites"_s},
                                    u"Verges"_s,
                                    u"Pieds"_s};
    static const captions in_english{
        {u" "_s, u"Long"_s, u"Approach"_s, u"Putt"_s},
        {u" "_s, u"Fairway"_s, u"Left"_s, u"Right"_s},
        {u" "_s, u"Water Hazard"_s, u"Lost Ball"_s, u"Rules"_s, u"Out of Bounds"_s},
        u"Yards"_s,
        u"Feets"_s};
    return french ? in_french : in_english;
}

/// Plays and writes one round after the other.
class diary_writer {
public:
    diary_writer(const outside_connection& store, bool detailed)
        : games_(store, u"games"_s, columns_of_games()),
          games2_(store, u"games2"_s, columns_of_games2()),
          cost_(store, u"cost"_s, columns_of_cost()),
          shots_(store, u"Stat_rounds"_s, columns_of_shots()),
          detailed_(detailed)
    {
    }

    void add_round(int round)
    {
        const QString key = key_in_diary(round);
        const auto last_course = static_cast<int>(courses().size()) - 1;
        const diary_course& course = courses().at(static_cast<std::size_t>(player_.pick(0, last_course)));
        QVariantList games{key, course.name, course.code};
        QVariantList games2{key, course.code, player_.pick(0, weathers - 1), some_partners(),
                            player_.pick(2, 33)};
        for (int h = 1; h <= holes; ++h) {
            const played_shots shots = player_.play(course.yards.at(static_cast<std::size_t>(h - 1)));
            games += figures_in_games(shots);
            games2 += figures_in_games2(shots, detailed_);
            if (detailed_)
                add_shots(key, h, course, shots, captions_in(round % 2 == 0));
        }
        games_.add(games);
        games2_.add(games2);
        cost_.add(costs(key));
    }

private:
    /// None to three of the partners, in the format of the column `PARTNERS`.
    QString some_partners()
    {
        QString text;
        int places = player_.pick(0, 3);
        for (const partner& one : partners()) {
            if (places > 0 && player_.once_in(2)) {
                text += QString::number(one.code) + u'-';
                --places;
            }
        }
        return text;
    }

    QVariantList costs(const QString& key)
    {
        QVariantList row{key, player_.pick(35, 120)};
        while (row.size() <= amounts)
            row << (player_.once_in(4) ? player_.pick(1, 60) : 0);
        return row;
    }

    void add_shots(const QString& key, int h, const diary_course& course, const played_shots& shots,
                   const captions& words)
    {
        const auto hole = static_cast<std::size_t>(h - 1);
        int number = 0;
        for (const played_shot& s : shots)
            shots_.add({key,
                        h,
                        s.before,
                        s.after,
                        words.kind.at(s.kind),
                        name_of_club(s.club),
                        s.beyond,
                        s.missed,
                        s.sand,
                        s.no_gain,
                        words.fairway.at(s.fairway),
                        words.penalty.at(s.penalty),
                        ++number,
                        s.club,
                        s.fairway,
                        s.penalty,
                        s.kind,
                        s.chipped_in,
                        course.pars.at(hole),
                        s.penalty > 0 ? 1 : 0,
                        s.in_feet ? words.feet : words.yards,
                        course.yards.at(hole)});
    }

    golfer player_{seed};
    table_filler games_;
    table_filler games2_;
    table_filler cost_;
    table_filler shots_;
    bool detailed_;
};

}  // namespace

QString key_in_diary(int round)
{
    // Some minute of the day, another one each day.
    const QTime tee_off = QTime(7, 0).addSecs(60 * (round * 37 % 600));
    return QDate(2023, 1, 1).addDays(round).toString(u"yyyyMMdd") + tee_off.toString(u"HHmmss");
}

void create_diary(const store_location& place, int rounds, bool detailed)
{
    add_reference_data(place);
    in_one_transaction(place, [&](const outside_connection& store) {
        diary_writer writer(store, detailed);
        for (int round = 0; round < rounds; ++round)
            writer.add_round(round);
    });
}

void clear_sixth_putts(const store_location& place)
{
    QStringList assignments;
    for (int h = 1; h <= holes; ++h)
        assignments << u"putt_len_%1_%2 = 0"_s.arg(h).arg(putts_kept);
    reader(place).write(u"update games2 set " + assignments.join(u", "));
}

}  // namespace verdane::testing
