#include "base/Main_module.h"

namespace verdane::Main_module {

checked_array<QString, most_rounds> round_keys;
int16 round_key_count = 0;
checked_array<QString, club_count> club_names;
bool club_names_kept = true;

void append_round_key(const QString& key)
{
    round_keys[plain(round_key_count)] = key;
    round_key_count = round_key_count + 1;
}

}  // namespace verdane::Main_module
