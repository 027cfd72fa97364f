#include "reference/f_partners_func.h"

#include <QRandomGenerator>

#include <optional>

#include "controls/boxes.h"
#include "controls/data_grid.h"
#include "controls/failure_guard.h"
#include "controls/main_frame.h"
#include "reference/f_partners.h"
#include "scoring/Verdane_tools.h"
#include "store/close_if_open.h"
#include "store/DataEnvironment1.h"
#include "store/tables/partners.h"

namespace verdane::f_partners_func {

namespace {

constexpr int highest_provisional_code = 9900;
constexpr int name_column = 0;
constexpr int surname_column = 1;

Recordset& partners()
{
    return data_environment().rspartners;
}

/// What is being typed reaches its row, and the row gets its code: before anything else happens to the
/// rows.
void finish_typing(f_partners& window)
{
    window.pgrid->commit_cell();
    window.pgrid->bound_model().finish_row();
}

void show_cell(f_partners& window, int column)
{
    window.pgrid->ReBind();
    window.pgrid->set_Col(column);
    window.pgrid->setFocus();
}

void empty_for_null(QStringView column)
{
    if (partners().Fields(column).is_null())
        partners().Fields(column).set(QString());
}

/// Each name stands behind a blank, the first one too.
QString name_of_current()
{
    QString name;
    for (const QStringView column : {u"NAME", u"SURNAME"}) {
        if (!partners().Fields(column).is_null())
            name += u' ' + partners().Fields(column).text();
    }
    return name;
}

bool removal_is_wanted(const f_partners& window)
{
    return ask_yes_no(
        window.caption(u"Attention : Toutes les données relatives à cette personne seront supprimées. "
                       "Voulez-vous continuer ? ",
                       u"All data relative to this contact will be removed. Do you want to continue?"),
        window.caption(u"Supprimer ", u"Remove ") + name_of_current());
}

/// After a removal the partner that follows is the current one, or the last.
void leave_gap()
{
    partners().MoveNext();
    if (partners().eof() && !partners().empty())
        partners().MoveLast();
}

bool lacks(QStringView column)
{
    return partners().Fields(column).trimmed().isEmpty();
}

void tell_missing_name(const f_partners& window)
{
    tell(window.caption(u"Le nom et le prénom sont des champs obligatoires pour chaque partenaire.",
                        u"First and last names are required fields for each partner."),
         QMessageBox::Critical);
}

/// A cell without a name: its row and its column.
struct nameless_cell {
    int row;
    int column;
};

/// Walks the partners up to the first that lacks a name, and tells it. Fails on an empty table.
void look_for_missing_name(const f_partners& window, std::optional<nameless_cell>& missing)
{
    partners().MoveFirst();
    while (!partners().eof() && !missing) {
        if (lacks(u"NAME") || lacks(u"SURNAME")) {
            missing = {partners().position(), lacks(u"NAME") ? name_column : surname_column};
            tell_missing_name(window);
        }
        partners().MoveNext();
    }
}

/// The rows are stored even when one of them keeps the window open.
std::optional<nameless_cell> check_and_store(f_partners& window)
{
    std::optional<nameless_cell> missing;
    finishes_without_failure([&] {
        finish_typing(window);
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
    // A window that could not store its rows had to leave them open.
    close_if_open(partners());
    partners().Open();
    if (!partners().empty())
        partners().MoveFirst();
    window.pgrid->bind();
}

void add_partner(f_partners& window)
{
    finish_typing(window);
    partners().AddNew();
    partners()
        .Fields(tables::partners::code)
        .set(QRandomGenerator::global()->bounded(highest_provisional_code + 1));
    partners().UpdateBatch();
    partners().MoveLast();
    show_cell(window, name_column);
}

void before_row_commit()
{
    empty_for_null(u"SURNAME");
    empty_for_null(u"NAME");
    QString name = partners().Fields(tables::partners::NAME).text();
    QString surname = partners().Fields(tables::partners::SURNAME).text();
    partners().Fields(tables::partners::code).set(Verdane_tools::name_checksum(name, surname));
}

void remove_partner(f_partners& window)
{
    finish_typing(window);
    if (partners().bof() || partners().eof() || !removal_is_wanted(window))
        return;
    partners().Delete();
    partners().Update();
    leave_gap();
    show_cell(window, window.pgrid->Col());
}

void close(f_partners& window)
{
    if (!window.is_loaded())
        return;
    if (const auto missing = check_and_store(window)) {
        partners().MoveTo(missing->row);
        show_cell(window, missing->column);
        return;
    }
    close_if_open(data_environment().rsgames);
    Unlock_menu();
    window.unload();
}

void unload(f_partners& window)
{
    finishes_without_failure([&] {
        finish_typing(window);
        close_if_open(data_environment().rsgames);
        partners().UpdateBatch();
        partners().Close();
    });
    window.pgrid->unbind();
    Unlock_menu();
}

}  // namespace verdane::f_partners_func
