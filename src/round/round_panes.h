#pragma once

namespace verdane {

class detailed_page;
class hole_bar;
class page_bar;
class parameters_pane;
class quick_page;
class shot_rows;
class statistics_pane;
class totals_pane;

/// The panes of the round window and the shots of its hole. The window owns the panes and passes them to the
/// routines of its events; nothing else has access to them.
struct round_panes {
    hole_bar& holes;
    page_bar& pages;
    quick_page& quick;
    statistics_pane& statistics;
    detailed_page& detailed;
    parameters_pane& parameters;
    totals_pane& totals;
    shot_rows& shots;
};

}  // namespace verdane
