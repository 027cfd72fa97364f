#pragma once

/// The limits of the diary. Each is defined here once; a list of fixed length is declared with it.
namespace verdane {

constexpr int hole_count = 18;
/// The holes of the front nine, and of the back nine.
constexpr int nine_holes = hole_count / 2;
/// The clubs of the bag; the last one is the putter.
constexpr int club_count = 14;
/// The pars that a hole can have; 0 means that its par is not known yet.
constexpr int lowest_par = 3;
constexpr int highest_par = 5;
/// Putts of a hole whose lengths are stored.
constexpr int putt_lengths_kept = 6;
/// Bands into which the lengths of putts are divided.
constexpr int putt_band_count = 7;
/// The most putts on a hole that the statistics count.
constexpr int most_putts_counted = 5;
constexpr int most_rounds = 366;
/// The digits of the key of a round.
constexpr int round_key_digits = 14;
/// Courses, each with one tee.
constexpr int most_courses = 51;

}  // namespace verdane
