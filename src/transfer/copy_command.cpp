#include "transfer/command.h"

#include "store/commits.h"
#include "store/recovery/diary_copy.h"
#include "store/recovery/sole_use.h"
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

void print_table(const counted_table& table)
{
    print(in_language(u"%1 : %2", u"%1: %2").arg(table.name, counted_rows(table.rows)));
}

void print_result(const std::vector<counted_table>& copied)
{
    int rows = 0;
    for (const counted_table& table : copied)
        rows += table.rows;
    print(in_language(u"Copié et vérifié : %1 tables, %2.", u"Copied and checked: %1 tables, %2.")
              .arg(QString::number(copied.size()), counted_rows(rows)));
}

exit_status copy(const store_location& from, const store_location& to)
{
    Connection1 source;
    if (!open_alone(source, from))
        return refuse_without_source(from);
    const joined_commits one_moment(source);
    if (tables_in_use(source).empty())
        return refuse_without_source(from);
    Connection1 target;
    std::vector<counted_table> copied;
    const exit_status status =
        fill_empty_store(target, to, [&] { copied = copy_diary(source, target, print_table); });
    if (status == exit_status::done)
        print_result(copied);
    return status;
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
