#include "tests/windows/window_captions.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

/// The selection window has the title of the statistic that it runs.
QList<caption_row> titles_of_selection(const QString& view)
{
    static const captions_by_window titles{
        {u"f_date_range for clubs"_s, {{u"title"_s, u"Statistiques des bâtons"_s, u"Club Statistics"_s}}},
        {u"f_date_range for putts"_s,
         {{u"title"_s, u"Statistiques des coups roulés"_s, u"Putt Statistics"_s}}},
        {u"f_date_range for rounds"_s, {{u"title"_s, u"Statistiques des rondes"_s, u"Round Statistics"_s}}},
        {u"f_date_range for costs"_s, {{u"title"_s, u"Statistiques des coûts"_s, u"Cost Statistics"_s}}}};
    return titles.value(view);
}

}  // namespace

QStringList expected_captions(const QString& view, bool french)
{
    const QString family = view.section(u' ', 0, 0);
    QList<caption_row> rows = titles_of_selection(view);
    for (const captions_by_window* all :
         {&captions_of_reference(), &captions_of_round(), &captions_of_shell()})
        rows += all->value(family);
    QStringList captions;
    for (const caption_row& row : rows)
        captions << row.control + u'=' + (french ? row.french : row.english);
    return captions;
}

}  // namespace verdane::testing
