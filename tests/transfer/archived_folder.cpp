#include "tests/transfer/archived_folder.h"

#include <QRegularExpression>

namespace verdane::testing {

divided_rows rows_divided_at(const QString& path, const QString& day)
{
    static const QRegularExpression of_rounds(u"^(games|games2|cost|Stat_rounds)\\|"_s);
    const QString limit = QString(day).remove(u'-');
    divided_rows divided;
    for (const QString& row : all_rows(path)) {
        if (!of_rounds.match(row).hasMatch())
            divided.others << row;
        else
            (row.section(u'|', 1, 1) < limit ? divided.before : divided.from) << row;
    }
    return divided;
}

bool archived_folder::is_archived(const divided_rows& original) const
{
    const divided_rows archive = rows_divided_at(target, day_of_first_kept_round);
    return rows() == divided_rows{{}, original.from, original.others} && archive.before == original.before &&
           archive.from.isEmpty();
}

}  // namespace verdane::testing
