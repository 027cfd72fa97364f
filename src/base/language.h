#pragma once

#include <QString>
#include <QStringView>

namespace verdane {

/// The language of the interface: true is French, false is English. It is true when the program starts, and
/// `set_interface_language` changes it.
inline bool is_french = true;

/// One text in both languages. Neither is derived from the other.
struct text_pair {
    QStringView french;
    QStringView english;

    /// The text for a given language, such as that of an open window.
    QString in(bool french_wanted) const { return (french_wanted ? french : english).toString(); }
};

/// The text for the current language of the interface.
inline QString in_language(QStringView french, QStringView english)
{
    return text_pair{french, english}.in(is_french);
}

}  // namespace verdane
