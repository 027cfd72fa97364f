#include "statistics/cost_statistics.h"

#include <QStringList>

#include "base/failure_subject.h"
#include "base/language.h"
#include "controls/boxes.h"
#include "records/round_subject.h"
#include "reports/report_control.h"
#include "store/commits.h"
#include "store/DataEnvironment1.h"
#include "store/tables/cost.h"

namespace verdane::Statistics {

using namespace Qt::StringLiterals;

namespace {

constexpr int step_of_a_round = 3;

constexpr std::u16string_view columns =
    u"select cost.date,cost.fg,cost.cm,cost.vt,cost.ft, "
    u"cost.ba,cost.tee,cost.tex,cost.nrt,cost.lg,cost.bs,cost.ln,cost.au ";

/// The rest of a statement that selects columns of the selected rounds.
QString from_selected_rounds(const selection_arguments& chosen)
{
    return u"from  cost , games2 where ( cost.date=games2.date and cost.date>= " + quoted(chosen.from_key) +
           u" AND cost.date <=" + quoted(chosen.to_key) + u" ) " + chosen.partner_clause +
           chosen.course_clause + chosen.weather_clause;
}

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
void remove_rows()
{
    data_environment().connection.Execute(u"delete from r_cost"_s);
}

bool has_rows(Recordset& report)
{
    report.Open(row_reading::one_by_one);
    const bool found = !report.eof();
    report.Close();
    return found;
}

/// The rows to copy.
struct cost_rows {
    int number = 0;
    /// The earliest date, and how many rows have it.
    QString first_date;
    int with_first_date = 0;

    void add(const QString& date)
    {
        if (number++ == 0 || date < first_date) {
            first_date = date;
            with_first_date = 0;
        }
        with_first_date += date == first_date ? 1 : 0;
    }
};

void check_amounts(Recordset& cost)
{
    for (int amount = tables::cost::first_amount; amount <= tables::cost::last_amount; ++amount)
        cost.Fields(amount).int32_or_zero();
}

/// Checks the rounds to copy. An amount beyond 32 bits fails with `overflow`.
cost_rows check_rows(Recordset& cost, run_progress& bar)
{
    cost_rows rows;
    for (cost.Open(row_reading::one_by_one); !cost.eof(); cost.MoveNext()) {
        rows.add(cost.Fields(tables::cost::date).text());
        bar.pass_through(rows.number * step_of_a_round);
        concerning(
            [&cost] { return Round_functions::subject_of_round(cost.Fields(tables::cost::date).trimmed()); },
            [&cost] { check_amounts(cost); });
    }
    cost.Close();
    return rows;
}

/// Copies all rows by one statement, which is much faster than adding them one by one. The statement copies
/// any amount, so `check_rows` has to be called before. The rounds are sorted by date on every engine: the
/// embedded one reads them by the index of the dates, a server in any order. `round_count` is an expression
/// for that column.
void copy_rows(const selection_arguments& chosen, const QString& round_count)
{
    data_environment().connection.Execute(u"insert into r_cost (date," + amount_columns() +
                                          u",round_count) " + QStringView(columns) + u"," + round_count +
                                          u' ' + from_selected_rounds(chosen) + u" order by cost.date");
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

/// Copies the rows and writes their number into the first one: in one statement, unless several rows have
/// the earliest date.
void copy_and_count(const selection_arguments& chosen, const cost_rows& rows)
{
    if (rows.with_first_date == 1) {
        copy_rows(chosen, u"case when cost.date = "_s + quoted(rows.first_date) + u" then " +
                              QString::number(rows.number) + u" end");
        return;
    }
    copy_rows(chosen, u"null"_s);
    write_round_count(data_environment().rsr_cost, rows.number);
}

/// False if the selection has no costs; the report table is empty then, and the statement of the selection
/// stays in force.
bool fill_from_costs(const selection_arguments& chosen, run_progress& bar)
{
    Recordset& cost = data_environment().rscost;
    remove_rows();
    scoped_source selection(cost, cost_select(chosen), cost.settings().source);
    const cost_rows rows = check_rows(cost, bar);
    if (rows.number == 0) {
        selection.leave_in_force();
        return false;
    }
    copy_and_count(chosen, rows);
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
    // Removing no rows would write to a file, too.
    if (has_rows(data_environment().rsr_cost))
        remove_rows();
    together.finish();
}

scoped_source whole_cost_table_afterwards()
{
    Recordset& cost = data_environment().rscost;
    return {cost, cost.Source(), cost.settings().source};
}

QString cost_select(const selection_arguments& chosen)
{
    return QStringView(columns) + from_selected_rounds(chosen);
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
