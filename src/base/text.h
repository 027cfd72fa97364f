#pragma once

#include <QString>
#include <QStringView>

namespace verdane {

/// The text without blanks (U+0020) at either end. Tabs, line ends and no-break spaces are kept.
QStringView trimmed_blanks(QStringView text);

/// The text in capitals, accented letters included. Each letter is converted separately and the length does
/// not change: a letter without a single capital ("ß") stays as it is.
QString in_capitals(QStringView text);

}  // namespace verdane
