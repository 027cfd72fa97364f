#pragma once

#include <array>

#include "base/language.h"
#include "scoring/hole_classes.h"

/// The boxes of the statistics pane, one for each class of a hole.
namespace verdane {

struct class_box {
    /// The number of the class (`hole_class`).
    int selector;
    /// The index of its box in the control array `text`.
    int box;
    text_pair label;
};

/// In the order in which the pane is computed.
inline constexpr std::array<class_box, class_count> class_boxes{{
    {1, 20, {u"Nombre de normales :", u"Number of Par :"}},
    {6, 15, {u"Vert en coup non réglementaire :", u"Green not in Regulation :"}},
    {7, 14, {u"1 roulés  non réglementaire :", u"1 Putt not in Regulation :"}},
    {8, 13, {u"2 roulés  non réglementaire :", u"2 Putts not in Regulation :"}},
    {9, 12, {u"3 roulés et +  non réglementaire :", u"3+ Putts not in regulation :"}},
    {10, 23, {u"Normales non réglementaires :", u"Up and Down :"}},
    {11, 22, {u"Approches callés :", u"Chip in :"}},
    {12, 21, {u"Nombre de normale  3 :", u"Number of Par 3"}},
    {13, 32, {u"Nombre de normales  4 :", u"Number of Par 4 :"}},
    {14, 31, {u"Nombre de normales  5 :", u"Number of Par 5 :"}},
    {15, 30, {u"Moyenne de normales  3 :", u"Average Par 3 :"}},
    {16, 29, {u"Moyenne de normale  4 :", u"Average Par 4 :"}},
    {17, 28, {u"Moyenne de normales  5 :", u"Average Par 5 :"}},
    {18, 27, {u"Trous d’un coup :", u"Hole in One :"}},
    {19, 26, {u"Albatros :", u"Double eagle :"}},
    {20, 25, {u"Aigles :", u"Eagle"}},
    {21, 24, {u"Oiselets :", u"Birdie"}},
    {22, 35, {u"Bogueys :", u"Bogey :"}},
    {23, 34, {u"Doubles :", u"Double :"}},
    {24, 33, {u"Triples et  +  :", u"Triple+  :"}},
    {25, 19, {u"Verts en coup réglementaires :", u"Green in Regulation :"}},
    {26, 18, {u"1 roulé  réglementaire :", u"1 Putt in Regulation :"}},
    {27, 17, {u"2 roulés  réglementaires :", u"2 Putts in Regulation :"}},
    {28, 16, {u"3 roulés  et + réglementaires :", u"3+ Putts in Regulation :"}},
}};

}  // namespace verdane
