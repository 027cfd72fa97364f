#pragma once

#include <QString>
#include <QStringList>

#include <vector>

#include "base/language.h"

namespace verdane {

/// A condition that holds for the rounds and shots of a diary at any time.
struct diary_rule {
    QString sentence_french;
    QString sentence_english;
    /// A statement in the SQL of SQLite with one row for each violation; the first column is its place.
    QString violations;
    /// Statements for every engine that repair all violations; empty if the user must decide how.
    QStringList repairs;
    /// True if the windows cannot correct a violation either, so that a copy must be restored.
    bool needs_copy = false;

    QString sentence() const { return in_language(sentence_french, sentence_english); }
};

}  // namespace verdane
