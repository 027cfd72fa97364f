#include "transfer/command.h"

#include <QDate>

#include "store/recovery/archived_rounds.h"
#include "store/recovery/diary_copy.h"
#include "store/recovery/sole_use.h"
#include "transfer/console.h"
#include "transfer/empty_store.h"
#include "transfer/store_argument.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString counted_rounds(qsizetype rounds)
{
    return counted(static_cast<int>(rounds), {u"ronde", u"round"}, {u"rondes", u"rounds"});
}

exit_status refuse_other_archive(const store_location& to)
{
    return refuse(exit_status::not_empty,
                  in_language(u"%1 existe déjà et n'a pas exactement les rondes à déplacer et leurs "
                              u"terrains. Rien n'a été modifié ; choisissez un nouveau fichier.",
                              u"%1 exists already and does not have exactly the rounds and courses to be "
                              u"moved. Nothing was changed; choose a new file.")
                      .arg(argument_of_store(to)));
}

exit_status refuse_same_file(const store_location& to)
{
    return refuse(exit_status::usage,
                  in_language(u"%1 est le journal lui-même. Rien n'a été modifié ; choisissez un nouveau "
                              u"fichier.",
                              u"%1 is the diary itself. Nothing was changed; choose a new file.")
                      .arg(argument_of_store(to)));
}

exit_status refuse_blank(const blank_in_key& found)
{
    return refuse(exit_status::problems,
                  in_language(u"La table %1 a une ligne de la ronde %2 dont la clé commence ou finit par un "
                              u"blanc ; elle ne serait pas déplacée. Rien n'a été modifié ; lancez "
                              u"verdane-store check.",
                              u"Table %1 has a row of the round %2 whose key begins or ends with a blank; it "
                              u"would not be moved. Nothing was changed; run verdane-store check.")
                      .arg(found.table, found.key));
}

exit_status move_rounds(Connection1& store, QDate day, const store_location& to)
{
    const QStringList keys = round_keys_before(store, day);
    const QString date = day.toString(Qt::ISODate);
    if (keys.isEmpty()) {
        print(in_language(u"Aucune ronde avant le %1. Rien n'a été modifié.",
                          u"No round before %1. Nothing was changed.")
                  .arg(date));
        return exit_status::done;
    }
    if (const auto blank = find_blank_in_key(store, keys))
        return refuse_blank(*blank);
    if (!move_to_archive(store, keys, to.name))
        return refuse_other_archive(to);
    print(in_language(u"Archivé et vérifié : %1 d'avant le %2, dans %3.",
                      u"Archived and checked: %1 before %2, in %3.")
              .arg(counted_rounds(keys.size()), date, argument_of_store(to)));
    return exit_status::done;
}

exit_status archive(const store_location& from, QDate day, const store_location& to)
{
    Connection1 store;
    if (!open_alone(store, from) || tables_in_use(store).empty())
        return refuse_without_diary(from);
    return move_rounds(store, day, to);
}

/// Not valid unless the text is exactly of the form `YYYY-MM-DD`.
QDate day_of_argument(const QString& argument)
{
    const QDate day = QDate::fromString(argument, Qt::ISODate);
    return day.toString(Qt::ISODate) == argument ? day : QDate();
}

exit_status run_archive(const QStringList& arguments, int)
{
    const bool complete = arguments.size() == 3;
    const auto from = complete ? store_of_argument(arguments[0]) : std::nullopt;
    const auto to = complete ? store_of_argument(arguments[2]) : std::nullopt;
    const QDate day = complete ? day_of_argument(arguments[1]) : QDate();
    if (!from || !to || !day.isValid() || to->where != store_location::place::file)
        return refuse(
            exit_status::usage,
            in_language(u"Il faut un journal, une date et un nouveau fichier : verdane-store archive "
                        u"file 2025-01-01 file:ancien.db",
                        u"A diary, a date and a new file are needed: verdane-store archive file "
                        u"2025-01-01 file:old.db"));
    if (are_one_store(*from, *to))
        return refuse_same_file(*to);
    if (has_reserved_name(*to))
        return refuse_reserved_name(*to);
    if (is_empty_file(*from))
        return refuse_without_diary(*from);
    return reported([&] { return archive(*from, day, *to); });
}

}  // namespace

const command archive_command{u"archive",
                              {u"JOURNAL DATE NOUVEAU", u"STORE DATE NEWSTORE"},
                              {u"déplace les rondes d'avant une date (AAAA-MM-JJ) dans un fichier à elles",
                               u"moves the rounds before a date (YYYY-MM-DD) into a file of their own"},
                              {},
                              run_archive};

}  // namespace verdane
