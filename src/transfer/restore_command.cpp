#include "transfer/command.h"

#include "store/recovery/restored_copy.h"
#include "transfer/console.h"
#include "transfer/empty_store.h"
#include "transfer/store_argument.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

void print_kept(const QStringList& kept, bool with_file)
{
    if (with_file)
        print(in_language(u"L'ancien fichier est gardé : %1", u"The old file is kept: %1").arg(kept.first()));
    else if (!kept.isEmpty())
        print(in_language(u"Le fichier du journal manquait ; ce qui restait à côté est gardé : %1",
                          u"The diary's file was missing; what was left next to it is kept: %1")
                  .arg(kept.join(u", "_s)));
}

exit_status restore(const store_location& copy, const store_location& place)
{
    const auto restored = restore_copy(copy, place);
    if (!restored)
        return refuse_without_diary(copy);
    print(in_language(u"Copie remise en place : %1", u"Copy put in place: %1").arg(argument_of_store(place)));
    print_kept(restored->kept, restored->replaced);
    return exit_status::done;
}

bool is_file(const std::optional<store_location>& store)
{
    return store && store->where == store_location::place::file;
}

exit_status run_restore(const QStringList& arguments, int)
{
    const auto copy = arguments.size() == 2 ? store_of_argument(arguments[0]) : std::nullopt;
    const auto place = arguments.size() == 2 ? store_of_argument(arguments[1]) : std::nullopt;
    if (!is_file(copy) || !is_file(place) || are_one_store(*copy, *place))
        return refuse(
            exit_status::usage,
            in_language(u"Il faut deux fichiers différents : verdane-store restore COPIE JOURNAL. Pour "
                        u"une source, utilisez copy vers une source vide.",
                        u"Two different files are needed: verdane-store restore COPY STORE. For a "
                        u"source, use copy to an empty source."));
    if (has_reserved_name(*place))
        return refuse_reserved_name(*place);
    if (is_empty_file(*copy))
        return refuse_without_diary(*copy);
    return reported([&] { return restore(*copy, *place); });
}

}  // namespace

const command restore_command{u"restore",
                              {u"COPIE JOURNAL", u"COPY STORE"},
                              {u"remet une copie à la place d'un journal, dont le fichier est gardé",
                               u"puts a copy in the place of a diary, whose file is kept"},
                              {},
                              run_restore};

}  // namespace verdane
