#pragma once

#include <array>
#include <cstddef>

/// The numbers of the round window's boxes in their control arrays.
namespace verdane::round_box {

// text
constexpr int stroke_index = 0;
constexpr int course_name = 1;
constexpr int date = 2;
constexpr int time = 3;
constexpr int costs = 7;
constexpr int penalty_total = 36;
constexpr int par = 38;
constexpr int length = 39;
/// The hole whose figures are in the boxes; hidden.
constexpr int hole = 40;

// text_vrd
constexpr int long_shots = 0;
constexpr int approach = 1;
constexpr int putts = 2;
constexpr int stroke_total = 3;
inline constexpr std::array strokes{long_shots, approach, putts};
/// The box that counts the shots of a kind (1 to 3).
constexpr int of_kind(int kind)
{
    return strokes.at(static_cast<std::size_t>(kind - 1));
}

// text_p
constexpr int fairway = 3;
constexpr int sand = 4;
constexpr int missed = 5;
constexpr int recovery = 6;
inline constexpr std::array situation{fairway, sand, missed, recovery};

// text_s
constexpr int water = 8;
constexpr int lost = 9;
constexpr int rule = 10;
constexpr int bounds = 11;
inline constexpr std::array penalties{water, lost, rule, bounds};
/// The box that counts the shots with a penalty (1 to 4).
constexpr int of_penalty(int penalty)
{
    return penalties.at(static_cast<std::size_t>(penalty - 1));
}

// Command1
constexpr int cancel = 2;
constexpr int ok = 4;

// Label
constexpr int hole_number = 4;

// Frame5
constexpr int quick_page = 0;

}  // namespace verdane::round_box
