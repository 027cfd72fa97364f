#include "store/recovery/round_rules.h"

#include "scoring/limits.h"
#include "store/schema.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString keys_of(const QString& table)
{
    return u"(select trim(date) from "_s + table + u" where date is not null)";
}

/// Rows whose key has neither a round nor shots. If the key has shots, a round can be made of them, and it
/// uses these rows.
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

/// The repair adds rows without values.
std::vector<diary_rule> rules_of_rows_of(const QString& table, const QString& columns, const QString& values)
{
    return {
        {u"chaque ligne de %1 a sa ronde"_s.arg(table),
         u"every row of %1 has its round"_s.arg(table),
         u"select coalesce(date, '') from "_s + empty_without_round(table),
         {u"delete from "_s + empty_without_round(table)}},
        rule_of_values_without_round(table),
        {u"chaque ronde a une ligne de %1"_s.arg(table),
         u"every round has one row of %1"_s.arg(table),
         u"select distinct date "_s + round_without(table),
         {u"insert into %1 (%2) select %3 %4 group by date"_s.arg(table, columns, values,
                                                                  round_without(table))}},
        {u"aucune ronde n'a deux lignes de %1"_s.arg(table),
         u"no round has two rows of %1"_s.arg(table),
         round_with_several(table),
         {},
         true},
    };
}

std::vector<diary_rule> rules_of_keys()
{
    return {
        {u"chaque clé a %1 chiffres"_s.arg(round_key_digits),
         u"every key has %1 digits"_s.arg(round_key_digits),
         u"select coalesce(date, '') from games "
         u"where date is null or length(date) <> %1 or date glob '*[^0-9]*'"_s.arg(round_key_digits),
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
    };
}

}  // namespace

QString without_round(const QString& table)
{
    return table + u" where (date is null or trim(date) not in "_s + keys_of(u"games"_s) + u')';
}

std::vector<diary_rule> rules_of_rounds()
{
    std::vector<diary_rule> all = rules_of_keys();
    const auto append = [&all](const std::vector<diary_rule>& rules) {
        all.insert(all.end(), rules.begin(), rules.end());
    };
    append(rules_of_rows_of(u"games2"_s, u"date, conditionM, FC"_s, u"date, 0, min(CODEF)"_s));
    append(rules_of_rows_of(u"cost"_s, u"date"_s, u"date"_s));
    all.push_back(rule_of_blanks_in_keys());
    return all;
}

}  // namespace verdane
