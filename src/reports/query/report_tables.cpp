#include "reports/query/report_tables.h"

namespace verdane {

using namespace Qt::StringLiterals;

const QStringList& readable_tables()
{
    static const QStringList tables{u"stats"_s,  u"s_put1"_s, u"s_put2"_s, u"stat_sticks"_s,
                                    u"r_cost"_s, u"hand"_s,   u"r_card"_s, u"sticknames"_s};
    return tables;
}

}  // namespace verdane
