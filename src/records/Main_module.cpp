#include "records/Main_module.h"

#include <QSet>

#include "base/failure_subject.h"
#include "base/text.h"
#include "store/DataEnvironment1.h"
#include "store/scoped_source.h"
#include "store/tables/golf_bag.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// Appends a key. If the list is full, the failure names it as that list.
void append_to(limited_list list, const QString& key)
{
    using namespace Main_module;
    concerning([list] { return failure_subject{.list = list}; },
               [&key] {
                   round_keys[plain(round_key_count)] = key;
                   round_key_count = round_key_count + 1;
               });
}

}  // namespace

namespace Main_module {

checked_array<QString, most_rounds> round_keys;
int16 round_key_count = 0;
checked_array<QString, club_count> club_names;
bool club_names_kept = true;

void append_round_key(const QString& key)
{
    append_to(limited_list::round_keys, key);
}

int places_left()
{
    return most_rounds - plain(round_key_count);
}

int rounds_with_key()
{
    QSet<QString> keys;
    for (int index = 0; index < plain(round_key_count); ++index)
        keys.insert(round_keys[index]);
    return static_cast<int>(keys.size());
}

void load_club_names()
{
    Recordset& rssticknames = data_environment().rssticknames;
    rssticknames.Open();
    rssticknames.MoveFirst();
    for (int i = 0; i < club_count; ++i)
        club_names[i] = rssticknames.Fields(tables::sticknames::club(i + 1)).text_or_empty();
    rssticknames.Close();
    club_names_kept = true;
}

void load_round_keys()
{
    round_key_count = 0;
    Recordset& rsgames = data_environment().rsgames;
    // The rows of this table have many columns; only the key is needed.
    constexpr int only_column = 0;
    const scoped_source keys_only(rsgames, u"select date from games order by date"_s);
    rsgames.Open();
    if (!rsgames.eof()) {
        for (rsgames.MoveFirst(); !rsgames.eof(); rsgames.MoveNext())
            append_to(limited_list::stored_rounds, rsgames.Fields(only_column).trimmed());
    }
    rsgames.Close();
}

}  // namespace Main_module

bool Verdane_tools::key_free(QStringView key)
{
    const QStringView wanted = trimmed_blanks(key);
    bool result = true;
    concerning([] { return failure_subject{.list = limited_list::round_keys}; },
               [&] {
                   // This includes the first unused entry, so a full list fails.
                   for (int index = 0; index <= plain(Main_module::round_key_count); ++index) {
                       if (Main_module::round_keys[index] == wanted)
                           result = false;
                   }
               });
    return result;
}

}  // namespace verdane
