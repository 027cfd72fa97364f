#pragma once

#include <QString>

/// The fragments of a WHERE clause that the filters of a selection become.
namespace verdane {

enum class filter { weather, partner, course };

/// Most statistics put the fragments one behind the other after the dates: each begins with " AND ",
/// and one blank stands for a filter that is off. The putt statistics join them: each stands alone, and
/// what is always true stands for a filter that is off.
enum class clause_form { appended, alone };

/// `value` is the stored weather (0 to 3), a partner's number or a course's code, empty when the filter
/// is off. A round whose weather is Null matches no weather. The partner is a plain text search: number 12
/// also finds the rounds of partner 112.
QString clause_of(filter which, clause_form form, const QString& value);

}  // namespace verdane
