#include "tests/server/open_pages.h"

#include <algorithm>

#include "base/language.h"
#include "store/Connection1.h"
#include "tests/round/entered_shots.h"
#include "tests/shell/program_run.h"
#include "tests/support/failure_boxes.h"
#include "tests/support/failures.h"
#include "tests/support/store_invariants.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

const QString child_mark = u"--page"_s;

void leave_first_hole(hand& user)
{
    open_the_round(user);
    leave_hole(user, 1);
}

void enter_two_shots(hand& user)
{
    open_the_round(user);
    open_detailed_page(user);
    enter_shot(user, 0, 1, u"60"_s, 1);
    user.click(u"CommandSuiv"_s);
    enter_shot(user, 1, 9, u"10"_s, 2);
}

void enter_all_shots(hand& user)
{
    open_the_round(user);
    open_detailed_page(user);
    enter_hole(user);
}

void change_weather(hand& user)
{
    leave_first_hole(user);
    user.choose(u"conditions"_s, 2);
}

void type_costs(hand& user)
{
    leave_first_hole(user);
    user.click(u"Command2"_s);
    user.wait_for_window(in_language(u"f_cost", u"f_cost_en"));
    user.fill(u"cost_0"_s, u"100"_s);
    user.same(user.text(u"cost_0"_s), u"100"_s, u"amount"_s);
}

void start_round(hand& user)
{
    user.wait_for_window(u"MainForm"_s);
    user.menu(u"mOpen"_s);
    user.wait_for_window(u"f_get_date"_s);
}

void choose_tee_off(hand& user)
{
    tee_off(user, u"9"_s, u"30"_s, u"00"_s);
    user.wait_for_window(round_window());
    user.click(u"text_vrd_0"_s);
}

void start_first_hole(hand& user)
{
    start_round(user);
    choose_tee_off(user);
}

/// Choosing the tee-off sends no statement.
void choose_tee_off_and_leave_hole(hand& user)
{
    choose_tee_off(user);
    leave_hole(user, 1);
}

void add_partner_in_window(hand& user)
{
    user.wait_for_window(u"MainForm"_s);
    user.menu(u"mpartners"_s);
    user.wait_for_window(in_language(u"f_partners", u"f_partners_en"));
    user.click(u"add"_s);
    user.type(u"Alder"_s);
    user.key(Qt::Key_Tab);
    user.type(u"Ann"_s);
    user.key(Qt::Key_Return);
    user.click(u"add"_s);
}

std::function<void(hand&)> click(const QString& button)
{
    return [button](hand& user) { user.click(button); };
}

const QString entered_shots = u"select group_concat(shot || ' ' || stick || ' ' || after, ', ') from (select "
                              u"* from Stat_rounds where shot < 4 order by shot)"_s;
const QString rows_of_rounds =
    u"select (select count(*) from games) || ' ' || (select count(*) from games2) || "
    u"' ' || (select count(*) from cost)"_s;

/// The figures of the first two holes and the number of shots.
const QString two_holes =
    u"select %1 || ' ' || %2 || ' ' || (select count(*) from Stat_rounds) from games join games2 using (date)"_s
        .arg(figures_in_sql(1), figures_in_sql(2));

/// The store before the program starts: one course, one round and the names of the clubs.
QStringList diary_of_pages()
{
    QStringList statements = one_course() + one_round();
    for (int club = 1; club <= 14; ++club)
        statements << u"update sticknames set club_%1 = 'F%1'"_s.arg(club);
    return statements << u"update sticknames set club_1 = 'D', club_14 = 'Pu'"_s;
}

QStringList faults_of_store(const program_run& run, const open_page& page, const store_harm& harm)
{
    QStringList faults;
    const QString stored = run.store().text(page.question);
    const bool executed_later = harm.executes_later && stored == page.with_next_step;
    if (stored != page.committed && !executed_later)
        faults << u"stored is %1, not %2"_s.arg(stored, page.committed);
    faults += broken_invariants(run.store());
    if (const QString damage = run.store().damage(); !damage.isEmpty())
        faults << damage;
    run.store().wait_until_unused();
    if (const auto failure = failure_of([] { Connection1().Open(program_run::store_place()); }))
        faults << u"the next start fails with %1"_s.arg(static_cast<int>(*failure));
    return faults;
}

}  // namespace

