#include "tests/round/round_windows.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "records/round_list.h"
#include "round/f_new_round.h"
#include "round/tee_off.h"
#include "scoring/Verdane_tools.h"
#include "store/DataEnvironment1.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

const QDate day_of_play(2024, 6, 14);

/// Opens a stored round as the round list does, with two recordsets open.
void open_from_list(const QString& key)
{
    Round_functions::open_rounds_in_time_order();
    data_environment().rsfield_info.Open();
    open_stored_round(key);
}

void in_round(const std::function<void()>& program, const std::function<void(hand&)>& script)
{
    play([&] { run_event(program); }, script);
}

}  // namespace

void round_store::add_two_courses() const
{
    add(course_of_pars(u"4"_s));
    diary_course beta = course_of_pars(u"5"_s, u"68"_s, u"113"_s);
    beta.code = u"BETA-6"_s;
    beta.name = u"Beta"_s;
    add(beta);
}

QString round_store::of_round(const QString& table, const QString& column) const
{
    return text(u"select " + column + u" from " + table);
}

QString round_store::at(const QString& table, int ordinal) const
{
    const auto rows = store.rows(QString(u"select * from " + table));
    if (rows.size() != 1)
        return u"%1 rows"_s.arg(rows.size());
    const QVariant& value = rows.front().at(static_cast<std::size_t>(ordinal));
    return value.isNull() ? u"null"_s : value.toString();
}

QString round_window()
{
    return is_french ? u"f_new_round"_s : u"f_new_round_en"_s;
}

void in_new_round(const std::function<void(hand&)>& script)
{
    in_round(start_new_round, script);
}

void in_keyed_round(const std::function<void(hand&)>& script)
{
    in_new_round([&](hand& user) {
        tee_off(user, u"9"_s, u"30"_s, u"00"_s);
        user.wait_for_window(round_window());
        user.wait_until(u"the focus in the first box"_s, [] {
            auto* focused = QApplication::focusWidget();
            return focused && focused->objectName() == u"text_vrd_0";
        });
        script(user);
        user.wait_until_closed(round_window());
    });
}

QString key_of_keyed_round()
{
    return u"20240614093000"_s;
}

void in_stored_round(const QString& key, const std::function<void(hand&)>& script)
{
    in_round([&] { open_from_list(key); },
             [&](hand& user) {
                 user.wait_for_window(round_window());
                 script(user);
                 user.wait_until_closed(round_window());
             });
}

void in_stored_round_over(hand& user, const QString& key)
{
    user.look([key] { QTimer::singleShot(0, qApp, [key] { run_event([&] { open_from_list(key); }); }); });
}

void open_refused_round(const QString& key, const std::function<void(hand&)>& script)
{
    in_round([&] { open_from_list(key); }, script);
}

void fill_tee_off(hand& user, const QString& hours, const QString& minutes, const QString& seconds)
{
    user.wait_for_window(u"f_get_date"_s);
    user.look([] {
        open_form(u"f_get_date")->findChild<QCalendarWidget*>(u"round_date"_s)->setSelectedDate(day_of_play);
    });
    user.fill(u"Text1"_s, hours);
    user.fill(u"Text2"_s, minutes);
    user.fill(u"Text3"_s, seconds);
    user.click(u"OKbut"_s);
}

void tee_off(hand& user, const QString& hours, const QString& minutes, const QString& seconds)
{
    fill_tee_off(user, hours, minutes, seconds);
    user.answer(question_on_tee_off(), QMessageBox::Yes);
    user.wait_until_closed(u"f_get_date"_s);
}

void discard(hand& user)
{
    user.click(u"Command1_2"_s);
    user.answer(question_on_closing(), QMessageBox::No);
    user.wait_until_closed(round_window());
}

void accept(hand& user)
{
    user.click(u"Command1_4"_s);
    user.wait_until_closed(round_window());
}

void with_round(hand& user, const std::function<void(f_new_round&)>& routine)
{
    user.look([&] { run_event([&] { routine(dynamic_cast<f_new_round&>(*open_form(u"f_new_round"))); }); });
}

QString boxes(hand& user)
{
    const QStringList names{u"text_vrd_0"_s, u"text_vrd_1"_s, u"text_vrd_2"_s, u"text_p_3"_s,
                            u"text_p_4"_s,   u"text_p_5"_s,   u"text_p_6"_s,   u"text_s_8"_s,
                            u"text_s_9"_s,   u"text_s_10"_s,  u"text_s_11"_s};
    QStringList texts;
    for (const QString& name : names)
        texts << user.text(name);
    return texts.join(u' ');
}

expected_box question_on_tee_off()
{
    return {
        in_language(u"Cette date est définitive. Êtes vous sûr de la date et l'heure enregistrée ? ",
                    u"You will not be able to change this date afterwards. Do you want to use this date and "
                    u"time? "),
        QMessageBox::NoIcon, u"Verdane"_s, QMessageBox::Yes | QMessageBox::No};
}

expected_box refusal_of_moment()
{
    return {in_language(u"Une ronde à la date et à l'heure choisie existe déjà.",
                        u"A round with the selected date and time already exists."),
            QMessageBox::NoIcon, u"Verdane"_s, QMessageBox::Ok};
}

expected_box question_on_closing()
{
    return {in_language(u"Voulez vous enregistrer les modifications avant de sortir ? ",
                        u"Do you want to save your changes prior to exit?"),
            QMessageBox::NoIcon, QString(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel};
}

expected_box notice_of_save()
{
    return {in_language(u"Les modifications sont enregistrées", u"Changes have been saved"),
            QMessageBox::NoIcon, u"Verdane"_s, QMessageBox::Ok};
}

expected_box refusal_without_date()
{
    return {
        in_language(u"Veuillez d'abord choisir la date de la ronde.", u"Please select a round's date first."),
        QMessageBox::Critical, u"Verdane"_s, QMessageBox::Ok};
}

}  // namespace verdane::testing
