#pragma once

#include <QPixmap>
#include <QSvgRenderer>
#include <QWidget>

namespace verdane {

/// A drawing that fills its pane at any size: scaled as a whole, what is too wide is cut evenly. Drawing
/// it takes longer than all the rest of a window, so the first time it follows once the window is up.
class picture_pane : public QWidget {
public:
    explicit picture_pane(const QString& drawing, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF cover() const;
    void draw_soon();
    void redraw();

    QString file_;
    QSvgRenderer drawing_;
    QPixmap picture_;
    bool drawn_soon_ = false;
};

}  // namespace verdane
