#pragma once

#include <QHeaderView>

class QPainter;
class QStyleOptionViewItem;

/// How a `data_grid` is painted where it differs from the toolkit's default.
namespace verdane {

/// The header of a grid. If the columns are narrower than the grid, the rest of the header looks like one
/// more column without a caption. By default it would have the colour of the window.
class filled_header : public QHeaderView {
public:
    explicit filled_header(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The width of the frame of the cursor, in pixels, while the grid has the focus.
constexpr int cursor_frame_width = 2;

/// Paints the frame of the cell with the cursor: one pixel wide while the grid does not have the focus.
void paint_cursor_frame(QPainter& painter, const QStyleOptionViewItem& cell, bool grid_has_focus);

/// Paints a caret at the end of the text of a cell, where the style of the grid places that text.
void paint_caret(QPainter& painter, const QStyleOptionViewItem& cell, const QWidget& grid);

/// Paints the arrow of a cell button.
void paint_chevron(QPainter& painter, const QRect& button, const QColor& color);

}  // namespace verdane
