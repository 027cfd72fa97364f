#pragma once

#include <QAbstractScrollArea>

#include <memory>
#include <optional>

namespace verdane {

class report_document;

/// The pages of a report that are laid out, below one another, at a zoom in percent of their true size.
class page_view : public QAbstractScrollArea {
    Q_OBJECT

public:
    static constexpr int least_zoom = 25;
    static constexpr int most_zoom = 400;

    explicit page_view(std::shared_ptr<const report_document> document, QWidget* parent = nullptr);

    int zoom() const { return zoom_; }
    /// Zooms about the middle of the visible part. A value outside the limits is limited to them.
    void set_zoom(int percent);
    void zoom_in();
    void zoom_out();
    /// Fits the pages to the width of the view, also when the view changes its size, until another zoom is
    /// set.
    void fit_width();

    /// The page to which the user turned, as long as it is visible; otherwise the first page of which half is
    /// visible, or the last one if the view is scrolled to its end. Counted from 0.
    int current_page() const;
    void previous_page();
    void next_page();

    /// Adapts the view after further pages were laid out.
    void show_added_pages();

Q_SIGNALS:
    /// The zoom or the current page may have changed.
    void changed();
    /// A part of the view was painted.
    void painted();

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
    /// Whether the larger part of a page, or of what fits into the view, is visible.
    bool is_visible_page(int page) const;
    int topmost_page() const;
    void set_up_scroll_bars();
    void turn_to(int page);
    void scroll_to(int y, std::optional<int> wanted_page = {});
    void zoom_to(int percent);
    void zoom_to_width();

    std::shared_ptr<const report_document> document_;
    int zoom_ = 100;
    /// The page to which the user turned. Its position does not give it: several pages may be visible, and
    /// the last ones cannot be scrolled to the top.
    std::optional<int> wanted_page_;
    bool fitted_ = false;
};

}  // namespace verdane
