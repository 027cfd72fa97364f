#include "management/round_removal.h"

#include "store/DataEnvironment1.h"
#include "store/tables/cost.h"
#include "store/tables/Stat_rounds.h"

namespace verdane {

namespace {

/// The shots and the costs have the key of their round in the same column.
constexpr int key_column = tables::cost::date;
static_assert(tables::Stat_rounds::date == key_column);

/// The rows of the round are adjacent, but all remaining rows are visited.
void delete_to_the_end(Recordset& rows, const QString& key)
{
    while (!rows.eof()) {
        if (rows.Fields(key_column).text_or_empty() == key)
            rows.Delete();
        rows.MoveNext();
    }
    rows.UpdateBatch(affect::all_chapters);
}

void open_at_round(Recordset& rows, const QString& source, const QString& key)
{
    rows.set_Source(source);
    // A diary has tens of thousands of shots: the requery does not read them, so they are read once.
    rows.Open(row_reading::when_needed);
    rows.Requery();
    if (!rows.eof())
        rows.MoveFirst();
    rows.Find(u"date=" + key);
}

void delete_shots(const QString& key)
{
    Recordset& shots = data_environment().rsStat_rounds;
    open_at_round(shots, tables::Stat_rounds::source_of_removal.toString(), key);
    if (!shots.eof())
        delete_to_the_end(shots, key);
    shots.Close();
}

void delete_cost(const QString& key)
{
    Recordset& cost = data_environment().rscost;
    open_at_round(cost, tables::cost::source_of_removal.toString(), key);
    delete_to_the_end(cost, key);
    cost.Close();
}

}  // namespace

void remove_round(const QString& key)
{
    Connection1& connection = data_environment().connection;
    connection.Execute(u"delete from games where date=" + quoted(key));
    connection.Execute(u"delete from games2 where date=" + quoted(key));
    delete_shots(key);
    delete_cost(key);
}

}  // namespace verdane
