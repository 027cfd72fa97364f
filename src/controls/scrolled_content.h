#pragma once

#include <QScrollArea>

class QLayout;
class QTimer;

namespace verdane {

/// The content of a window between its fixed lines. Its preferred size is that of its controls, its minimum
/// is small, and it scrolls when it is smaller than its controls. The control with the focus is scrolled
/// into view, with its label where both fit.
///
/// It takes neither the focus nor a key: the arrow and page keys belong to the window.
class scrolled_content : public QScrollArea {
public:
    /// Takes the layout over and gives it a widget; its outer margins become 0.
    explicit scrolled_content(QLayout* layout);
    ~scrolled_content() override;

    /// What the area lacks in width and height to show its content without scroll bars; 0 where it lacks
    /// nothing.
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
    /// A control's place in the content.
    QRect place_of(const QWidget& control) const;
    QRect place_with_label(QWidget& control) const;
    void bring_into_view(const QRect& place);

    QTimer* after_layout_;
};

}  // namespace verdane
