#include "reference/f_courses_func.h"

#include <QComboBox>
#include <QFrame>
#include <QLineEdit>

#include <array>

#include "base/language.h"
#include "base/numbers.h"
#include "base/text.h"
#include "controls/boxes.h"
#include "controls/main_frame.h"
#include "reference/course_keys.h"
#include "reference/f_courses.h"
#include "reference/f_courses_boxes.h"
#include "scoring/words.h"
#include "store/DataEnvironment1.h"
#include "store/tables/courses.h"

namespace verdane::f_courses_func {

using namespace Qt::StringLiterals;

namespace {

/// A course code and a `name_tee` end in a dash and the tee's digit.
constexpr int tee_mark_length = 2;

struct box_and_column {
    int index;
    int ordinal;
};

constexpr std::array<box_and_column, 6> columns_of_text = {{
    {1, tables::vrd_fields::name},
    {2, tables::vrd_fields::rating},
    {0, tables::vrd_fields::slope},
    {3, tables::vrd_fields::address_1},
    {4, tables::vrd_fields::address_2},
    {5, tables::vrd_fields::address_3},
}};

Recordset& course()
{
    return data_environment().rsvrd_fields;
}

Recordset& holes()
{
    return data_environment().rsfield_info;
}

void fill_tees(f_courses& window, int selected)
{
    for (const text_pair& tee : tee_words)
        window.departure->addItem(tee.in(window.french()));
    window.departure->setCurrentIndex(selected);
}

void load_general_page(f_courses& window)
{
    for (const auto& [index, ordinal] : columns_of_text)
        window.text(index).setText(course().Fields(ordinal).text_or_empty());
    const QString code = course().Fields(tables::vrd_fields::code).trimmed();
    fill_tees(window, plain(to_int16(code.right(1))));
    // The tee is part of the course's key, which is set once.
    window.departure->setEnabled(false);
}

void load_figure(QLineEdit& box, int ordinal)
{
    box.setText(QString::number(plain(holes().Fields(ordinal).int16_or_zero())));
}

void load_holes(f_courses& window)
{
    for (int i = 0; i < hole_count; ++i) {
        load_figure(window.txt_verge(i), tables::field_info::yards_h(i + 1));
        load_figure(window.txt_hnd(i), tables::field_info::hcp_h(i + 1));
        load_figure(window.txt_normal(i), tables::field_info::par_h(i + 1));
    }
    show_totals(window);
}

QString trimmed_text(const f_courses& window, int index)
{
    return trimmed_blanks(window.text(index).text()).toString();
}

QString tee_mark(const f_courses& window)
{
    return u'-' + QString::number(window.departure->currentIndex());
}

bool has_name_and_figures(const f_courses& window)
{
    return !trimmed_text(window, 1).isEmpty() && !trimmed_text(window, 0).isEmpty() &&
           !trimmed_text(window, 2).isEmpty();
}

void tell_incomplete(const f_courses& window)
{
    tell(window.caption(u"Attention : Il faut entrer le nom, la moyenne, et la difficulté du terrain.",
                        u"Attention : Attention: Please enter golf course's name, rating and Slop."),
         QMessageBox::Critical, u"Enregistrer"_s);
}

void tell_duplicate(const f_courses& window)
{
    const QString course_and_tee = trimmed_text(window, 1) + u' ' + window.departure->currentText();
    tell(window.caption(u"Le tererain ", u"The golf course  ") + course_and_tee +
             window.caption(u" exist déjà.", u" already exist."),
         QMessageBox::Warning);
}

struct known_course {
    bool duplicate = false;  ///< the same name from the same tee
    QString base;            ///< the code, less its tee, of the same name from another tee
};

/// Names are compared in capitals: all tees of one course share their base however it is spelled.
known_course look_up(const f_courses& window, const QString& name_in_capitals)
{
    known_course known;
    for (int i = 0; i < most_courses; ++i) {
        const auto& [name_tee, code] = course_keys[i];
        if (name_tee.isEmpty())
            continue;
        const QString entry = in_capitals(name_tee);
        if (entry == name_in_capitals + tee_mark(window))
            known.duplicate = true;
        if (entry.chopped(std::min<qsizetype>(tee_mark_length, entry.size())) == name_in_capitals)
            known.base = code.chopped(std::min<qsizetype>(tee_mark_length, code.size()));
    }
    return known;
}

void write_key(const f_courses& window, const QString& base)
{
    const QString code = base + tee_mark(window);
    course().Fields(tables::vrd_fields::code).set(code);
    holes().Fields(tables::field_info::FIELD_CODE).set(code);
    course().Fields(tables::vrd_fields::tee).set(in_capitals(window.departure->currentText()));
    course().Fields(tables::vrd_fields::name_tee).set(trimmed_text(window, 1) + tee_mark(window));
}

/// False when the course stands in the store already; nothing is written then.
bool settle_key(const f_courses& window)
{
    const QString name = in_capitals(trimmed_text(window, 1));
    const known_course known = look_up(window, name);
    if (known.duplicate) {
        tell_duplicate(window);
        return false;
    }
    write_key(window, known.base.isEmpty() ? name : known.base);
    return true;
}

void write_boxes(const f_courses& window)
{
    for (const auto& [index, ordinal] : columns_of_text)
        course().Fields(ordinal).set(window.text(index).text());
    for (int i = 0; i < hole_count; ++i) {
        holes().Fields(tables::field_info::yards_h(i + 1)).set(window.txt_verge(i).text());
        holes().Fields(tables::field_info::hcp_h(i + 1)).set(window.txt_hnd(i).text());
        holes().Fields(tables::field_info::par_h(i + 1)).set(window.txt_normal(i).text());
    }
}

void find_again(const QString& code)
{
    course().MoveFirst();
    course().Find(u"CODE = " + quoted(code));
    holes().MoveFirst();
    holes().Find(u"FIELD_CODE= " + quoted(code));
    if (course().bof() || course().eof() || holes().bof() || holes().eof())
        tell(u"Fatal Error : 101"_s);
}

void commit()
{
    const QString code = course().Fields(tables::vrd_fields::code).text();
    holes().Update();
    course().Update();
    find_again(code);
}

void cancel_updates()
{
    holes().CancelUpdate();
    course().CancelUpdate();
}

QMessageBox::StandardButton ask_whether_to_save(const f_courses& window)
{
    return show_message({window.caption(u"Voulez vous enregistrer les modifications avant de sortir ?  ",
                                        u"Do you want to save the modification made ?  "),
                         QMessageBox::NoIcon, u"Fermer ronde"_s,
                         QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel});
}

/// True when the window may go.
bool settle_changes(f_courses& window)
{
    switch (ask_whether_to_save(window)) {
    case QMessageBox::Yes:
        save(window);
        return window.saveSucceed;
    case QMessageBox::No:
        cancel_updates();
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
    if (window.isNew) {
        fill_tees(window, 0);
        return;
    }
    load_general_page(window);
    load_holes(window);
}

void save(f_courses& window)
{
    window.saveSucceed = false;
    if (!has_name_and_figures(window)) {
        tell_incomplete(window);
        return;
    }
    if (window.isNew && !settle_key(window))
        return;
    write_boxes(window);
    commit();
    window.needtosave = false;
    tell(window.caption(u"Les modifications sont enregistrées.", u"Changes have been saved"),
         QMessageBox::Information);
    window.saveSucceed = true;
}

void close(f_courses& window)
{
    if (!window.needtosave) {
        cancel_updates();
        window.unload();
    } else if (settle_changes(window)) {
        window.needtosave = false;
        window.unload();
    }
    // Also when the window stays: being modal, it keeps the main window out of reach by itself.
    Unlock_menu();
}

void page_clicked(f_courses& window)
{
    const int16 page = window.TabStrip1->selected();
    if (page != window.curFrame) {
        window.frm(plain(page)).show();
        window.frm(plain(window.curFrame)).hide();
        window.curFrame = page;
    }
    QLineEdit* const first_boxes[] = {&window.text(1), &window.txt_verge(0),
                                      &window.txt_verge(front_hole_count)};
    first_boxes[plain(page) - 1]->setFocus();
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
    if (window.needtosave)
        cancel_updates();
    Unlock_menu();
}

}  // namespace verdane::f_courses_func
