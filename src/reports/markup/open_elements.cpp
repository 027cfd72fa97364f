#include "reports/markup/open_elements.h"

#include <algorithm>
#include <iterator>

namespace verdane {

namespace {

bool never_holds_anything(QStringView name)
{
    return is_one_of(name, {u"br", u"hr", u"img", u"meta", u"link", u"col", u"input", u"base", u"wbr"});
}

/// The level of an element in the structure of a table, cells first; 0 for any other element.
int level_in_table(QStringView name)
{
    if (is_one_of(name, {u"td", u"th"}))
        return 1;
    if (is_one_of(name, {u"tr"}))
        return 2;
    return is_one_of(name, {u"thead", u"tbody", u"tfoot", u"caption"}) ? 3 : 0;
}

bool ends_paragraph(QStringView name)
{
    return is_one_of(name, {u"p", u"div", u"table", u"ul", u"ol", u"dl", u"hr", u"pre", u"h1", u"h2", u"h3",
                            u"h4", u"h5", u"h6"});
}

}  // namespace

void open_elements::open(const markup_piece& start_tag)
{
    if (start_tag.name.isEmpty())
        return;
    close_implied(start_tag.name);
    if (!start_tag.is_empty_element() && !never_holds_anything(start_tag.name))
        names_.push_back(start_tag.name);
}

void open_elements::close(QStringView name)
{
    for (auto found = names_.rbegin(); found != names_.rend(); ++found) {
        if (is_one_of(*found, {name})) {
            names_.erase(std::prev(found.base()), names_.end());
            return;
        }
        if (is_one_of(*found, {u"table"}))
            return;
    }
}

void open_elements::close_implied(QStringView name)
{
    if (ends_paragraph(name) && !names_.empty() && is_one_of(names_.back(), {u"p"}))
        names_.pop_back();
    const int level = level_in_table(name);
    if (level == 0)
        return;
    auto ended = names_.end();
    for (auto open = names_.end(); open != names_.begin() && !is_one_of(*std::prev(open), {u"table"}); --open)
        if (const int other = level_in_table(*std::prev(open)); other > 0 && other <= level)
            ended = std::prev(open);
    names_.erase(ended, names_.end());
}

std::size_t open_elements::count(QStringView name) const
{
    return static_cast<std::size_t>(std::count_if(
        names_.begin(), names_.end(), [name](QStringView open) { return is_one_of(open, {name}); }));
}

}  // namespace verdane
