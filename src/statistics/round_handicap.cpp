#include "statistics/round_handicap.h"

#include "base/checked_array.h"
#include "records/Round_functions.h"
#include "scoring/handicap.h"
#include "scoring/limits.h"
#include "store/DataEnvironment1.h"
#include "store/scoped_source.h"
#include "store/tables/games.h"
#include "store/tables/hand.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;

namespace {

using tables::hand::hnd;

void open_recordsets()
{
    DataEnvironment1& store = data_environment();
    store.rsvrd_fields.Open();
    store.rsfield_info.Open();
    store.connection.Execute(u"DELETE FROM HAND"_s);
    store.rsgames.Open();
    store.rshand.Open();
    open_situations();
}

void close_recordsets()
{
    DataEnvironment1& store = data_environment();
    for (Recordset* rows :
         {&store.rsgames, &store.rsvrd_fields, &store.rsfield_info, &store.rshand, &store.rsgames2})
        rows->Close();
}

/// Adds one row to `hand` for each round. A round beyond the limit fails with `subscript`.
missing_row gather_differentials(const selection_arguments& chosen)
{
    Recordset& hand = data_environment().rshand;
    int index = 0;
    return walk_selected_rounds(chosen, [&] {
        const double figure = Round_functions::round_score(Round_functions::from_row).differential;
        check_index(index++, 0, most_rounds - 1);
        hand.AddNew();
        hand.Fields(hnd).set(figure);
    });
}

/// The store sorts the differentials, the best one first.
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
    const int16 take = handicap_take(hand.RecordCount());
    double sum = 0;
    if (!hand.empty())
        hand.MoveFirst();
    for (int i = 0; i < plain(take); ++i) {
        sum += hand.Fields(hnd).to_double();
        hand.MoveNext();
    }
    return handicap_text(take, sum);
}

}  // namespace

handicap_result compute_handicap(const selection_arguments& chosen)
{
    DataEnvironment1& store = data_environment();
    const scoped_source rounds(store.rsgames, selected_rounds_statement(chosen),
                               tables::games::source_after_run.toString());
    const scoped_source differentials(store.rshand, store.rshand.Source(),
                                      tables::hand::source_after_run.toString());
    open_recordsets();
    handicap_result result{gather_differentials(chosen), {}};
    if (result.missing == missing_row::none) {
        sort_differentials();
        result.text = handicap_of_sorted_differentials();
    }
    close_recordsets();
    return result;
}

}  // namespace verdane::Statistics
