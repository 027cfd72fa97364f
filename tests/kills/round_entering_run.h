#pragma once

#include <QString>

#include <vector>

#include "tests/kills/entered_hole.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

/// The figures that are typed for a hole, unless its shots are entered.
inline const QString figures_of_new_rounds = u"12345678123"_s;

/// The first hole of every second round is entered shot by shot: its shots are stored before its round is.
bool starts_with_shots(int round);
entered_hole first_shots();

/// A hole that was left; rounds count from 0.
struct left_hole {
    int round = 0;
    int hole = 0;
};

/// Runs the program and enters new rounds until it is killed: a tee-off, two holes, OK. Prints "ready", then
/// a line for each hole that was left. `first_round` is the number of the first round; a run uses up to
/// `rounds_of_a_run` numbers.
constexpr int rounds_of_a_run = 60;
int run_entering_rounds(int first_round);

/// The holes that were left, from what the program printed.
std::vector<left_hole> left_holes(const QByteArray& output);

/// The end of the key of a round, after its day.
QString time_of_round(int round);

}  // namespace verdane::testing
