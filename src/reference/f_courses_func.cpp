#include "reference/f_courses_func.h"

#include "base/text.h"
#include "controls/boxes.h"
#include "controls/Form.h"
#include "controls/main_frame.h"
#include "records/course_keys.h"
#include "reference/edited_course.h"
#include "reference/f_courses.h"

namespace verdane::f_courses_func {

using namespace Qt::StringLiterals;

namespace {

void refuse_incomplete(const f_courses& window)
{
    show_information(
        window.caption(u"Attention : Il faut entrer le nom, la moyenne, et la difficulté du terrain.",
                       u"Attention : Attention: Please enter golf course's name, rating and Slop."),
        QMessageBox::Critical, u"Enregistrer"_s);
}

void refuse_duplicate(const f_courses& window)
{
    show_information(window.caption(u"Le tererain ", u"The golf course  ") + window.course_name() + u' ' +
                         window.tee_text() + window.caption(u" exist déjà.", u" already exist."),
                     QMessageBox::Warning);
}

/// False if the course is stored already; nothing is written then.
bool set_key_of_new_course(const f_courses& window)
{
    const QString name = in_capitals(window.course_name());
    const known_course known = find_known_course(name, window.tee());
    if (known.duplicate)
        refuse_duplicate(window);
    else
        window.write_key(known.base);
    return !known.duplicate;
}

/// The title is French in both twins.
QMessageBox::StandardButton ask_whether_to_save(const f_courses& window)
{
    return show_message({window.caption(u"Voulez vous enregistrer les modifications avant de sortir ?  ",
                                        u"Do you want to save the modification made ?  "),
                         QMessageBox::NoIcon, u"Fermer ronde"_s,
                         QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel});
}

/// Saves or discards the changes. True when the window may close.
bool settle_changes(f_courses& window)
{
    switch (ask_whether_to_save(window)) {
    case QMessageBox::Yes:
        save(window);
        return window.saveSucceed();
    case QMessageBox::No:
        edited_course::cancel();
        return true;
    default:
        return false;
    }
}

}  // namespace

void load(f_courses& window)
{
    current_form = &window;
    Place_and_lock(window);
    if (window.isNew())
        return;
    window.show_rows();
    window.show_totals();
}

void save(f_courses& window)
{
    window.save_begins();
    if (!window.has_name_and_figures()) {
        refuse_incomplete(window);
        return;
    }
    if (window.isNew() && !set_key_of_new_course(window))
        return;
    window.write_rows();
    // The message is English in both twins.
    if (!edited_course::commit())
        show_information(u"Fatal Error : 101"_s);
    window.changes_are_settled();
    show_information(window.caption(u"Les modifications sont enregistrées.", u"Changes have been saved"),
                     QMessageBox::Information);
    window.save_succeeded();
}

void close(f_courses& window)
{
    if (!window.needtosave()) {
        edited_course::cancel();
        window.unload();
    } else if (settle_changes(window)) {
        window.changes_are_settled();
        window.unload();
    }
    // Also when the window stays open: it is modal, so the main window cannot be used anyway.
    Unlock_menu();
}

void page_clicked(f_courses& window)
{
    const int16 page = window.selected_page();
    if (page != window.curFrame())
        window.show_page(page);
    window.focus_first_box();
}

void yards_entered(f_courses& window)
{
    window.mark_changed();
    window.show_totals();
}

void toolbar_clicked(f_courses& window, QStringView key)
{
    if (key == u"B1") {
        if (current_form)
            current_form->save();
        return;
    }
    close(window);
    Unlock_menu();
}

void unload(f_courses& window)
{
    if (window.needtosave())
        edited_course::cancel();
    Unlock_menu();
}

}  // namespace verdane::f_courses_func
