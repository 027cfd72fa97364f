#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "base/language.h"
#include "controls/boxes.h"
#include "records/round_columns.h"
#include "records/round_rows.h"
#include "round/course_box.h"
#include "round/f_new_round.h"
#include "round/round_boxes.h"
#include "round/round_parameters.h"
#include "round/Round_records.h"
#include "round/shot_rows.h"
#include "round/temperature_box.h"
#include "scoring/round_key.h"
#include "store/close_if_open.h"
#include "store/DataEnvironment1.h"

/// How a round, new or stored, comes into the window.
namespace verdane {

using namespace Qt::StringLiterals;

namespace {

namespace at = round_columns;

void tell_no_course()
{
    // The two languages differ in the icon, too.
    if (is_french)
        tell(u"Verdane n'a trouvé aucun terrain. Pour créer une ronde il faut definir au moin "
             u"un terrain"_s,
             QMessageBox::Critical, u"Verdane"_s);
    else
        tell(u"Verdane could not find any course. To create a round, you need to define at "
             u"least one course."_s);
}

bool has_a_course()
{
    Recordset& courses = data_environment().rsvrd_fields;
    courses.Open();
    const bool none = courses.bof() || courses.eof();
    if (none)
        tell_no_course();
    courses.Close();
    return !none;
}

void zero_amounts(Recordset& costs)
{
    for (int ordinal = at::first_amount; ordinal <= at::last_amount; ++ordinal)
        costs.Fields(ordinal).set(0);
}

void add_rows_without_key()
{
    DataEnvironment1& store = data_environment();
    store.rsgames2.Open();
    store.rsgames2.AddNew();
    store.rsgames.AddNew();
    store.rscost.Open();
    store.rscost.AddNew();
    zero_amounts(store.rscost);
}

void find_first(Recordset& recordset, QStringView criterion, const QString& value,
                search_direction direction = search_direction::forward)
{
    recordset.MoveFirst();
    recordset.Find(criterion + quoted(value), direction);
}

void find_round(Recordset& recordset, const QString& key,
                search_direction direction = search_direction::forward)
{
    if (!recordset.empty())
        find_first(recordset, u"Date =", key, direction);
}

void commit_and_find(Recordset& recordset, const QString& key)
{
    recordset.Update();
    if (!recordset.empty())
        recordset.MoveLast();
    find_round(recordset, key);
}

/// Not committed yet.
void add_cost_row(const QString& key)
{
    Recordset& costs = data_environment().rscost;
    costs.AddNew();
    costs.Fields(at::date).set(key);
    zero_amounts(costs);
}

void store_cost_row(const QString& key)
{
    add_cost_row(key);
    data_environment().rscost.Update();
}

void open_costs_of(const QString& key)
{
    Recordset& costs = data_environment().rscost;
    costs.Open();
    find_round(costs, key);
    if (costs.eof())
        add_cost_row(key);
}

/// A round whose last shot could not be stored, or whose shots could not be opened, has left their
/// statement behind: no other round works on them.
void let_go_of_earlier_shots()
{
    Recordset& shots = data_environment().rsStat_rounds;
    close_if_open(shots);
    shots.set_Source(shots.settings().source);
}

void open_shots_of_first_hole(const QString& key)
{
    let_go_of_earlier_shots();
    Recordset& shots = data_environment().rsStat_rounds;
    shots.set_Source(shot_rows::statement_of_hole(key, 1));
    shots.Open();
}

/// What the round window works on, every recordset on the row of the round.
void open_rows_of_round(const QString& key)
{
    DataEnvironment1& store = data_environment();
    store.rsgames2.Open();
    find_round(store.rsgames2, key);
    find_round(store.rsgames, key, search_direction::backward);
    store.rsvrd_fields.Open();
    find_first(store.rsvrd_fields, u"CODE = ", store.rsgames.Fields(at::codef).trimmed(),
               search_direction::backward);
    open_costs_of(key);
    open_shots_of_first_hole(key);
}

void show_date(f_new_round& window, const QString& key)
{
    window.text(round_box::date).setText(Verdane_tools::key_date_text(key));
    window.text(round_box::time).setText(Verdane_tools::key_time_text(key));
}

bool refuse_without_second_row(f_new_round& window)
{
    tell(u"Error : games2 record not found"_s);
    window.text(round_box::hole).setText(u"1"_s);
    window.unload();
    return false;
}

}  // namespace

void start_new_round()
{
    if (!has_a_course())
        return;
    data_environment().rsgames.Open();
    data_environment().rsfield_info.Open();
    prepare_round_window();
}

void prepare_round_window()
{
    let_go_of_earlier_shots();
    add_rows_without_key();
    data_environment().rsvrd_fields.Open();
    f_new_round window;
    fill_courses(window);
    // Choosing the first course puts the recordsets of the courses on it.
    window.cmb_courses->setCurrentIndex(0);
    window.show_modal();
}

void open_stored_round(const QString& key)
{
    open_rows_of_round(key);
    f_new_round window;
    load_stored_round(window, key);
    load_round_header(window);
    // The key of a stored round never changes.
    window.b_getdat->setEnabled(false);
    window.show_modal();
}

bool load_stored_round(f_new_round& window, const QString& key)
{
    DataEnvironment1& store = data_environment();
    window.date_value = key;
    if (store.rsgames2.eof())
        return refuse_without_second_row(window);
    find_first(store.rsgames, u"Date =", key);
    const QString code = store.rsgames.Fields(at::codef).trimmed();
    find_in_field_info(code);
    fill_courses(window);
    find_first(store.rsvrd_fields, u"CODE = ", code);
    window.cmb_holes->setCurrentIndex(0);
    window.cmb_courses->setCurrentIndex(window.cmb_courses->place_of(code));
    window.text(round_box::hole).setText(u"1"_s);
    return true;
}

void load_round_header(f_new_round& window)
{
    if (!window.is_loaded())
        return;
    DataEnvironment1& store = data_environment();
    find_round(store.rscost, window.date_value);
    if (store.rscost.eof()) {
        store_cost_row(store.rsgames.Fields(at::date).text());
        store.rscost.MoveLast();
    }
    const QString cost = QString::number(plain(Round_functions::cost_total()));
    window.conditions->setCurrentIndex(plain(store.rsgames2.Fields(at::conditionM).int16_or_zero()));
    window.UpDown1->show_value(plain(store.rsgames2.Fields(at::temperature).int32_or_zero()));
    window.text(round_box::course_name).setText(store.rsvrd_fields.Fields(at::name).text_or_empty());
    show_date(window, window.date_value);
    window.text(round_box::costs).setText(cost);
}

void commit_round(const QString& key)
{
    DataEnvironment1& store = data_environment();
    for (Recordset* recordset : {&store.rsgames, &store.rsgames2, &store.rscost})
        commit_and_find(*recordset, key);
    find_first(store.rsvrd_fields, u"CODE = ", store.rsgames.Fields(at::codef).trimmed());
    if (store.rscost.eof())
        store_cost_row(key);
}

void find_in_field_info(const QString& code)
{
    find_first(data_environment().rsfield_info, u"FIELD_CODE = ", code);
}

}  // namespace verdane
