#pragma once

#include <QPixmap>
#include <QSvgRenderer>
#include <QWidget>

namespace verdane {

/// A drawing that fills its pane at any size: scaled as a whole, what is too wide is cut evenly.
class picture_pane : public QWidget {
public:
    explicit picture_pane(const QString& drawing, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF cover() const;
    void redraw();

    QSvgRenderer drawing_;
    QPixmap picture_;
};

}  // namespace verdane
