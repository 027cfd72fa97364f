#pragma once

#include <QFrame>

class QGridLayout;
class QLabel;

namespace verdane {

/// A page of the course editor. It keeps its space while it is hidden, so that the window always has the
/// size of its largest page.
class course_page : public QFrame {
public:
    course_page();

    /// The grid of the page, with a vertical gap between its rows in pixels.
    QGridLayout* make_grid(int vertical_gap);
};

void make_bold(QLabel& label);

}  // namespace verdane
