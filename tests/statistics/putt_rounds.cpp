#include "tests/statistics/putt_rounds.h"

#include "reports/report_store.h"
#include "statistics/putt_statistics.h"
#include "tests/statistics/report_rows.h"
#include "tests/statistics/selection_windows.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

stored_rounds::stored_rounds(int days, bool french) : folder(french), book(folder.path())
{
    set_report_store(folder.path());
    const diary_course course = flat_course(u"PINS-0"_s, 4, u"70"_s, u"113"_s);
    book.add(course);
    std::vector<diary_round> rounds;
    for (int day = 1; day <= days; ++day)
        rounds.push_back(diary_round{key_of_day(day), course, holes_over(course.pars, 0), day % 2, {}});
    book.add(rounds);
}

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
