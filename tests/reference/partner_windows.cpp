#include "tests/reference/partner_windows.h"

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "reference/f_partners.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

void partner_store::add_three() const
{
    add(u"Cedar"_s, u"Cleo"_s, 3);
    add(u"Alder"_s, u"Ann"_s, 1);
    add(u"Birch"_s, u"Bob"_s, 2);
}

QString partner_store::rows() const
{
    return store.text(u"select ifnull(group_concat(ifnull(NAME, 'null') || ',' || ifnull(SURNAME, 'null') || "
                      u"',' || code, ' | '), '') from (select * from partners order by rowid)"_s);
}

QString partner_window()
{
    return in_language(u"f_partners", u"f_partners_en");
}

void show_partners()
{
    run_event([] {
        f_partners window;
        window.show_modal();
    });
}

void in_partners(const std::function<void(hand&)>& script)
{
    play(show_partners, [&](hand& user) {
        user.wait_for_window(partner_window());
        script(user);
        user.wait_until_closed(partner_window());
    });
}

void type_into(hand& user, int row, int column, const QString& text)
{
    user.click_cell(u"pgrid"_s, row, column);
    user.type(text);
    user.key(Qt::Key_Return);
}

void accept_partners(hand& user)
{
    user.click(u"cmdSave"_s);
}

expected_box refusal_of_missing_name()
{
    return {in_language(u"Le nom et le prénom sont des champs obligatoires pour chaque partenaire.",
                        u"First and last names are required fields for each partner."),
            QMessageBox::Critical, default_title(), QMessageBox::Ok};
}

expected_box question_on_removal(const QString& name)
{
    return {in_language(u"Attention : Toutes les données relatives à cette personne seront supprimées. "
                        u"Voulez-vous continuer ? ",
                        u"All data relative to this contact will be removed. Do you want to continue?"),
            QMessageBox::NoIcon, in_language(u"Supprimer ", u"Remove ") + name,
            QMessageBox::Yes | QMessageBox::No};
}

}  // namespace verdane::testing