const std::vector<open_page>& open_pages()
{
    static const std::vector<open_page> all{
        {u"a hole is left"_s, leave_first_hole, [](hand& user) { leave_hole(user, 2); }, two_holes,
         u"22222222222 00000000000 0"_s},
        {u"the detailed page is opened"_s, leave_first_hole,
         [](hand& user) { user.click_tab(u"TabStrip2"_s, 2); }, two_holes, u"22222222222 00000000000 0"_s},
        {u"a third shot is added"_s, enter_two_shots, click(u"CommandSuiv"_s),
         u"select group_concat(shot || ' ' || stick || ' ' || after || ' ' || shot_type_value) from "
         u"Stat_rounds where shot < 2"_s,
         u"1 D 60 1"_s},
        {u"a hole with shots is left"_s, enter_all_shots, [](hand& user) { user.click_tab(hole_tabs, 2); },
         entered_shots, u"1 D 60, 2 F9 30, 3 Pu 4"_s},
        {u"a round with shots is saved"_s, enter_all_shots, click(ok_button), entered_shots,
         u"1 D 60, 2 F9 30, 3 Pu 4"_s},
        {u"a changed weather is saved"_s, change_weather, click(ok_button),
         u"select long_1 || ' ' || conditionM from games join games2 using (date)"_s, u"2 0"_s},
        {u"costs are accepted"_s, type_costs, click(u"OKButton"_s),
         u"select long_1 || ' ' || coalesce(fg, 0) from games join cost using (date)"_s, u"2 0"_s,
         u"2 100"_s},
        {u"the tee-off of a new round is chosen"_s, start_round, choose_tee_off_and_leave_hole,
         rows_of_rounds, u"1 1 1"_s},
        {u"the first hole of a new round is left"_s, start_first_hole,
         [](hand& user) { leave_hole(user, 1); }, rows_of_rounds, u"1 1 1"_s},
        {u"a partner is added"_s, add_partner_in_window, click(u"add"_s),
         u"select group_concat(NAME || ' ' || SURNAME || ' ' || (code > 0)) from partners where NAME <> ''"_s,
         u"Alder Ann 1"_s},
    };
    return all;
}

const open_page& page_called(const QString& name)
{
    const auto found = std::find_if(open_pages().begin(), open_pages().end(),
                                    [&name](const open_page& each) { return each.name == name; });
    if (found == open_pages().end())
        qFatal("no page is called %s", qUtf8Printable(name));
    return *found;
}

QStringList faults_on_page(const open_page& page, const store_harm& harm, bool french)
{
    const program_run run(french ? 1 : 2, diary_of_pages());
    harm.prepare();
    QString before;
    const failed_child child = run_failing_child(arguments_of_child(page, harm), [&] {
        before = run.store().text(page.question);
        harm.occur();
    });
    harm.undo();
    QStringList faults = faults_of_end(child, harm.longest_ms);
    if (before != page.committed)
        faults << u"committed was %1, not %2"_s.arg(before, page.committed);
    return faults + faults_of_store(run, page, harm);
}

QStringList arguments_of_child(const open_page& page, const store_harm& harm)
{
    return {child_mark, page.name, harm.name};
}

bool is_child_on_page(const QStringList& arguments)
{
    return arguments.value(1) == child_mark;
}

int fail_on_page(const QStringList& arguments, const harm_by_name& harms)
{
    const open_page& page = page_called(arguments.value(2));
    const store_harm& harm = harms(arguments.value(3));
    play([] { run_verdane(*qApp); },
         [&](hand& user) {
             page.work(user);
             report_and_wait("worked");
             user.look(harm.occur_inside);
             page.next_step(user);
             user.answer(failure_box(harm.kind));
         });
    return not_reached;
}

}  // namespace verdane::testing
