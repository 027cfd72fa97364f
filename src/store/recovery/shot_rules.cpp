#include "store/recovery/shot_rules.h"

#include "scoring/limits.h"
#include "scoring/words.h"
#include "store/Connection1.h"
#include "store/recovery/round_rules.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// A text column of the shots, the column with its code, and the words of the codes from 1 on.
struct coded_words {
    QString text;
    QString code;
    std::vector<text_pair> words;
};

QString both_words(const text_pair& word)
{
    return u'(' + quoted(word.french.toString()) + u", " + quoted(word.english.toString()) + u')';
}

/// The condition that a word differs from its code.
QString wrong_word(const coded_words& column)
{
    QStringList parts;
    int code = 0;
    for (const text_pair& word : column.words)
        parts << u"(%1 = %2 and %3 not in %4)"_s.arg(column.code, QString::number(++code), column.text,
                                                     both_words(word));
    return parts.join(u" or "_s);
}

QString right_words(const coded_words& column)
{
    QString statement = u"update Stat_rounds set "_s + column.text + u" = case " + column.code;
    int code = 0;
    for (const text_pair& word : column.words)
        statement += u" when %1 then "_s.arg(++code) + quoted(word.in(is_french));
    return statement + u" end where " + wrong_word(column);
}

QString shots_where(const QString& condition)
{
    return u"select coalesce(date, '') || ' ' || coalesce(hole, '') || '.' || coalesce(shot, '') "
           u"from Stat_rounds where "_s +
           condition;
}

diary_rule rule_of_words(const QString& french, const QString& english, const coded_words& column)
{
    return {french, english, shots_where(wrong_word(column)), {right_words(column)}};
}

/// The penalties that add a stroke are all but the last entry of the menu.
std::vector<text_pair> words_of_penalties()
{
    return {penalty_words.begin(), penalty_words.end() - 1};
}

const QString added_stroke =
    u"case when coalesce(penval, 0) between %1 and %2 then 1 else 0 end"_s.arg(water_hazard)
        .arg(out_of_bounds);

/// The condition that a code is none of those from 0, which means "none", to the last one.
QString unknown_code(const QString& column, int last)
{
    return u"coalesce(%1, 0) not between 0 and %2"_s.arg(column, QString::number(last));
}

/// The condition that a putt has no code of its position, but a word.
const QString putt_with_position =
    u"shot_type_value = %1 and coalesce(fairval, 0) = 0 and coalesce(faireway, '%2') <> '%2'"_s.arg(
        QString::number(putt), blank_word.toString());

}  // namespace

std::vector<diary_rule> rules_of_shots()
{
    const coded_words kinds{u"shot_type"_s, u"shot_type_value"_s, {kind_words.begin(), kind_words.end()}};
    const coded_words positions{u"faireway"_s, u"fairval"_s, {position_words.begin(), position_words.end()}};
    const coded_words penalties{u"penality"_s, u"penval"_s, words_of_penalties()};
    return {
        rule_of_lost_shots(),
        {u"chaque coup est sur un trou"_s,
         u"every shot is on a hole"_s,
         shots_where(u"hole is null or hole not between 1 and %1"_s.arg(hole_count)),
         {}},
        {u"deux coups d'un trou n'ont pas le même numéro"_s,
         u"no two shots of a hole have one number"_s,
         u"select date || ' ' || hole || '.' || shot from Stat_rounds group by date, hole, shot "
         u"having count(*) > 1"_s,
         {}},
        {u"les codes des coups sont connus"_s,
         u"codes of shots are in their sets"_s,
         shots_where(
             QStringList{unknown_code(u"stickval"_s, club_count), unknown_code(u"fairval"_s, to_the_right),
                         unknown_code(u"penval"_s, out_of_bounds), unknown_code(u"shot_type_value"_s, putt)}
                 .join(u" or "_s)),
         {}},
        rule_of_words(u"le genre du coup en mots est celui du code"_s,
                      u"the kind in words is the kind in code"_s, kinds),
        rule_of_words(u"la position en mots est celle du code"_s,
                      u"the position in words is the position in code"_s, positions),
        {u"un coup roulé sans code de position n'a pas de mot"_s,
         u"a putt without a code of its position has no word"_s,
         shots_where(putt_with_position),
         {u"update Stat_rounds set faireway = '%1' where "_s.arg(blank_word) + putt_with_position}},
        rule_of_words(u"la pénalité en mots est celle du code"_s,
                      u"the penalty in words is the penalty in code"_s, penalties),
        {u"une pénalité ajoute un coup"_s,
         u"a penalty adds one stroke"_s,
         shots_where(u"coalesce(addpen, 0) <> "_s + added_stroke),
         {u"update Stat_rounds set addpen = "_s + added_stroke + u" where coalesce(addpen, 0) <> " +
          added_stroke}},
        {u"les unités sont des mots de l'une des langues"_s,
         u"units are words of one of the languages"_s,
         shots_where(u"trim(coalesce(unit, '')) <> '' and trim(unit) not in %1 and trim(unit) not in %2"_s
                         .arg(both_words(feet_words), both_words(yards_words))),
         {}},
        {u"aucune distance n'est négative"_s,
         u"no distance is below zero"_s,
         shots_where(u"coalesce(before, 0) < 0 or coalesce(after, 0) < 0"_s),
         {}},
    };
}

const diary_rule& rule_of_lost_shots()
{
    static const diary_rule rule{u"chaque coup a sa ronde"_s,
                                 u"every shot has its round"_s,
                                 u"select distinct coalesce(date, '') from "_s +
                                     without_round(u"Stat_rounds"_s),
                                 {}};
    return rule;
}

}  // namespace verdane
