#include "transfer/empty_store.h"

#include <QFileInfo>
#include <QLockFile>

#include "store/new_store_name.h"
#include "store/recovery/diary_copy.h"
#include "store/recovery/kept_copy.h"
#include "store/recovery/sole_use.h"
#include "store/recovery/whole_files.h"
#include "store/recovery/work_folder.h"
#include "store/schema.h"
#include "store/store_files.h"
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

exit_status fill_if_empty(const Connection1& target, const std::function<void()>& fill)
{
    const std::vector<counted_table> used = tables_in_use(target);
    if (!used.empty())
        return refuse_target(target.location(), used.front());
    const QStringList without_order = tables_without_order(target);
    if (!without_order.isEmpty())
        return refuse_order(target, without_order.front());
    fill();
    return exit_status::done;
}

/// Closes the open store, which is abandoned after a failure.
exit_status fill_open_store(Connection1& target, const std::function<void()>& fill)
{
    const exit_status status = reported([&] { return fill_if_empty(target, fill); });
    if (status == exit_status::done)
        target.Close();
    else
        target.abandon();
    return status;
}

exit_status fill_present_store(Connection1& target, const store_location& to,
                               const std::function<void()>& fill)
{
    open_or_create_alone(target, to);
    const exit_status status = fill_open_store(target, fill);
    if (status == exit_status::done && to.where == store_location::place::file)
        check_closed(to.name);
    return status;
}

/// Null unless the file does not exist. Fails with `store_damaged` if the log of a lost file is there.
std::unique_ptr<QLockFile> lock_of_new_file(const store_location& to)
{
    if (to.where != store_location::place::file || QFileInfo::exists(to.name))
        return nullptr;
    make_folder_of(real_path(to.name));
    auto lock = take_store_lock(to.name);
    // Another program may have made it before the lock was taken.
    if (QFileInfo::exists(to.name))
        return nullptr;
    check_store_files(to.name);
    return lock;
}

exit_status refuse_new_file(const store_location& to)
{
    return refuse(exit_status::not_empty, in_language(u"Un autre programme a fait %1. Rien n'a été modifié.",
                                                      u"Another program has made %1. Nothing was changed.")
                                              .arg(argument_of_store(to)));
}

/// The caller has the lock of the file.
exit_status fill_new_file(Connection1& target, const store_location& to, const std::function<void()>& fill)
{
    const QString path = real_path(to.name);
    const work_folder work(path);
    target.Open(work.new_store());
    const exit_status status = fill_open_store(target, fill);
    if (status != exit_status::done)
        return status;
    check_closed(work.new_store());
    return rename_without_replacing(work.new_store(), path) ? status : refuse_new_file(to);
}

}  // namespace

exit_status fill_empty_store(Connection1& target, const store_location& to, const std::function<void()>& fill)
{
    if (has_reserved_name(to))
        return refuse_reserved_name(to);
    // A run that was killed after its store had its name has left its folder.
    if (to.where == store_location::place::file)
        remove_unfinished(real_path(to.name));
    if (const auto lock = lock_of_new_file(to))
        return fill_new_file(target, to, fill);
    return fill_present_store(target, to, fill);
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
