#include "reports/preview/page_view.h"

#include <QPainter>
#include <QPaintEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <array>

#include "reports/report_document.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int gap = 16;
constexpr std::array zoom_steps{25, 33, 50, 67, 75, 90, 100, 110, 125, 150, 175, 200, 250, 300, 400};

}  // namespace

page_view::page_view(std::shared_ptr<const report_document> document, QWidget* parent)
    : QAbstractScrollArea(parent), document_(std::move(document))
{
    setObjectName(u"page_view"_s);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Mid);
    viewport()->setAutoFillBackground(true);
    verticalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setSingleStep(40);
    set_up_scroll_bars();
}

double page_view::pixels_per_mm() const
{
    return logicalDpiX() / 25.4 * zoom_ / 100.0;
}

QSize page_view::page_size() const
{
    return (document_->page_size_mm() * pixels_per_mm()).toSize();
}

int page_view::page_top(int page) const
{
    return gap + page * (page_size().height() + gap);
}

QRect page_view::page_rect(int page) const
{
    const QSize size = page_size();
    const int left = qMax(gap, (viewport()->width() - size.width()) / 2);
    return {QPoint(left - horizontalScrollBar()->value(), page_top(page) - verticalScrollBar()->value()),
            size};
}

void page_view::set_zoom(int percent)
{
    fitted_ = false;
    zoom_to(percent);
}

void page_view::zoom_to(int percent)
{
    const std::optional<int> wanted_page = wanted_page_;
    const bool at_top = verticalScrollBar()->value() == 0;
    const double middle = viewport()->height() / 2.0;
    const double seen = (verticalScrollBar()->value() + middle) / page_top(document_->pages_so_far());
    zoom_ = qBound(least_zoom, percent, most_zoom);
    set_up_scroll_bars();
    // A view at the top stays there. Before the first layout, the middle is not defined.
    scroll_to(at_top ? 0 : qRound(seen * page_top(document_->pages_so_far()) - middle), wanted_page);
    if (wanted_page && !is_visible_page(*wanted_page))
        turn_to(*wanted_page);
}

void page_view::zoom_in()
{
    const auto* next = std::upper_bound(zoom_steps.begin(), zoom_steps.end(), zoom_);
    set_zoom(next == zoom_steps.end() ? most_zoom : *next);
}

void page_view::zoom_out()
{
    const auto* here = std::lower_bound(zoom_steps.begin(), zoom_steps.end(), zoom_);
    set_zoom(here == zoom_steps.begin() ? least_zoom : *(here - 1));
}

void page_view::fit_width()
{
    fitted_ = true;
    zoom_to_width();
}

void page_view::zoom_to_width()
{
    const double true_width = page_size().width() * 100.0 / zoom_;
    const double available = viewport()->width() - 2 * gap;
    zoom_to(static_cast<int>(available / true_width * 100.0));
}

bool page_view::is_visible_page(int page) const
{
    const int seen = page_rect(page).intersected(viewport()->rect()).height();
    return 2 * seen >= qMin(page_size().height(), viewport()->height());
}

int page_view::topmost_page() const
{
    const int half = qMin(page_size().height() + 2 * gap, viewport()->height()) / 2;
    const int page = (verticalScrollBar()->value() + half - gap / 2) / (page_size().height() + gap);
    return qBound(0, page, document_->pages_so_far() - 1);
}

int page_view::current_page() const
{
    if (wanted_page_ && is_visible_page(*wanted_page_))
        return *wanted_page_;
    const QScrollBar* bar = verticalScrollBar();
    const bool at_end = bar->maximum() > 0 && bar->value() == bar->maximum();
    const bool fits = page_size().height() <= viewport()->height();
    return at_end && fits ? document_->pages_so_far() - 1 : topmost_page();
}

void page_view::previous_page()
{
    const int page = current_page();
    const bool is_inside = verticalScrollBar()->value() > page_top(page);
    turn_to(is_inside ? page : qMax(0, page - 1));
}

void page_view::next_page()
{
    const int last = document_->pages_so_far() - 1;
    if (current_page() < last)
        turn_to(current_page() + 1);
    else
        scroll_to(verticalScrollBar()->maximum(), last);
}

void page_view::show_added_pages()
{
    set_up_scroll_bars();
    viewport()->update();
    Q_EMIT changed();
}

void page_view::turn_to(int page)
{
    scroll_to(page_top(page) - gap, page);
}

void page_view::scroll_to(int y, std::optional<int> wanted_page)
{
    verticalScrollBar()->setValue(y);
    wanted_page_ = wanted_page;
    viewport()->update();
    Q_EMIT changed();
}

void page_view::set_up_scroll_bars()
{
    const QSize size = page_size();
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, qMax(0, page_top(document_->pages_so_far()) - viewport()->height()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setRange(0, qMax(0, size.width() + 2 * gap - viewport()->width()));
}

void page_view::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    for (int page = 0; page < document_->pages_so_far(); ++page)
        if (page_rect(page).adjusted(-gap, -gap, gap, gap).intersects(event->rect()))
            paint_page(painter, page);
    Q_EMIT painted();
}

void page_view::paint_page(QPainter& painter, int page) const
{
    const QRect place = page_rect(page);
    painter.fillRect(place.translated(2, 2), palette().color(QPalette::Shadow));
    painter.fillRect(place, Qt::white);
    painter.save();
    painter.setClipRect(place);
    painter.translate(place.topLeft());
    painter.scale(pixels_per_mm(), pixels_per_mm());
    document_->paint_early(painter, page);
    painter.restore();
}

void page_view::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    if (fitted_)
        zoom_to_width();
    set_up_scroll_bars();
    Q_EMIT changed();
}

void page_view::scrollContentsBy(int, int dy)
{
    if (dy != 0)
        wanted_page_.reset();
    viewport()->update();
    Q_EMIT changed();
}

void page_view::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    if (event->angleDelta().y() > 0)
        zoom_in();
    else
        zoom_out();
    event->accept();
}

}  // namespace verdane
