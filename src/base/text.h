#pragma once

#include <QString>
#include <QStringView>

namespace verdane {

/// The text without the blanks at either end. Only the blank (U+0020) counts as one: tabs, line ends
/// and hard spaces are text.
QStringView trimmed_blanks(QStringView text);

/// The text in capitals, accented letters included, letter by letter: the length never changes, so a
/// letter that has no single capital ("ß") stays as it is.
QString in_capitals(QStringView text);

}  // namespace verdane
