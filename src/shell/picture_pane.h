#pragma once

#include <QPixmap>
#include <QSvgRenderer>
#include <QWidget>

namespace verdane {

/// A drawing that fills its pane at any size. It is scaled and centred, and cut where it is too wide or too
/// high, but shifted so that its element `sign` stays visible. Drawing takes longer than building the rest of
/// the window, so the picture is drawn after the window is shown for the first time.
class picture_pane : public QWidget {
public:
    explicit picture_pane(const QString& drawing, QWidget* parent = nullptr);

    /// The rectangle of the sign in the pane; empty until the drawing is loaded.
    QRectF place_of_sign() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF cover() const;
    /// The rectangle of the sign if the drawing fills `area`.
    QRectF sign_in(const QRectF& area) const;
    void draw_soon();
    void redraw();

    QString file_;
    QSvgRenderer drawing_;
    QPixmap picture_;
    bool drawn_soon_ = false;
};

}  // namespace verdane
