#pragma once

#include <QString>

namespace verdane::testing {

/// What is typed into the eleven boxes of every hole.
inline const QString figures_of_new_rounds = QStringLiteral("12345678123");

/// Runs the program and enters new rounds until it is killed: a tee-off, two holes, OK. `first_round` numbers
/// the first tee-off; every run takes numbers of its own, up to `rounds_of_a_run` of them.
constexpr int rounds_of_a_run = 60;
int be_the_starter(int first_round);

}  // namespace verdane::testing
