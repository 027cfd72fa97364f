#pragma once

#include <QStringView>

#include <vector>

#include "reports/markup/page_markup.h"

namespace verdane {

/// The elements that are open at a position of a page, as the toolkit's reader counts them. A new row closes
/// the row before it; the same applies to cells and paragraphs. Elements without content, such as `<br>`, are
/// never open.
class open_elements {
public:
    void open(const markup_piece& start_tag);
    void close(QStringView name);

    std::size_t depth() const { return names_.size(); }
    std::size_t count(QStringView name) const;
    bool is_in_drawing() const { return count(u"svg") > 0; }

private:
    void close_implied(QStringView name);

    std::vector<QStringView> names_;
};

}  // namespace verdane
