#include "tests/reference/course_windows.h"

#include <numeric>

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "records/course_keys.h"
#include "reference/f_c_list.h"
#include "reference/f_courses.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

course_store::course_store(bool french) : window_diary(french)
{
    course_keys.clear();
}

void course_store::add(diary_course course) const
{
    std::iota(course.stroke_index.begin(), course.stroke_index.end(), 1);
    book.add(course);
}

void add_three_courses(const course_store& store)
{
    store.add({});
    store.add({u"BETA-1"_s, u"Beta"_s, u"Beta-1"_s, u"BLEU"_s});
    store.add({u"GAMMA-2"_s, u"Gamma"_s, u"Gamma-2"_s, u"ROUGE"_s});
}

void in_course_list(const std::function<void(hand&)>& script)
{
    play(
        [] {
            run_event([] {
                f_c_list window;
                window.show_modal();
            });
        },
        [&](hand& user) {
            user.wait_for_window(list_window());
            script(user);
        });
}

void in_course_list_until_ok(const std::function<void(hand&)>& script)
{
    in_course_list([&](hand& user) {
        script(user);
        user.wait_for_window(list_window());
        user.click(u"Command1_2"_s);
        user.wait_until_closed(list_window());
    });
}

void in_new_course(const std::function<void(hand&)>& script)
{
    in_course_list_until_ok([&](hand& user) {
        user.click(u"Command1_1"_s);
        user.wait_for_window(editor_window());
        script(user);
        user.wait_until_closed(editor_window());
    });
}

void in_stored_course(int line, const std::function<void(hand&)>& script)
{
    in_course_list_until_ok([&](hand& user) {
        user.click_row(u"List1"_s, line);
        user.click(u"Command1_0"_s);
        user.wait_for_window(editor_window());
        script(user);
        user.wait_until_closed(editor_window());
    });
}

void discard(hand& user)
{
    user.click(u"cmdan"_s);
    user.answer(question_on_closing(), QMessageBox::No);
    user.wait_until_closed(editor_window());
}

void fill_required(hand& user, const QString& name)
{
    user.fill(u"text_1"_s, name);
    user.fill(u"text_2"_s, u"71.2"_s);
    user.fill(u"text_0"_s, u"128"_s);
}

void with_editor(hand& user, const std::function<void(f_courses&)>& routine)
{
    user.look([&] { run_event([&] { routine(dynamic_cast<f_courses&>(*open_form(u"f_courses"))); }); });
}

expected_box question_on_closing()
{
    return {in_language(u"Voulez vous enregistrer les modifications avant de sortir ?  ",
                        u"Do you want to save the modification made ?  "),
            QMessageBox::NoIcon, u"Fermer ronde"_s, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel};
}

expected_box notice_of_save()
{
    return {in_language(u"Les modifications sont enregistrées.", u"Changes have been saved"),
            QMessageBox::Information, u"Verdane"_s, QMessageBox::Ok};
}

expected_box refusal_of_missing()
{
    return {in_language(u"Attention : Il faut entrer le nom, la moyenne, et la difficulté du terrain.",
                        u"Attention : Attention: Please enter golf course's name, rating and Slop."),
            QMessageBox::Critical, u"Enregistrer"_s, QMessageBox::Ok};
}

expected_box refusal_of_duplicate(const QString& name, const QString& tee)
{
    return {in_language(u"Le tererain ", u"The golf course  ") + name + u' ' + tee +
                in_language(u" exist déjà.", u" already exist."),
            QMessageBox::Warning, u"Verdane"_s, QMessageBox::Ok};
}

QString twin()
{
    return in_language(u"", u"_en");
}

QString list_window()
{
    return u"f_c_list" + twin();
}

QString editor_window()
{
    return u"f_courses" + twin();
}

}  // namespace verdane::testing
