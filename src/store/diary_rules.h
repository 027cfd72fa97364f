#pragma once

#include <QString>
#include <QStringList>

#include <vector>

#include "base/language.h"

namespace verdane {

/// A condition that the rounds and shots of a diary meet at any time.
struct diary_rule {
    QString sentence_french;
    QString sentence_english;
    /// A statement in the SQL of SQLite with one row for each violation, whose first column says where it is.
    QString violations;
    /// Statements that every engine understands, and that end the violations without a choice; empty if a
    /// choice is needed.
    QStringList repairs;

    QString sentence() const { return in_language(sentence_french, sentence_english); }
};

/// All conditions. The first ones come first when a diary is repaired.
const std::vector<diary_rule>& diary_rules();

/// The condition that every shot has its round. A round can be made of shots that have none.
const diary_rule& rule_of_lost_shots();

}  // namespace verdane
