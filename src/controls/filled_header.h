#pragma once

#include <QHeaderView>

namespace verdane {

/// The head of a grid. Where its columns are narrower than the grid, the rest of the head looks like one more
/// column without a caption, instead of a patch of the window's colour.
class filled_header : public QHeaderView {
public:
    explicit filled_header(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace verdane
