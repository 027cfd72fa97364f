#pragma once

#include <QPixmap>
#include <QSvgRenderer>
#include <QWidget>

namespace verdane {

/// A drawing that fills its pane at any size: scaled as a whole, what is too wide or too high is cut evenly,
/// except that the element `sign` of the drawing stays in view. The drawing takes longer than all the
/// rest of a window, so the first one is made after the window is shown.
class picture_pane : public QWidget {
public:
    explicit picture_pane(const QString& drawing, QWidget* parent = nullptr);

    /// Where the sign is in the pane; empty until the drawing was read.
    QRectF place_of_sign() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF cover() const;
    /// The sign, with the drawing scaled to an area of the pane.
    QRectF sign_in(const QRectF& area) const;
    void draw_soon();
    void redraw();

    QString file_;
    QSvgRenderer drawing_;
    QPixmap picture_;
    bool drawn_soon_ = false;
};

}  // namespace verdane
