#pragma once

#include <QScrollArea>

class QLayout;
class QTimer;

namespace verdane {

/// The part of a window that scrolls when it is smaller than its controls. Its preferred size is that of its
/// controls, its minimum size is small. The control with the focus is scrolled into view, together with its
/// label if both fit.
///
/// It cannot have the focus and handles no key: the window uses the arrow and page keys.
class scrolled_content : public QScrollArea {
public:
    /// Takes ownership of the layout and sets its outer margins to 0.
    explicit scrolled_content(QLayout* layout);
    ~scrolled_content() override;

    /// The width and height by which the area is too small to show its content without scroll bars; 0 if it
    /// is large enough.
    QSize missing();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow_focus();
    /// The rectangle of a control in the content.
    QRect place_of(const QWidget& control) const;
    QRect place_with_label(QWidget& control) const;
    void bring_into_view(const QRect& place);

    QTimer* after_layout_;
};

}  // namespace verdane
