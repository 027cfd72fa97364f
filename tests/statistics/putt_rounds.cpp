#include "tests/statistics/putt_rounds.h"

#include "statistics/putt_statistics.h"
#include "tests/statistics/selection_windows.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

void stored_rounds::putts(int day, int hole, const QList<int>& lengths) const
{
    put_putts(book.store, key_of_day(day), hole, lengths);
}

QStringList stored_rounds::by_first(int row) const
{
    return table_rows(book.store, u"s_put1"_s).at(row - 1);
}

QStringList stored_rounds::by_start(int row) const
{
    return table_rows(book.store, u"s_put2"_s).at(row - 1);
}

QList<QStringList> stored_rounds::grids() const
{
    return table_rows(book.store, u"s_put1"_s) + table_rows(book.store, u"s_put2"_s);
}

QStringList bands(const QStringList& row)
{
    return row.mid(1, 7);
}

selection_arguments days(int from, int to)
{
    return open_putt_selection(key_of_day(from), key_of_day(to));
}

bool fill_grids(const selection_arguments& chosen)
{
    run_progress no_bar;
    return Statistics::fill_putt_tables(chosen, no_bar);
}

void answer_no_putts(hand& user)
{
    answer_plain(user, u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies",
                 u"Verdane could not find any detailed rounds with the chosen parameters.");
}

}  // namespace verdane::testing
