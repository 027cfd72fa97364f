#include "reference/f_c_list_func.h"

#include "controls/boxes.h"
#include "controls/Form.h"
#include "controls/main_frame.h"
#include "records/course_keys.h"
#include "records/course_rows.h"
#include "records/round_list.h"
#include "reference/f_c_list.h"
#include "reference/f_courses.h"
#include "scoring/round_key.h"
#include "store/DataEnvironment1.h"
#include "store/tables/courses.h"
#include "store/tables/games.h"

namespace verdane::f_c_list_func {

using namespace Qt::StringLiterals;

namespace {

Recordset& courses()
{
    return data_environment().rsvrd_fields;
}

Recordset& holes()
{
    return data_environment().rsfield_info;
}

/// A course that was added since the list was filled has no line, so there may be rows and no selected line.
bool has_selection(const f_c_list& window)
{
    return !courses().empty() && window.selected_course() >= 0;
}

void open_selected(f_c_list& window)
{
    if (!has_selection(window))
        return;
    Round_functions::move_to_course(window.selected_course());
    // The message is English in both twins.
    if (courses().bof() || courses().eof())
        show_information(u"Fatal error : F not found"_s);
    else
        Round_functions::find_holes_of_course();
    f_courses editor(false);
    editor.show_modal();
}

void add_course()
{
    courses().AddNew();
    holes().AddNew();
    f_courses editor(true);
    editor.show_modal();
    // The lines are not updated until the list is opened again, but the next course that is added must not
    // get the code of this one. `saveSucceed` is not enough here: an earlier save may have stored the course.
    if (!courses().eof())
        append_course_key(courses());
}

void refuse_course_in_use(const f_c_list& window, const QString& key)
{
    show_information(
        window.caption(
            u"Verdane ne peut pas supprimer ce terrain. La ronde ",
            u"Verdane could not remove this golf course because it is associated with the round ") +
        key + window.caption(u" l'utilise.", u" already in use"));
}

void delete_from_store(const QString& code)
{
    Connection1& connection = data_environment().connection;
    connection.Execute(u"Delete from vrd_fields where code = " + quoted(code));
    connection.Execute(u"Delete from FIELD_INFO where FIELD_CODE = " + quoted(code));
}

/// Reads the rows again, so that the position of a line is that of its row.
void reread_rows()
{
    courses().Requery();
    holes().Requery();
    rebuild_course_keys(courses());
}

void ask_and_remove(f_c_list& window, const QString& code)
{
    const QString question =
        window.caption(u"Voulez vous supprimer le terrain : ", u"Do you want to remove the golf course : ");
    if (!ask_yes_no(question + window.selected_line()))
        return;
    delete_from_store(code);
    reread_rows();
    window.remove_selected_line();
    show_information(window.caption(u"Terrain supprimé.", u"Golf course removed."), QMessageBox::Information);
}

void remove_selected(f_c_list& window)
{
    if (!has_selection(window))
        return;
    Round_functions::move_to_course(window.selected_course());
    const QString code = courses().Fields(tables::vrd_fields::code).text();
    // Only the first round that is found, the earliest, is named.
    Round_functions::open_rounds_in_time_order();
    Recordset& rsgames = data_environment().rsgames;
    rsgames.Find(u"CODEF =" + quoted(code));
    if (rsgames.eof())
        ask_and_remove(window, code);
    else
        refuse_course_in_use(window, Verdane_tools::key_text(rsgames.Fields(tables::games::date).trimmed()));
    rsgames.Close();
}

}  // namespace

void load(f_c_list& window)
{
    current_form = &window;
    Place_and_lock(window);
    course_keys.clear();
    Round_functions::open_courses();
    if (courses().empty())
        return;
    int index = 0;
    for (courses().MoveFirst(); !courses().eof(); courses().MoveNext())
        keep_course_key(index++, courses());
    window.show_courses(Round_functions::course_list_lines());
    courses().MoveFirst();
}

void command(f_c_list& window, int index)
{
    switch (index) {
    case f_c_list::open:
        return open_selected(window);
    case f_c_list::add:
        return add_course();
    case f_c_list::ok:
        return close(window);
    case f_c_list::remove:
        return remove_selected(window);
    default:
        return;
    }
}

void close(f_c_list& window)
{
    Unlock_menu();
    window.unload();
}

void unload()
{
    Round_functions::close_courses();
    // The title bar's close box does not call `close`.
    Unlock_menu();
}

}  // namespace verdane::f_c_list_func
