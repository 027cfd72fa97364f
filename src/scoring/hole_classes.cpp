#include "scoring/hole_classes.h"

#include "base/checked_array.h"

namespace verdane {

using namespace Qt::StringLiterals;

const std::array<selector_row, class_count> panel_selectors = {{
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

namespace {

/// What a cell says before it is put in words or in figures: a figure of 0 is the blank cell.
struct cell {
    bool empty = false;
    int16 figure = 0;
};

constexpr cell no_cell{true, 0};

cell member_if(bool belongs)
{
    return {false, static_cast<std::int16_t>(belongs ? 1 : 0)};
}

bool gross_is(const hole_figures& f, int wanted)
{
    const int16 gross = hole_gross(f);
    return gross != 0 && gross == wanted;
}

/// The panel shows one hole; only the sum over many makes the average.
cell average_cell(const hole_figures& f, int16 par, int wanted_par)
{
    const int16 gross = hole_gross(f);
    return par == wanted_par && gross > 0 ? cell{false, gross} : member_if(false);
}

cell putts_in_regulation(const hole_figures& f, int16 par, bool putts_fit)
{
    return member_if(!not_in_regulation(f, par) && putts_fit);
}

cell cell_of(int selector, const hole_figures& f, int16 par)
{
    const int p = plain(par);
    switch (selector) {
    case 1:
        return member_if(hole_gross(f) == p);
    case 6:
        return member_if(not_in_regulation(f, par));
    case 7:
        return member_if(not_in_regulation(f, par) && f.putts == 1);
    case 8:
        return member_if(not_in_regulation(f, par) && f.putts == 2);
    case 9:
        return member_if(not_in_regulation(f, par) && f.putts >= 3);
    case 10:
        return member_if(gross_is(f, p) && f.putts != 2);
    case 11:
        return member_if(hole_shots(f) != 0 && f.putts == 0);
    case 12:
        return p < 3 ? no_cell : member_if(p == 3 && hole_gross(f) == 3);
    case 13:
        return member_if(p == 4 && hole_gross(f) == 4);
    case 14:
        return member_if(p == 5 && hole_gross(f) == 5);
    case 15:
        return average_cell(f, par, 3);
    case 16:
        return average_cell(f, par, 4);
    case 17:
        return average_cell(f, par, 5);
    case 18:
        return member_if(hole_gross(f) == 1);
    case 19:
        return member_if(gross_is(f, p - 3));
    case 20:
        return member_if(gross_is(f, p - 2));
    case 21:
        return member_if(gross_is(f, p - 1));
    case 22:
        return member_if(gross_is(f, p + 1));
    case 23:
        return member_if(gross_is(f, p + 2));
    case 24:
        return member_if(hole_gross(f) != 0 && hole_gross(f) > p + 2);
    case 25:
        return member_if(in_regulation(f, par) == 1);
    case 26:
        return putts_in_regulation(f, par, f.putts == 1);
    case 27:
        return putts_in_regulation(f, par, f.putts == 2);
    case 28:
        return putts_in_regulation(f, par, f.putts >= 3);
    default:
        return no_cell;
    }
}

}  // namespace

int summary_selector(int i)
{
    if (i < 1 || i > class_count)
        throw run_time_failure(failure_kind::subscript, u"class %1 of 24"_s.arg(i));
    // The greens in regulation stand up front, right behind the pars.
    constexpr std::array<int, class_count> order = {1,  25, 26, 27, 28, 6,  7,  8,  9,  10, 11, 12,
                                                    13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24};
    return order[static_cast<std::size_t>(i) - 1];
}

QString hole_cell(int selector, const hole_figures& f, int16 par)
{
    const cell content = cell_of(selector, f, par);
    if (content.empty)
        return {};
    return content.figure == 0 ? u" "_s : QString::number(plain(content.figure));
}

int16 hole_cell_value(int selector, const hole_figures& f, int16 par)
{
    return cell_of(selector, f, par).figure;
}

}  // namespace verdane
