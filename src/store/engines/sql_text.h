#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>
#include <QVariant>

#include <functional>

/// The text of statements for engines that get values as literals.
namespace verdane {

/// True for a text that every driver passes on unchanged between quotes: letters, digits, blanks and a few
/// signs, all of them ASCII. A driver may take any other sign for an escape, a parameter or a date, or may
/// not pass on letters with accents.
bool is_plain_text(QStringView text);

/// Bytes as a literal `x'...'`.
QString hex_literal(const QByteArray& bytes);

/// A number, a yes or no, or Null as a literal. Real numbers have all their digits.
QString literal_of_number(const QVariant& value);

/// A statement with its texts and the parts between them replaced. `literal` gets the value of a text,
/// `other` the parts outside texts and quoted names.
QString rewritten(const QString& statement, const std::function<QString(const QString&)>& literal,
                  const std::function<QString(const QString&)>& other);

}  // namespace verdane
