#include "statistics/handicap.h"

#include "base/checked_array.h"
#include "records/Round_functions.h"
#include "scoring/handicap.h"
#include "scoring/limits.h"
#include "store/DataEnvironment1.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;

namespace {

using differentials = checked_array<double, most_rounds>;

void open_recordsets(const selection_arguments& chosen)
{
    DataEnvironment1& store = data_environment();
    store.rsvrd_fields.Open();
    store.rsfield_info.Open();
    store.connection.Execute(u"DELETE FROM HAND"_s);
    store.rsgames.set_Source(selected_rounds_statement(chosen));
    store.rsgames.Open();
    store.rshand.Open();
    store.rsgames2.Open();
}

void close_recordsets()
{
    DataEnvironment1& store = data_environment();
    for (Recordset* rows :
         {&store.rsgames, &store.rsvrd_fields, &store.rsfield_info, &store.rshand, &store.rsgames2})
        rows->Close();
    store.rsgames.set_Source(u"Select * from games"_s);
    store.rshand.set_Source(u"select * from hand"_s);
}

/// One row of `hand` for each round. The list in memory is read by nothing, but has no room for more
/// rounds than a store may hold.
missing_row gather_differentials(const selection_arguments& chosen)
{
    Recordset& hand = data_environment().rshand;
    differentials list;
    int taken = 0;
    return walk_selected_rounds(chosen, [&] {
        const double figure = Round_functions::round_score(Round_functions::from_row).differential;
        list[taken++] = figure;
        hand.AddNew();
        hand.Fields(u"hnd").set(figure);
    });
}

/// The store sorts: the best differential comes first.
void sort_differentials()
{
    Recordset& hand = data_environment().rshand;
    hand.UpdateBatch(affect::all_chapters);
    hand.Close();
    hand.set_Source(u" select * from hand order by hnd asc"_s);
    hand.Open();
}

QString handicap_of_sorted_differentials()
{
    Recordset& hand = data_environment().rshand;
    const int16 take = handicap_take(static_cast<std::int16_t>(hand.RecordCount()));
    double sum = 0;
    if (!hand.empty())
        hand.MoveFirst();
    for (int i = 0; i < plain(take); ++i) {
        sum += hand.Fields(u"hnd").to_double();
        hand.MoveNext();
    }
    return handicap_text(take, sum);
}

}  // namespace

handicap_result compute_handicap(const selection_arguments& chosen)
{
    open_recordsets(chosen);
    handicap_result result{gather_differentials(chosen), {}};
    if (result.missing == missing_row::none) {
        sort_differentials();
        result.text = handicap_of_sorted_differentials();
    }
    close_recordsets();
    return result;
}

}  // namespace verdane::Statistics
