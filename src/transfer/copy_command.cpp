#include "transfer/command.h"

#include "store/recovery/diary_copy.h"
#include "transfer/console.h"
#include "transfer/empty_store.h"
#include "transfer/store_argument.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

exit_status refuse_without_source(const store_location& from)
{
    return refuse(exit_status::no_diary,
                  in_language(u"Il n'y a pas de journal à copier : %1", u"There is no diary to copy: %1")
                      .arg(argument_of_store(from)));
}

exit_status copy_open_stores(Connection1& source, Connection1& target)
{
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
    if (!source.OpenExisting(from) || tables_in_use(source).empty())
        return refuse_without_source(from);
    Connection1 target;
    return fill_empty_store(target, to, [&] { return copy_open_stores(source, target); });
}

exit_status run_copy(const QStringList& arguments, int)
{
    const auto from = arguments.size() == 2 ? store_of_argument(arguments[0]) : std::nullopt;
    const auto to = arguments.size() == 2 ? store_of_argument(arguments[1]) : std::nullopt;
    if (!from || !to || are_one_store(*from, *to))
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
