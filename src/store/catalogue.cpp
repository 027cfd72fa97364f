#include "store/catalogue.h"

#include <algorithm>
#include <array>

#include "base/run_time_failure.h"

namespace verdane {

namespace {

struct entry {
    QStringView name;
    QStringView source;
    cursor_type cursor;
    lock_type lock;
    cursor_location location;
    int cache_rows;
    int time_out_s;
};

constexpr auto dynamic = cursor_type::dynamic;
constexpr auto fixed = cursor_type::fixed;
constexpr auto optimistic = lock_type::optimistic;
constexpr auto batch = lock_type::batch_optimistic;
constexpr auto server = cursor_location::server;
constexpr auto client = cursor_location::client;

// clang-format off
constexpr std::array<entry, 19> entries{{
    // Cursor, location and cache have no effect; `recordset_settings` says why.
    // name             source                                    cursor   lock        location cache time-out
    {u"rsgames",       u"select *  from games order by date",    dynamic, optimistic, server, 100, 30},
    {u"rsvrd_fields",  u"select * from vrd_fields",              dynamic, optimistic, server, 100, 30},
    {u"rsfield_info",  u"select * from field_info",              dynamic, optimistic, server, 100, 30},
    {u"rsgames2",      u"select * from games2 order by date",    fixed,   optimistic, server, 100, 30},
    {u"rspartners",    u"select * from partners order by name",  fixed,   batch,      client, 100, 30},
    {u"rssticks",      u"select * from sticks",                  fixed,   optimistic, client, 400, 30},
    {u"rss_put1",      u"select * from s_put1",                  fixed,   batch,      client, 400, 30},
    {u"rss_put2",      u"select * from s_put2",                  fixed,   batch,      client, 400, 30},
    {u"rsr_card",      u"select * from r_card",                  fixed,   optimistic, client, 400, 30},
    {u"rsStat_rounds", u"select * from Stat_rounds",             fixed,   optimistic, server, 100, 30},
    {u"rssticknames",  u"select * from sticknames",              fixed,   optimistic, server, 100, 30},
    {u"rsstat_sticks", u"select * from stat_sticks",             fixed,   optimistic, client, 400, 30},
    {u"rsbuffer",      u"select * from stat_rounds",             fixed,   optimistic, server, 100, 30},
    {u"rsstats",       u"select * from stats",                   fixed,   optimistic, client, 400, 30},
    {u"rssettings",    u"select * from settings",                fixed,   optimistic, server, 100, 30},
    {u"rshand",        u"select hnd from HAND ",                 fixed,   batch,      client, 100, 30},
    {u"rscryst_hand",  u"select * from Cryst_hand",              fixed,   optimistic, server, 100, 30},
    {u"rsr_cost",      u"select * from r_cost",                  dynamic, optimistic, server,  10, 30},
    {u"rscost",        u"select * from cost",                    fixed,   optimistic, client, 400, 30},
}};
// clang-format on

recordset_settings settings_of(const entry& e)
{
    return {e.name.toString(), e.source.toString(), e.cursor, e.lock, e.location, e.cache_rows, e.time_out_s};
}

}  // namespace

const std::vector<recordset_settings>& catalogue()
{
    static const std::vector<recordset_settings> settings = [] {
        std::vector<recordset_settings> list;
        for (const entry& e : entries)
            list.push_back(settings_of(e));
        return list;
    }();
    return settings;
}

const recordset_settings& catalogue_entry(QStringView name)
{
    const auto& list = catalogue();
    const auto found = std::find_if(list.begin(), list.end(),
                                    [name](const recordset_settings& s) { return s.name == name; });
    if (found == list.end())
        throw run_time_failure(failure_kind::misuse, QString(u"no recordset " + name));
    return *found;
}

}  // namespace verdane
