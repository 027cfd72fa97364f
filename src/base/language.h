#pragma once

#include <QString>
#include <QStringView>

namespace verdane {

/// The language of the interface: true French, false English. The only language state of a run;
/// it is true before anything else runs.
extern bool is_french;

/// False until the start has read or asked the language: a failure before that is told in both.
extern bool language_is_settled;

/// One text in both languages, side by side. Neither is derived from the other.
struct text_pair {
    QStringView french;
    QStringView english;

    /// The text for a language that was settled earlier, such as that of an open window.
    QString in(bool french_wanted) const { return (french_wanted ? french : english).toString(); }
};

/// The text of the pair for the language of this moment.
QString in_language(QStringView french, QStringView english);

}  // namespace verdane
