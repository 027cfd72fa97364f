#include "store/recovery/diary_rules.h"

#include "scoring/limits.h"
#include "scoring/words.h"
#include "store/Connection1.h"
#include "store/schema.h"

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
           "from Stat_rounds where "_s +
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

/// Keys are compared without blanks around them: a row whose key has one is not without its round, and is
/// reported by a rule of its own.
QString keys_of(const QString& table)
{
    return u"(select trim(date) from "_s + table + u" where date is not null)";
}

QString without_round(const QString& table)
{
    return table + u" where (date is null or trim(date) not in "_s + keys_of(u"games"_s) + u')';
}

/// Rows of rounds that are lost completely. Those of a round that has shots are used when it is made again.
QString without_round_and_shots(const QString& table)
{
    return without_round(table) + u" and (date is null or trim(date) not in " + keys_of(u"Stat_rounds"_s) +
           u')';
}

QString is_empty(const column& tested)
{
    const QString name = u'`' + tested.name + u'`';
    if (tested.type == column_type::text)
        return u"trim(coalesce("_s + name + u", '')) = ''";
    if (tested.type == column_type::any)
        return u"trim(coalesce("_s + name + u", '')) in ('', '0')";
    return u"coalesce("_s + name + u", 0) = 0";
}

/// The condition that a row has no other values than its key and those of a new row.
QString has_no_values(const QString& name)
{
    QStringList conditions;
    for (const column& each : find_table(name)->columns) {
        if (each.name != u"date")
            conditions << is_empty(each);
    }
    return u'(' + conditions.join(u" and "_s) + u')';
}

QString empty_without_round(const QString& table)
{
    return without_round_and_shots(table) + u" and " + has_no_values(table);
}

/// Values are not deleted: the round that they belong to may be in a copy.
diary_rule rule_of_values_without_round(const QString& table)
{
    return {u"aucune ligne remplie de %1 n'est sans ronde"_s.arg(table),
            u"no row of %1 with values is without its round"_s.arg(table),
            u"select coalesce(date, '') from "_s + without_round_and_shots(table) + u" and not " +
                has_no_values(table),
            {},
            true};
}

QString with_blank_in_key(const QString& table)
{
    return u"select date from "_s + table + u" where date <> trim(date)";
}

/// The keys of `games` have a rule of their own.
diary_rule rule_of_blanks_in_keys()
{
    return {u"aucune clé ne commence ni ne finit par un blanc"_s,
            u"no key begins or ends with a blank"_s,
            QStringList{with_blank_in_key(u"games2"_s), with_blank_in_key(u"cost"_s),
                        with_blank_in_key(u"Stat_rounds"_s)}
                .join(u" union "_s),
            {},
            true};
}

QString round_without(const QString& table)
{
    return u"from games where trim(date) not in "_s + keys_of(table);
}

/// A window that deletes one of the rows of a key deletes all of them.
QString round_with_several(const QString& table)
{
    return u"select date from "_s + table + u" where date is not null group by date having count(*) > 1";
}

const QString added_stroke = u"case when coalesce(penval, 0) between 1 and 4 then 1 else 0 end"_s;

std::vector<diary_rule> rules_of_rounds()
{
    return {
        {u"chaque clé a 14 chiffres"_s,
         u"every key has 14 digits"_s,
         u"select coalesce(date, '') from games "
         "where date is null or length(date) <> 14 or date glob '*[^0-9]*'"_s,
         {}},
        {u"chaque clé n'a qu'une ronde"_s,
         u"every key has one round"_s,
         round_with_several(u"games"_s),
         {},
         true},
        {u"le journal a %1 rondes au plus"_s.arg(most_rounds),
         u"the diary has %1 rounds at most"_s.arg(most_rounds),
         u"select rounds from (select count(*) as rounds from games) where rounds > %1"_s.arg(most_rounds),
         {}},
        {u"chaque ligne de games2 a sa ronde"_s,
         u"every row of games2 has its round"_s,
         u"select coalesce(date, '') from "_s + empty_without_round(u"games2"_s),
         {u"delete from "_s + empty_without_round(u"games2"_s)}},
        rule_of_values_without_round(u"games2"_s),
        {u"chaque ronde a une ligne de games2"_s,
         u"every round has one row of games2"_s,
         u"select distinct date "_s + round_without(u"games2"_s),
         {u"insert into games2 (date, conditionM, FC) select date, 0, min(CODEF) "_s +
          round_without(u"games2"_s) + u" group by date"}},
        {u"aucune ronde n'a deux lignes de games2"_s,
         u"no round has two rows of games2"_s,
         round_with_several(u"games2"_s),
         {},
         true},
        {u"chaque ligne de cost a sa ronde"_s,
         u"every row of cost has its round"_s,
         u"select coalesce(date, '') from "_s + empty_without_round(u"cost"_s),
         {u"delete from "_s + empty_without_round(u"cost"_s)}},
        rule_of_values_without_round(u"cost"_s),
        {u"chaque ronde a une ligne de cost"_s,
         u"every round has one row of cost"_s,
         u"select distinct date "_s + round_without(u"cost"_s),
         {u"insert into cost (date) select distinct date "_s + round_without(u"cost"_s)}},
        {u"aucune ronde n'a deux lignes de cost"_s,
         u"no round has two rows of cost"_s,
         round_with_several(u"cost"_s),
         {},
         true},
        rule_of_blanks_in_keys(),
    };
}

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
         "having count(*) > 1"_s,
         {}},
        {u"les codes des coups sont connus"_s,
         u"codes of shots are in their sets"_s,
         shots_where(u"coalesce(stickval, 0) not between 0 and %1 or coalesce(fairval, 0) not between 0 and "
                     "3 or coalesce(penval, 0) not between 0 and 4 or coalesce(shot_type_value, 0) not "
                     "between 0 and 3"_s.arg(club_count)),
         {}},
        rule_of_words(u"le genre du coup en mots est celui du code"_s,
                      u"the kind in words is the kind in code"_s, kinds),
        rule_of_words(u"la position en mots est celle du code"_s,
                      u"the position in words is the position in code"_s, positions),
        {u"un coup roulé sans code de position n'a pas de mot"_s,
         u"a putt without a code of its position has no word"_s,
         shots_where(
             u"shot_type_value = 3 and coalesce(fairval, 0) = 0 and coalesce(faireway, ' ') <> ' '"_s),
         {u"update Stat_rounds set faireway = ' ' "
          "where shot_type_value = 3 and coalesce(fairval, 0) = 0 and coalesce(faireway, ' ') <> ' '"_s}},
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

}  // namespace

const std::vector<diary_rule>& diary_rules()
{
    static const std::vector<diary_rule> rules = [] {
        std::vector<diary_rule> all = rules_of_rounds();
        for (const diary_rule& rule : rules_of_shots())
            all.push_back(rule);
        return all;
    }();
    return rules;
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
