#include "round/round_record.h"

#include "records/course_rows.h"
#include "records/Main_module.h"
#include "records/round_rows.h"
#include "records/row_search.h"
#include "store/commits.h"
#include "store/DataEnvironment1.h"
#include "store/Recordset.h"
#include "store/tables/cost.h"
#include "store/tables/courses.h"
#include "store/tables/games.h"
#include "store/tables/games2.h"
#include "store/tables/partners.h"

namespace verdane::round_record {

namespace {

namespace games = tables::games;
namespace games2 = tables::games2;
namespace cost = tables::cost;
namespace vrd_fields = tables::vrd_fields;

using Round_functions::by_code;
using Round_functions::by_course;
using Round_functions::by_key;
using Round_functions::find_first;

void find_round(Recordset& recordset, const QString& key,
                search_direction direction = search_direction::forward)
{
    if (!recordset.empty())
        find_first(recordset, by_key, key, direction);
}

void zero_amounts(Recordset& costs)
{
    for (int ordinal = cost::first_amount; ordinal <= cost::last_amount; ++ordinal)
        costs.Fields(ordinal).set(0);
}

/// Not committed.
void add_cost_row(const QString& key)
{
    Recordset& costs = data_environment().rscost;
    costs.AddNew();
    costs.Fields(cost::date).set(key);
    zero_amounts(costs);
}

void store_cost_row(const QString& key)
{
    add_cost_row(key);
    data_environment().rscost.Update();
}

void find_holes_of_course(const QString& code)
{
    find_first(data_environment().rsfield_info, by_course, code);
}

void commit_and_find(Recordset& recordset, const QString& key)
{
    recordset.Update();
    if (!recordset.empty())
        recordset.MoveLast();
    find_round(recordset, key);
}

void commit_and_find_all(const QString& key)
{
    DataEnvironment1& store = data_environment();
    for (Recordset* recordset : {&store.rsgames, &store.rsgames2, &store.rscost})
        commit_and_find(*recordset, key);
    find_first(store.rsvrd_fields, by_code, store.rsgames.Fields(games::CODEF).trimmed());
    if (store.rscost.eof())
        store_cost_row(key);
}

/// A column without a value is left out of the text.
partner_line line_of_current_partner(Recordset& partners)
{
    partner_line line;
    line.text = partners.Fields(tables::partners::SURNAME).text_or_empty() + u',' +
                partners.Fields(tables::partners::NAME).text_or_empty();
    line.number = QString::number(plain(partners.Fields(tables::partners::code).int32_or_zero()));
    line.selected = Round_functions::partner_in_round(line.number) >= 1;
    return line;
}

}  // namespace

bool any_course()
{
    Recordset& courses = data_environment().rsvrd_fields;
    courses.Open();
    const bool any = !courses.empty();
    courses.Close();
    return any;
}

void open_games_and_field_info()
{
    data_environment().rsgames.Open(first_columns{{games::date}});
    data_environment().rsfield_info.Open();
}

void add_rows_without_key()
{
    DataEnvironment1& store = data_environment();
    store.rsgames2.Open(first_columns{{games2::date}});
    store.rsgames2.AddNew();
    store.rsgames.AddNew();
    store.rscost.Open(first_columns{{cost::date}});
    store.rscost.AddNew();
    zero_amounts(store.rscost);
    store.rsvrd_fields.Open();
}

void open_rows(const QString& key)
{
    DataEnvironment1& store = data_environment();
    store.rsgames2.Open(first_columns{{games2::date}});
    find_round(store.rsgames2, key);
    find_round(store.rsgames, key, search_direction::backward);
    store.rsvrd_fields.Open();
    find_first(store.rsvrd_fields, by_code, store.rsgames.Fields(games::CODEF).trimmed(),
               search_direction::backward);
    store.rscost.Open(first_columns{{cost::date}});
    find_round(store.rscost, key);
    if (store.rscost.eof())
        add_cost_row(key);
}

bool has_row_in_games2()
{
    return !data_environment().rsgames2.eof();
}

bool key_is_missing()
{
    return data_environment().rsgames2.Fields(games2::date).trimmed().isEmpty();
}

void set_key(const QString& key)
{
    DataEnvironment1& store = data_environment();
    store.rsgames2.Fields(games2::date).set(key);
    store.rsgames.Fields(games::date).set(key);
    store.rscost.Fields(cost::date).set(key);
}

QString find_holes_of_round(const QString& key)
{
    Recordset& rounds = data_environment().rsgames;
    find_first(rounds, by_key, key);
    const QString code = rounds.Fields(games::CODEF).trimmed();
    find_holes_of_course(code);
    return code;
}

void move_to_first_course()
{
    data_environment().rsvrd_fields.MoveFirst();
}

void find_course(const QString& code)
{
    find_first(data_environment().rsvrd_fields, by_code, code);
}

void move_to_course_and_holes(int course_index)
{
    Round_functions::move_to_course(course_index);
    find_holes_of_course(data_environment().rsvrd_fields.Fields(vrd_fields::code).text());
}

void find_or_store_costs(const QString& key)
{
    DataEnvironment1& store = data_environment();
    find_round(store.rscost, key);
    if (store.rscost.eof()) {
        store_cost_row(store.rsgames.Fields(games::date).text());
        store.rscost.MoveLast();
    }
}

round_header header()
{
    DataEnvironment1& store = data_environment();
    round_header header;
    header.costs = cost_total();
    header.weather = plain(store.rsgames2.Fields(games2::conditionM).int16_or_zero());
    header.temperature = plain(store.rsgames2.Fields(games2::temperature).int32_or_zero());
    header.course_name = store.rsvrd_fields.Fields(vrd_fields::name).text_or_empty();
    return header;
}

QString cost_total()
{
    return QString::number(plain(Round_functions::cost_total()));
}

void store_partners(const QStringList& numbers)
{
    data_environment().rsgames2.Fields(games2::PARTNERS).set(Round_functions::partners_text(numbers));
}

void store_round_header(const round_parameters& parameters)
{
    DataEnvironment1& store = data_environment();
    Round_functions::move_to_course(parameters.course_index);
    const QString code = store.rsvrd_fields.Fields(vrd_fields::code).text();
    store.rsgames.Fields(games::field).set(store.rsvrd_fields.Fields(vrd_fields::name).value());
    store.rsgames2.Fields(games2::conditionM).set(parameters.weather_index);
    store.rsgames2.Fields(games2::temperature).set(parameters.temperature);
    store.rsgames.Fields(games::CODEF).set(code);
    store.rsgames2.Fields(games2::FC).set(code);
    Main_module::append_round_key(store.rsgames.Fields(games::date).trimmed());
    store.rsgames2.Update();
    store.rsgames.Update();
}

void store_and_commit(const QString& key, const round_parameters& parameters)
{
    joined_commits together(data_environment().connection);
    store_round_header(parameters);
    commit_and_find_all(key);
    together.finish();
}

std::vector<listed_course> walk_courses()
{
    Recordset& courses = data_environment().rsvrd_fields;
    std::vector<listed_course> lines;
    for (courses.MoveFirst(); !courses.eof(); courses.MoveNext())
        lines.push_back(
            {courses.Fields(vrd_fields::name).text_or_empty(), courses.Fields(vrd_fields::code).trimmed()});
    return lines;
}

std::vector<partner_line> open_and_walk_partners()
{
    Recordset& partners = data_environment().rspartners;
    close_if_open(partners);
    partners.Open();
    std::vector<partner_line> lines;
    if (partners.empty())
        return lines;
    for (partners.MoveFirst(); !partners.eof(); partners.MoveNext())
        lines.push_back(line_of_current_partner(partners));
    return lines;
}

void drop_changes()
{
    DataEnvironment1& store = data_environment();
    store.rsgames.CancelUpdate();
    store.rsgames2.CancelUpdate();
    store.rscost.CancelUpdate();
}

void close_tables()
{
    DataEnvironment1& store = data_environment();
    store.rsgames2.Update();
    // If the round could not be loaded, some of them are closed.
    for (Recordset* recordset : {&store.rsgames2, &store.rsvrd_fields, &store.rscost, &store.rspartners,
                                 &store.rsgames, &store.rsfield_info})
        close_if_open(*recordset);
}

}  // namespace verdane::round_record
