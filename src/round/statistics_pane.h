#pragma once

#include <QGroupBox>

#include <array>

#include "base/language.h"
#include "controls/control_array.h"
#include "records/Round_functions.h"
#include "scoring/hole_classes.h"

class QGridLayout;
class QLabel;
class QLineEdit;

namespace verdane {

class Form;

/// A box of the statistics pane, one for each class of a hole.
struct class_box {
    /// The number of the class (`hole_class`).
    int selector;
    /// The index of its box in the control array `text`.
    int box;
    text_pair label;
};

/// In the order in which the pane is computed.
inline constexpr auto class_boxes = [] {
    using namespace hole_class;
    return std::array<class_box, class_count>{{
        {made_par, 20, {u"Nombre de normales :", u"Number of Par :"}},
        {green_missed, 15, {u"Vert en coup non réglementaire :", u"Green not in Regulation :"}},
        {green_missed_one_putt, 14, {u"1 roulés  non réglementaire :", u"1 Putt not in Regulation :"}},
        {green_missed_two_putts, 13, {u"2 roulés  non réglementaire :", u"2 Putts not in Regulation :"}},
        {green_missed_three_putts,
         12,
         {u"3 roulés et +  non réglementaire :", u"3+ Putts not in regulation :"}},
        {up_and_down, 23, {u"Normales non réglementaires :", u"Up and Down :"}},
        {chip_in, 22, {u"Approches callés :", u"Chip in :"}},
        {made_par_3, 21, {u"Nombre de normale  3 :", u"Number of Par 3"}},
        {made_par_4, 32, {u"Nombre de normales  4 :", u"Number of Par 4 :"}},
        {made_par_5, 31, {u"Nombre de normales  5 :", u"Number of Par 5 :"}},
        {average_of_par_3, 30, {u"Moyenne de normales  3 :", u"Average Par 3 :"}},
        {average_of_par_4, 29, {u"Moyenne de normale  4 :", u"Average Par 4 :"}},
        {average_of_par_5, 28, {u"Moyenne de normales  5 :", u"Average Par 5 :"}},
        {hole_in_one, 27, {u"Trous d’un coup :", u"Hole in One :"}},
        {double_eagle, 26, {u"Albatros :", u"Double eagle :"}},
        {eagle, 25, {u"Aigles :", u"Eagle"}},
        {birdie, 24, {u"Oiselets :", u"Birdie"}},
        {bogey, 35, {u"Bogueys :", u"Bogey :"}},
        {double_bogey, 34, {u"Doubles :", u"Double :"}},
        {triple_bogey_or_more, 33, {u"Triples et  +  :", u"Triple+  :"}},
        {green_hit, 19, {u"Verts en coup réglementaires :", u"Green in Regulation :"}},
        {green_hit_one_putt, 18, {u"1 roulé  réglementaire :", u"1 Putt in Regulation :"}},
        {green_hit_two_putts, 17, {u"2 roulés  réglementaires :", u"2 Putts in Regulation :"}},
        {green_hit_three_putts, 16, {u"3 roulés  et + réglementaires :", u"3+ Putts in Regulation :"}},
    }};
}();

/// The statistics of the hole on screen: its twenty-four classes, in two columns.
class statistics_pane : public QGroupBox {
public:
    explicit statistics_pane(const Form& window);

    void show_hole(const hole_figures& figures, int16 par);

private:
    template <typename Selectors>
    QGridLayout* make_column(const Form& window, const Selectors& selectors);

    /// By the index `class_box::box`.
    control_array<QLineEdit> class_boxes_{u"text"};
};

/// The totals of the round. While they are hidden their place stays empty, so that nothing moves.
class totals_pane : public QWidget {
public:
    totals_pane();

    void show_round(const Round_functions::round_labels& totals);

private:
    QLabel* gross_label_;
    QLabel* handicap_label_;
    QLabel* net_label_;
    QLabel* over_par_label_;
};

}  // namespace verdane
