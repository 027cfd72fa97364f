#include "tests/round/entered_shots.h"

#include <QImage>

#include "base/language.h"
#include "scoring/limits.h"
#include "store/tables/games.h"
#include "store/tables/games2.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int clubs = 14;

QString club_word(int club)
{
    if (club == 1)
        return u"D"_s;
    if (club == 13)
        return u"SW"_s;
    return club == clubs ? u"Pu"_s : u"F%1"_s.arg(club);
}

QString kind_word(int kind)
{
    return QStringList{QString(), u"Long"_s, is_french ? u"Approche"_s : u"Approach"_s, u"Putt"_s}.at(kind);
}

QString shown(const QVariant& value)
{
    return value.isNull() ? u"-"_s : value.toString();
}

QString marks(const std::vector<QVariant>& row)
{
    QString marks;
    if (row[10].toInt() != 1 && row[8].toInt() != 3)
        marks += u" fairway=" + row[10].toString();
    if (row[11].toInt() != 0)
        marks += u" penalty=%1+%2"_s.arg(row[11].toInt()).arg(row[12].toInt());
    const QStringList marks_in_order{u" missed"_s, u" sand"_s, u" zero"_s, u" beyond"_s, u" cal"_s};
    for (int i = 0; i < marks_in_order.size(); ++i) {
        if (row[static_cast<std::size_t>(13 + i)].toInt() != 0)
            marks += marks_in_order[i];
    }
    return marks;
}

QString figures(const round_store& store, const QString& table, const QList<int>& ordinals)
{
    QStringList texts;
    for (const int ordinal : ordinals)
        texts << store.at(table, ordinal);
    return texts.join(u' ');
}

}  // namespace

void name_the_clubs(const round_store& store)
{
    for (int club = 1; club <= clubs; ++club)
        store.store.write(u"update sticknames set club_%1 = '%2'"_s.arg(club).arg(club_word(club)));
}

void open_detailed_page(hand& user)
{
    user.click_tab(u"TabStrip2"_s, 2);
    user.check(user.visible(details), u"the grid is visible"_s);
}

void open_quick_page(hand& user)
{
    user.click_tab(u"TabStrip2"_s, 1);
}

QString stored_shots(const round_store& store, int hole)
{
    const auto rows = store.store.rows(
        u"select shot, before, after, unit, stick, stickval, shot_type, date, shot_type_value, "
        u"faireway, fairval, penval, addpen, missed, ts, dz, beyong_hole, cal from Stat_rounds "
        u"where hole = %1 order by rowid"_s.arg(hole));
    QStringList lines;
    for (const auto& row : rows) {
        lines << u"%1 %2>%3 %4 %5/%6 %7/%8"_s.arg(shown(row[0]), shown(row[1]), shown(row[2]), shown(row[3]),
                                                  shown(row[4]), shown(row[5]), shown(row[6]),
                                                  shown(row[8])) +
                     marks(row);
    }
    return lines.join(u'\n');
}

void add_shot(const round_store& store, int hole, int shot, const QString& values)
{
    store.store.write(
        u"insert into Stat_rounds (date, hole, shot) values ('%1', %2, %3)"_s.arg(key_of_keyed_round())
            .arg(hole)
            .arg(shot));
    store.store.write(
        u"update Stat_rounds set %1 where hole = %2 and shot = %3"_s.arg(values).arg(hole).arg(shot));
}

void add_complete_shot(const round_store& store, int hole, int shot, int club, int after, const QString& unit,
                       int kind)
{
    add_shot(store, hole, shot,
             u"stickval = %1, stick = '%2', after = %3, unit = '%4', shot_type_value = %5, "
             u"shot_type = '%6', fairval = 1, verges = %7, before = 0"_s.arg(club)
                 .arg(club_word(club))
                 .arg(after)
                 .arg(unit)
                 .arg(kind)
                 .arg(kind_word(kind))
                 .arg(100 + hole));
}

void enter_shot(hand& user, int row, int club, const QString& distance, int kind)
{
    user.open_menu(details, row, 2);
    user.choose_menu_entry(u"ms1_%1"_s.arg(club));
    if (!distance.isEmpty()) {
        user.type(distance);
        user.key(Qt::Key_Return);
    }
    if (kind == 0)
        return;
    user.open_menu(details, row, 5);
    user.choose_menu_entry(u"mshots_%1"_s.arg(kind));
}

QString stored_figures(const round_store& store, int hole)
{
    namespace games = tables::games;
    namespace games2 = tables::games2;
    return figures(store, u"games"_s, {games::long_h(hole), games::approach_h(hole), games::putt_h(hole)}) +
           u' ' + figures(store, u"games2"_s, {games2::fairway_h(hole), games2::sand_h(hole)}) + u' ' +
           store.at(u"games"_s, games::missed_h(hole)) + u' ' +
           store.at(u"games2"_s, games2::recovery_h(hole)) + u' ' +
           figures(store, u"games"_s,
                   {games::pen_water_h(hole), games::pen_lost_h(hole), games::pen_rule_h(hole),
                    games::pen_bounds_h(hole)});
}

QString stored_putts(const round_store& store, int hole)
{
    QList<int> ordinals;
    for (int putt = 1; putt <= putt_lengths_kept; ++putt)
        ordinals << tables::games2::putt_len(hole, putt);
    return figures(store, u"games2"_s, ordinals);
}

golfer_store::golfer_store(bool french) : store(french)
{
    store.add_two_courses();
    name_the_clubs(store);
}

int golfer_store::shots(int hole) const
{
    return store.number(u"select count(*) from Stat_rounds where hole = %1"_s.arg(hole));
}

void enter_hole(hand& user)
{
    enter_shot(user, 0, 1, u"60"_s, 1);
    user.click(u"CommandSuiv"_s);
    enter_shot(user, 1, 9, u"10"_s, 2);
    user.click(u"CommandSuiv"_s);
    enter_shot(user, 2, 14, u"4"_s, 0);
}

void enter_incomplete_second_shot(hand& user)
{
    enter_shot(user, 0, 1, u"60"_s, 1);
    user.click(u"CommandSuiv"_s);
    enter_shot(user, 1, 9, u"10"_s, 0);
}

expected_box refusal_of_shot(const QString& suffix)
{
    return {in_language(u"Il faut indiquer le bâton et le type de coup (VRD) pour le coup",
                        u"Please indicate a golf club and the type of shot (VRD) for the shot") +
                suffix,
            QMessageBox::Critical, u"Verdane"_s, QMessageBox::Ok};
}

void keep_picture(hand& user, const QString& name)
{
    const QString folder = qEnvironmentVariable("VERDANE_PICTURES");
    if (!folder.isEmpty())
        user.picture(round_window()).save(u"%1/%2.png"_s.arg(folder, name));
}

}  // namespace verdane::testing
