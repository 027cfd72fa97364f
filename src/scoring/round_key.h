#pragma once

#include <QString>
#include <QStringView>

/// The round key, 14 digits `yyyymmddHHMMSS`: cut for display, never parsed as a date. The callers
/// trim what they read from a column.
namespace verdane::Verdane_tools {

/// True if the text has the digits of a key, ASCII digits only, and nothing else.
bool is_round_key(QStringView text);

/// "YYYY-MM-DD HH:MM:SS".
QString key_text(QStringView key);

/// The date half, "YYYY-MM-DD".
QString key_date_text(QStringView key);

/// The time half, "HH:MM:SS".
QString key_time_text(QStringView key);

/// A line of a list of rounds: the key's text, " |  - ", the course's name, and "**" when the round
/// is incomplete. Key and name are trimmed first.
QString round_entry(QStringView key, QStringView course, bool incomplete);

/// The 14-digit key read back from such a line, by position.
QString key_of_entry(QStringView entry);

}  // namespace verdane::Verdane_tools
