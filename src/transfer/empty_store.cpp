#include "transfer/empty_store.h"

#include "store/new_store_name.h"
#include "store/recovery/diary_copy.h"
#include "store/schema.h"
#include "transfer/console.h"
#include "transfer/store_argument.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

exit_status refuse_target(const store_location& to, const counted_table& used)
{
    if (find_table(used.name)->fixed_rows > 0)
        return refuse(exit_status::not_empty,
                      in_language(u"La destination %1 n'est pas vide : son sac de golf a été modifié (table "
                                  u"%2). Rien n'a été modifié.",
                                  u"The target %1 is not empty: its golf bag was edited (table %2). Nothing "
                                  u"was changed.")
                          .arg(argument_of_store(to), used.name));
    return refuse(exit_status::not_empty,
                  in_language(u"La destination %1 n'est pas vide : la table %2 a %3. Rien n'a été modifié.",
                              u"The target %1 is not empty: table %2 has %3. Nothing was changed.")
                      .arg(argument_of_store(to), used.name, counted_rows(used.rows)));
}

/// True if the program, when it opens the store, writes a script that gives the table an order.
bool writes_script(const Connection1& target, const QString& table)
{
    return target.location() == default_store() && target.identity_script().contains(in_back_quotes(table));
}

text_pair words_without_order(bool has_script)
{
    if (has_script)
        return {
            u"La destination %1 ne garde pas l'ordre des lignes : la table %2 a une clé primaire et n'a pas "
            u"la colonne verdane_row. Démarrez Verdane, qui écrit un script (verdane_row.sql), fermez "
            u"Verdane, faites exécuter le script, puis recommencez, ou utilisez une base de données vide. "
            u"Rien n'a été modifié.",
            u"The target %1 does not keep the order of the rows: table %2 has a primary key and not the "
            u"column verdane_row. Start Verdane, which writes a script (verdane_row.sql), close Verdane, "
            u"run the script, then try again, or use an empty database. Nothing was changed."};
    return {
        u"La destination %1 ne garde pas l'ordre des lignes : la table %2 a une clé primaire et n'a pas la "
        u"colonne verdane_row. Utilisez une base de données vide. Rien n'a été modifié.",
        u"The target %1 does not keep the order of the rows: table %2 has a primary key and not the "
        u"column verdane_row. Use an empty database. Nothing was changed."};
}

exit_status refuse_order(const Connection1& target, const QString& table)
{
    const text_pair words = words_without_order(writes_script(target, table));
    return refuse(exit_status::failed,
                  in_language(words.french, words.english).arg(argument_of_store(target.location()), table));
}

exit_status fill_if_empty(const Connection1& target, const std::function<exit_status()>& fill)
{
    const std::vector<counted_table> used = tables_in_use(target);
    if (!used.empty())
        return refuse_target(target.location(), used.front());
    const QStringList without_order = tables_without_order(target);
    if (!without_order.isEmpty())
        return refuse_order(target, without_order.front());
    return fill();
}

}  // namespace

exit_status fill_empty_store(Connection1& target, const store_location& to,
                             const std::function<exit_status()>& fill)
{
    if (has_reserved_name(to))
        return refuse_reserved_name(to);
    // If opening fails, only files that it has created are removed: the log of a lost file may be there.
    target.Open(to);
    const exit_status status = reported([&] { return fill_if_empty(target, fill); });
    if (status == exit_status::done)
        target.Close();
    else
        target.abandon();
    return status;
}

bool has_reserved_name(const store_location& store)
{
    return store.where == store_location::place::file && is_reserved_name(store.name);
}

exit_status refuse_reserved_name(const store_location& store)
{
    return refuse(exit_status::usage,
                  in_language(u"Le nom %1 est réservé aux fichiers qui accompagnent un journal et à ses "
                              u"copies. Rien n'a été modifié ; choisissez un autre nom ou un autre dossier.",
                              u"The name %1 is reserved for the files that belong to a diary and for its "
                              u"copies. Nothing was changed; choose another name or folder.")
                      .arg(argument_of_store(store)));
}

QString counted_rows(int rows)
{
    return counted(rows, {u"ligne", u"row"}, {u"lignes", u"rows"});
}

}  // namespace verdane
