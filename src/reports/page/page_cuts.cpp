#include "reports/page/page_cuts.h"

#include "reports/template/page_limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// Fills pages with bands, from the top of the document to its end.
class page_filler {
public:
    page_filler(double page_height, int pages_before, const template_place& place)
        : page_height_(page_height), most_(static_cast<std::size_t>(most_pages - pages_before)), place_(place)
    {
    }

    void put(const page_band& band)
    {
        if (pages_.empty() || band.starts_page || !fits(band.place.bottom) || would_separate(band))
            start_page(band);
        page().body.bottom = band.place.bottom;
        split_overlong();
    }

    std::vector<page_cut> result() { return std::move(pages_); }

private:
    page_cut& page() { return pages_.back(); }

    double available_height() { return page_height_ - page().repeated_head.height(); }

    bool fits(double bottom) { return bottom - page().body.top <= available_height(); }

    /// True if the band and those that have to stay with it fit on one page, but not on the rest of this one.
    bool would_separate(const page_band& band)
    {
        const double kept = band.head.height() + band.kept_bottom - band.place.top;
        return !fits(band.kept_bottom) && kept <= page_height_;
    }

    void start_page(const page_band& band)
    {
        const bool head_fits = band.head.height() + band.place.height() <= page_height_;
        add_page({head_fits ? band.head : page_strip(), {band.place.top, band.place.top}});
    }

    /// What is taller than a page continues on the next one.
    void split_overlong()
    {
        while (page().body.height() > available_height()) {
            const page_strip rest{page().body.top + available_height(), page().body.bottom};
            page().body.bottom = rest.top;
            add_page({page().repeated_head, rest});
        }
    }

    /// The limit also ends the loop if a page is so low that the remaining height never decreases.
    void add_page(const page_cut& cut)
    {
        if (pages_.size() == most_)
            fail_template(place_, u"the report has more than %1 pages"_s.arg(most_pages));
        pages_.push_back(cut);
    }

    double page_height_;
    std::size_t most_;
    template_place place_;
    std::vector<page_cut> pages_;
};

}  // namespace

std::vector<page_cut> cut_into_pages(const QTextDocument& document, double page_height,
                                     const template_place& place, int pages_before)
{
    page_filler filler(page_height, pages_before, place);
    for (const page_band& band : bands_of(document))
        filler.put(band);
    return filler.result();
}

}  // namespace verdane
