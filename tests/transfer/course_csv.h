#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>

/// CSV files with scorecards for the tests of `verdane-store courses`.
namespace verdane::testing {

/// The line of a course that is accepted, with some values replaced by those of their columns.
QString course_line_with(const std::map<QString, QString>& values);

/// The line with the names of all columns.
QString course_heads();

/// Writes lines into a file and returns its path.
QString write_lines(const QString& path, const QStringList& lines);

/// The file of the guide with published scorecards.
QString published_examples();

}  // namespace verdane::testing
