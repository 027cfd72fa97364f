#include "records/Main_module.h"

#include "base/text.h"

namespace verdane {

namespace Main_module {

checked_array<QString, most_rounds> round_keys;
int16 round_key_count = 0;
checked_array<QString, club_count> club_names;
bool club_names_kept = true;

void append_round_key(const QString& key)
{
    round_keys[plain(round_key_count)] = key;
    round_key_count = round_key_count + 1;
}

}  // namespace Main_module

bool Verdane_tools::key_free(QStringView key)
{
    const QStringView wanted = trimmed_blanks(key);
    bool result = true;
    // This includes the first unused entry, so a full list fails.
    for (int index = 0; index <= plain(Main_module::round_key_count); ++index) {
        if (Main_module::round_keys[index] == wanted)
            result = false;
    }
    return result;
}

}  // namespace verdane
