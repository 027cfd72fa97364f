#include "statistics/cost_statistics.h"

#include <QStringList>

#include "base/language.h"
#include "controls/boxes.h"
#include "reports/report_control.h"
#include "statistics/column_places.h"
#include "store/commits.h"
#include "store/DataEnvironment1.h"
#include "store/tables/cost.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;

namespace {

constexpr int step_of_a_round = 3;

constexpr std::u16string_view columns =
    u"select cost.date,cost.fg,cost.cm,cost.vt,cost.ft, "
    u"cost.ba,cost.tee,cost.tex,cost.nrt,cost.lg,cost.bs,cost.ln,cost.au from  cost ";

/// True if the statement selects the key and the amounts in the order of the table. The ordinals of the table
/// then apply to its rows, too.
consteval bool selects_in_order_of_the_table()
{
    int ordinal = tables::cost::first_amount;
    for (int i = 0; i < tables::round_amounts.name_count; ++i, ++ordinal) {
        if (place_in(columns, tables::round_amounts.names[static_cast<std::size_t>(i)]) != ordinal)
            return false;
    }
    return place_in(columns, u"date") == tables::cost::date;
}
static_assert(selects_in_order_of_the_table());

/// The names of the amounts, separated by commas.
QString amount_columns()
{
    QStringList names;
    for (int i = 0; i < tables::round_amounts.name_count; ++i)
        names << QStringView(tables::round_amounts.names[static_cast<std::size_t>(i)]).toString();
    return names.join(u',');
}

/// Removes all rows by one statement: a source on a server takes ten times as long for one of each row.
void remove_rows(Recordset& report)
{
    report.Open(row_reading::one_by_one);
    const bool has_rows = !report.eof();
    report.Close();
    if (has_rows)
        data_environment().connection.Execute(u"delete from r_cost"_s);
}

void check_amounts(Recordset& cost)
{
    for (int amount = tables::cost::first_amount; amount <= tables::cost::last_amount; ++amount)
        cost.Fields(amount).int32_or_zero();
}

/// Checks the rounds to copy and returns their number. An amount beyond 32 bits fails with `overflow`.
int check_rows(Recordset& cost, run_progress& bar)
{
    int rounds = 0;
    for (cost.Open(row_reading::one_by_one); !cost.eof(); cost.MoveNext()) {
        ++rounds;
        bar.pass_through(rounds * step_of_a_round);
        check_amounts(cost);
    }
    cost.Close();
    return rounds;
}

/// Copies all rows by one statement, which is much faster than adding them one by one. The statement copies
/// any amount, so `check_rows` has to be called before. The rounds are sorted by date on every engine: the
/// embedded one reads them by the index of the dates, a server in any order.
void copy_rows(const QString& selection)
{
    data_environment().connection.Execute(u"insert into r_cost (date," + amount_columns() + u") " +
                                          selection + u" order by cost.date");
}

/// Writes the number of rounds to the first row of the table.
void write_round_count(Recordset& report, int rounds)
{
    const QString all_rows = report.settings().source;
    const scoped_source first_row(report, all_rows + u" limit 1", all_rows);
    report.Open();
    report.Fields(tables::r_cost::round_count).set(rounds);
    report.Update();
    report.Close();
}

/// False if the selection has no costs; the report table is empty then, and the statement of the selection
/// stays in force.
bool fill_from_costs(const selection_arguments& chosen, run_progress& bar)
{
    Recordset& cost = data_environment().rscost;
    Recordset& report = data_environment().rsr_cost;
    remove_rows(report);
    scoped_source selection(cost, cost_select(chosen), cost.settings().source);
    const int rounds = check_rows(cost, bar);
    if (rounds == 0) {
        selection.leave_in_force();
        return false;
    }
    copy_rows(cost.Source());
    write_round_count(report, rounds);
    return true;
}

bool fill_in_one_commit(const selection_arguments& chosen, run_progress& bar)
{
    relaxed_commits scratch(data_environment().connection);
    single_commit together(data_environment().connection);
    const bool any_cost = fill_from_costs(chosen, bar);
    together.finish();
    scratch.finish();
    return any_cost;
}

}  // namespace

void empty_cost_report()
{
    single_commit together(data_environment().connection);
    remove_rows(data_environment().rsr_cost);
    together.finish();
}

scoped_source whole_cost_table_afterwards()
{
    Recordset& cost = data_environment().rscost;
    return {cost, cost.Source(), cost.settings().source};
}

QString cost_select(const selection_arguments& chosen)
{
    return QStringView(columns) + u", games2 where ( cost.date=games2.date and cost.date>= " +
           quoted(chosen.from_key) + u" AND cost.date <=" + quoted(chosen.to_key) + u" ) " +
           chosen.partner_clause + chosen.course_clause + chosen.weather_clause;
}

bool fill_r_cost(const selection_arguments& chosen, run_progress& bar)
{
    if (!fill_in_one_commit(chosen, bar)) {
        show_information(
            in_language(u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies",
                        u"Verdane could not find any detailed rounds with the chosen parameters."));
        bar.hide();
        return false;
    }
    bar.move_to(100);
    bar.hide();
    return true;
}

void cost_statistics(const selection_arguments& chosen, const run_controls& controls)
{
    run_progress bar(controls.Status);
    bar.show(0);
    if (!fill_r_cost(chosen, bar))
        return;
    report_control& cr2 = controls.report;
    prepare_report(cr2, report_opening::maximised(), u"\\r_cost3.rpt", u"\\r_cost3_en.rpt");
    cr2.Action(report_control::run_now);
}

}  // namespace verdane::Statistics
