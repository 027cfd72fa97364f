#include "reference/f_partners_func.h"

#include <QRandomGenerator>

#include <optional>

#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "controls/Form.h"
#include "controls/main_frame.h"
#include "reference/f_partners.h"
#include "scoring/Verdane_tools.h"
#include "store/DataEnvironment1.h"
#include "store/tables/partners.h"

namespace verdane::f_partners_func {

namespace {

using tables::partners::code;
using tables::partners::NAME;
using tables::partners::SURNAME;

constexpr int highest_provisional_code = 9900;

Recordset& partners()
{
    return data_environment().rspartners;
}

void empty_for_null(int ordinal)
{
    if (partners().Fields(ordinal).is_null())
        partners().Fields(ordinal).set(QString());
}

/// A blank precedes each of the two names.
QString name_of_current()
{
    QString name;
    for (const int ordinal : {NAME, SURNAME}) {
        if (!partners().Fields(ordinal).is_null())
            name += u' ' + partners().Fields(ordinal).text();
    }
    return name;
}

bool removal_is_wanted(const f_partners& window)
{
    return ask_yes_no(
        window.caption(u"Attention : Toutes les données relatives à cette personne seront supprimées. "
                       u"Voulez-vous continuer ? ",
                       u"All data relative to this contact will be removed. Do you want to continue?"),
        window.caption(u"Supprimer ", u"Remove ") + name_of_current());
}

/// Moves from a removed row to the next one, or to the last.
void leave_removed_row()
{
    partners().MoveNext();
    if (partners().eof() && !partners().empty())
        partners().MoveLast();
}

bool lacks(int ordinal)
{
    return partners().Fields(ordinal).trimmed().isEmpty();
}

void refuse_missing_name(const f_partners& window)
{
    show_information(
        window.caption(u"Le nom et le prénom sont des champs obligatoires pour chaque partenaire.",
                       u"First and last names are required fields for each partner."),
        QMessageBox::Critical);
}

/// The position of a cell without a name.
struct nameless_cell {
    int row;
    int column;
};

/// Finds the first partner that lacks a name and reports it in a message box. Fails on an empty table.
void look_for_missing_name(const f_partners& window, std::optional<nameless_cell>& missing)
{
    partners().MoveFirst();
    while (!partners().eof() && !missing) {
        if (lacks(NAME) || lacks(SURNAME)) {
            missing = {partners().position(), lacks(NAME) ? f_partners::name : f_partners::first_name};
            refuse_missing_name(window);
        }
        partners().MoveNext();
    }
}

/// Stores the rows even if one of them keeps the window open.
std::optional<nameless_cell> check_and_store(f_partners& window)
{
    std::optional<nameless_cell> missing;
    finishes_without_failure([&] {
        window.finish_typing();
        look_for_missing_name(window, missing);
        partners().UpdateBatch();
    });
    return missing;
}

}  // namespace

void load(f_partners& window)
{
    current_form = &window;
    Place_and_lock(window);
    // An earlier window that failed to store its rows may have left them open.
    close_if_open(partners());
    partners().Open();
    if (!partners().empty())
        partners().MoveFirst();
    window.bind_grid();
}

void add_partner(f_partners& window)
{
    window.finish_typing();
    partners().AddNew();
    partners().Fields(code).set(QRandomGenerator::global()->bounded(highest_provisional_code + 1));
    partners().UpdateBatch();
    partners().MoveLast();
    window.show_cell(f_partners::name);
}

void before_row_commit()
{
    empty_for_null(SURNAME);
    empty_for_null(NAME);
    QString name = partners().Fields(NAME).text();
    QString surname = partners().Fields(SURNAME).text();
    partners().Fields(code).set(Verdane_tools::name_checksum(name, surname));
}

void remove_partner(f_partners& window)
{
    window.finish_typing();
    if (partners().bof() || partners().eof() || !removal_is_wanted(window))
        return;
    partners().Delete();
    partners().Update();
    leave_removed_row();
    window.show_cell(window.current_column());
}

void close(f_partners& window)
{
    if (!window.is_loaded())
        return;
    if (const auto missing = check_and_store(window)) {
        partners().MoveTo(missing->row);
        window.show_cell(missing->column);
        return;
    }
    close_if_open(data_environment().rsgames);
    Unlock_menu();
    window.unload();
}

void unload(f_partners& window)
{
    finishes_without_failure([&] {
        window.finish_typing();
        close_if_open(data_environment().rsgames);
        partners().UpdateBatch();
        partners().Close();
    });
    window.unbind_grid();
    Unlock_menu();
}

}  // namespace verdane::f_partners_func
