#pragma once

#include <QString>

/// The fragments that a statistic puts behind the dates of its WHERE clause. Each begins with " AND ";
/// a filter that is off (an empty value) is one blank.
namespace verdane {

/// `value` is the stored weather, 0 to 3, as text.
QString and_weather(const QString& value);

/// A plain text search in the list of partners: number 12 also finds the rounds of partner 112.
QString and_partner(const QString& number);

QString and_course(const QString& code);

}  // namespace verdane
