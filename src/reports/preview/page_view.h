#pragma once

#include <QAbstractScrollArea>

#include <functional>
#include <memory>
#include <optional>

namespace verdane {

class report_document;

/// The pages of a report below one another, at a zoom in percent of their true size.
class page_view : public QAbstractScrollArea {
public:
    static constexpr int least_zoom = 25;
    static constexpr int most_zoom = 400;

    explicit page_view(std::shared_ptr<const report_document> document, QWidget* parent = nullptr);

    int zoom() const { return zoom_; }
    /// Zooms about the middle of what is seen; a value outside the limits is brought inside.
    void set_zoom(int percent);
    void zoom_in();
    void zoom_out();
    /// Fits the pages to the view's width, and keeps them fitted while the view changes its size, until
    /// another zoom is set.
    void fit_width();

    /// The page that was turned to, as long as it is what is seen; else the first page of which half is
    /// in view, or the last one where the view stands at its end. Counted from 0.
    int current_page() const;
    void previous_page();
    void next_page();

    /// Called whenever the zoom or the current page may have changed.
    std::function<void()> on_change;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    double pixels_per_mm() const;
    QSize page_size() const;
    /// A page's place in the view as it is scrolled now.
    QRect page_rect(int page) const;
    int page_top(int page) const;
    void paint_page(QPainter& painter, int page) const;
    /// Whether a page, or what of it has room, is in view for the larger part.
    bool is_seen(int page) const;
    int topmost_page() const;
    void set_up_scroll_bars();
    void turn_to(int page);
    void scroll_to(int y, std::optional<int> asked_page = {});
    void zoom_to(int percent);
    void zoom_to_width();

    std::shared_ptr<const report_document> document_;
    int zoom_ = 100;
    /// Several pages may be in view, and the last ones cannot be brought to its top: which of them was
    /// asked for is known here only.
    std::optional<int> asked_page_;
    bool fitted_ = false;
};

}  // namespace verdane
