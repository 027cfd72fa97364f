#include "round/round_opening.h"

#include "base/language.h"
#include "controls/boxes.h"
#include "round/f_new_round.h"
#include "round/round_lists.h"
#include "round/round_record.h"
#include "round/shot_rows.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr std::int16_t first_hole = 1;

/// The languages differ in icon and title, too.
void show_no_course()
{
    if (is_french)
        show_information(u"Verdane n'a trouvé aucun terrain. Pour créer une ronde il faut definir au moin "
                         u"un terrain"_s,
                         QMessageBox::Critical, u"Verdane"_s);
    else
        show_information(u"Verdane could not find any course. To create a round, you need to define at "
                         u"least one course."_s);
}

void refuse_without_row_in_games2(f_new_round& window)
{
    show_information(u"Error : games2 record not found"_s);
    window.set_hole_in_boxes(first_hole);
    window.unload();
}

/// Finds the rows of the round and its course, and selects hole 1. False, after a message, when the round has
/// no row in `games2`; the window is closed then.
bool load_stored_round(f_new_round& window, const QString& key)
{
    window.set_date_value(key);
    if (!round_record::has_row_in_games2()) {
        refuse_without_row_in_games2(window);
        return false;
    }
    const QString code = round_record::find_holes_of_round(key);
    window.fill_courses(round_lists::course_lines());
    round_record::find_course(code);
    window.show_stored_hole(first_hole, code);
    return true;
}

}  // namespace

void start_new_round()
{
    const bool any_course = round_record::open_courses();
    if (!any_course)
        show_no_course();
    round_record::close_courses();
    if (!any_course)
        return;
    round_record::open_games_and_field_info();
    prepare_round_window();
}

void prepare_round_window()
{
    shot_rows shots;
    round_record::add_rows_without_key();
    f_new_round window(shots);
    window.fill_courses(round_lists::course_lines());
    // Selecting the first course moves the recordsets of the courses to it.
    window.select_course(0);
    window.show_modal();
}

void open_stored_round(const QString& key)
{
    round_record::open_rows(key);
    shot_rows shots;
    shots.open_hole(key, first_hole);
    f_new_round window(shots);
    if (load_stored_round(window, key)) {
        load_round_header(window);
        // The key of a stored round never changes.
        window.lock_date();
    }
    window.show_modal();
}

void load_round_header(f_new_round& window)
{
    window.show_header(round_record::read_header(window.date_value()));
}

}  // namespace verdane
