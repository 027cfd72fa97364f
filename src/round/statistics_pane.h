#pragma once

#include <QGroupBox>

#include "controls/control_array.h"
#include "records/Round_functions.h"

class QGridLayout;
class QLabel;
class QLineEdit;

namespace verdane {

class Form;

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
