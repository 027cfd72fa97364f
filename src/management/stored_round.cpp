#include "stored_round.h"

#include "DataEnvironment1.h"
#include "round_columns.h"
#include "shot_rows.h"

namespace verdane {

namespace {

void find_from_first(Recordset& rows, const QString& criterion, search_direction direction)
{
    if (!rows.empty())
        rows.MoveFirst();
    rows.Find(criterion, direction);
}

void add_cost_row(const QString& key)
{
    Recordset& cost = data_environment().rscost;
    cost.AddNew();
    for (int amount = round_columns::first_amount; amount <= round_columns::last_amount; ++amount)
        cost.Fields(amount).set(0);
    cost.Fields(round_columns::date).set(key);
}

void open_cost(const QString& key, const QString& criterion)
{
    Recordset& cost = data_environment().rscost;
    cost.Open();
    cost.Find(criterion);
    if (cost.eof() || cost.bof())
        add_cost_row(key);
}

void open_shots_of_first_hole(const QString& key)
{
    Recordset& shots = data_environment().rsStat_rounds;
    shots.set_Source(shot_rows::statement_of_hole(key, 1));
    shots.Open();
}

}  // namespace

void open_rows_of_round(const QString& key)
{
    DataEnvironment1& store = data_environment();
    const QString of_key = u"Date =" + quoted(key);
    store.rsgames2.Open();
    find_from_first(store.rsgames2, of_key, search_direction::forward);
    find_from_first(store.rsgames, of_key, search_direction::backward);
    const QString course = store.rsgames.Fields(round_columns::codef).trimmed();
    store.rsvrd_fields.Open();
    find_from_first(store.rsvrd_fields, u"CODE = " + quoted(course), search_direction::backward);
    open_cost(key, of_key);
    open_shots_of_first_hole(key);
}

}  // namespace verdane
