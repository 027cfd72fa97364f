#pragma once

#include "base/language.h"

#include <array>

namespace verdane {

/// The exit status of the program `verdane-store`.
enum class exit_status {
    done = 0,
    failed = 1,     ///< a store could not be read or written; what was saved is intact
    usage = 2,      ///< a wrong command line
    not_empty = 3,  ///< the target has rows; nothing was changed
    in_use = 4,     ///< another program uses one of the stores; nothing was changed
    no_diary = 5,   ///< there is no diary; nothing was changed
    problems = 6,   ///< the diary has problems, which are reported
    bad_file = 7    ///< a CSV file is missing or wrong, which is reported with its line; nothing was changed
};

struct status_words {
    exit_status status;
    text_pair words;
};

/// Every exit status with its words for the help.
inline constexpr std::array<status_words, 8> all_exit_statuses{{
    {exit_status::done, {u"fait et vérifié", u"done and checked"}},
    {exit_status::failed,
     {u"échec (ce qui était enregistré est intact)", u"failure (what was saved is intact)"}},
    {exit_status::usage, {u"ligne de commande incorrecte", u"wrong command line"}},
    {exit_status::not_empty, {u"destination non vide", u"target not empty"}},
    {exit_status::in_use, {u"journal utilisé par un autre programme", u"diary in use by another program"}},
    {exit_status::no_diary, {u"aucun journal", u"no diary"}},
    {exit_status::problems, {u"problèmes trouvés", u"problems found"}},
    {exit_status::bad_file, {u"fichier CSV absent ou incorrect", u"CSV file missing or wrong"}},
}};

}  // namespace verdane
