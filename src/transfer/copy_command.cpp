#include "transfer/command.h"

#include <QFile>

#include "store/recovery/diary_copy.h"
#include "store/schema.h"
#include "store/store_files.h"
#include "transfer/console.h"
#include "transfer/store_argument.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool is_missing_file(const store_location& store)
{
    return store.where == store_location::place::file && !QFile::exists(store.name);
}

QString counted_rows(int rows)
{
    return counted(rows, {u"ligne", u"row"}, {u"lignes", u"rows"});
}

exit_status refuse_without_source(const store_location& from)
{
    return refuse(exit_status::no_diary,
                  in_language(u"Il n'y a pas de journal à copier : %1", u"There is no diary to copy: %1")
                      .arg(argument_of_store(from)));
}

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

exit_status copy_open_stores(Connection1& source, Connection1& target)
{
    if (tables_in_use(source).empty())
        return refuse_without_source(source.location());
    const std::vector<counted_table> used = tables_in_use(target);
    if (!used.empty())
        return refuse_target(target.location(), used.front());
    int rows = 0;
    const auto copied = copy_diary(source, target, [](const counted_table& table) {
        print(in_language(u"%1 : %2", u"%1: %2").arg(table.name, counted_rows(table.rows)));
    });
    for (const counted_table& table : copied)
        rows += table.rows;
    print(in_language(u"Copié et vérifié : %1 tables, %2.", u"Copied and checked: %1 tables, %2.")
              .arg(QString::number(copied.size()), counted_rows(rows)));
    return exit_status::done;
}

exit_status copy(const store_location& from, const store_location& to)
{
    Connection1 source;
    if (!source.OpenExisting(from))
        return refuse_without_source(from);
    const bool is_new_file = is_missing_file(to);
    Connection1 target;
    // If opening fails, only files that it has created are removed: the log of a lost file may be there.
    target.Open(to);
    const exit_status status = reported([&] { return copy_open_stores(source, target); });
    target.Close();
    if (status != exit_status::done && is_new_file)
        remove_store_files(to.name);
    return status;
}

exit_status run_copy(const QStringList& arguments, int)
{
    const auto from = arguments.size() == 2 ? store_of_argument(arguments[0]) : std::nullopt;
    const auto to = arguments.size() == 2 ? store_of_argument(arguments[1]) : std::nullopt;
    if (!from || !to || *from == *to)
        return refuse(exit_status::usage,
                      in_language(u"Il faut deux endroits différents : verdane-store copy DE VERS (--help)",
                                  u"Two different stores are needed: verdane-store copy FROM TO (--help)"));
    if (is_empty_file(*from))
        return refuse_without_source(*from);
    return reported([&] { return copy(*from, *to); });
}

}  // namespace

const command copy_command{u"copy",
                           {u"DE VERS", u"FROM TO"},
                           {u"copie un journal, ligne par ligne, à un endroit vide, et compare les deux",
                            u"copies a diary, row by row, into an empty store, and compares both"},
                           {},
                           run_copy};

}  // namespace verdane
