#include "statistics/f_carte_func.h"

#include "controls/main_frame.h"
#include "records/course_rows.h"
#include "scoring/Verdane_tools.h"
#include "statistics/card_table.h"
#include "statistics/f_carte.h"
#include "store/DataEnvironment1.h"
#include "store/tables/courses.h"

namespace verdane::f_carte_func {

namespace {

/// Characters of the name in a line of the list.
constexpr int width_of_name = 50;

Recordset& courses()
{
    return data_environment().rsvrd_fields;
}

Recordset& holes()
{
    return data_environment().rsfield_info;
}

QString list_line()
{
    QString name = courses().Fields(tables::vrd_fields::name).trimmed();
    const QString code = courses().Fields(tables::vrd_fields::code).trimmed();
    return Verdane_tools::pad_right(name, width_of_name) + u", " + Verdane_tools::tee_name(code.right(1));
}

}  // namespace

void load(f_carte& window)
{
    current_form = &window;
    Place_and_lock(window);
    holes().Open();
    courses().Open();
    if (courses().eof())
        return;
    QStringList lines;
    for (courses().MoveFirst(); !courses().eof(); courses().MoveNext())
        lines << list_line();
    window.show_courses(lines);
}

void print(f_carte& window)
{
    if (window.selected_course() < 0)
        return;
    Round_functions::move_to_course(window.selected_course());
    Round_functions::find_holes_of_course(search_direction::backward);
    card_table::write_current_course();
    prepare_report(window.cr2, report_opening::maximised(), u"\\r_card2.rpt", u"\\r_card2_en.rpt");
    window.cr2.Action(report_control::run_now);
}

void cancel(f_carte& window)
{
    Unlock_menu();
    window.unload();
}

void unload()
{
    courses().Close();
    holes().Close();
    Unlock_menu();
}

}  // namespace verdane::f_carte_func
