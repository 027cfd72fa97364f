#pragma once

struct sqlite3;

/// Functions for the queries of a template.
namespace verdane {

/// Replaces `trim`, `ltrim` and `rtrim` with two arguments on a connection. The functions of the engine
/// compare every character of the text with every one of the list, and cannot be interrupted. The
/// replacements fail when the list has more than 1,000 characters; otherwise the result is the same.
void limit_trim(sqlite3* connection);

/// Adds `grouped(number, separator)`: the number with its digits grouped by thousands. A number of at most
/// four digits before the point is returned unchanged. The number may be a text, and
/// keeps its decimals. Null if the number is Null.
void add_grouped(sqlite3* connection);

}  // namespace verdane
