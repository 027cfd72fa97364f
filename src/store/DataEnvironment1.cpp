#include "store/DataEnvironment1.h"

#include <QCoreApplication>

#include "store/tables/cost.h"
#include "store/tables/courses.h"
#include "store/tables/games.h"
#include "store/tables/games2.h"
#include "store/tables/golf_bag.h"
#include "store/tables/hand.h"
#include "store/tables/partners.h"
#include "store/tables/putts.h"
#include "store/tables/r_card.h"
#include "store/tables/settings.h"
#include "store/tables/Stat_rounds.h"
#include "store/tables/stat_sticks.h"
#include "store/tables/stats.h"

namespace verdane {

namespace {

recordset_settings settings_of(const recordset_declaration& declared)
{
    return {QStringView(declared.name).toString(),
            QStringView(declared.source).toString(),
            declared.cursor,
            declared.lock,
            declared.location,
            declared.cache_rows,
            declared.time_out_s};
}

}  // namespace

DataEnvironment1::DataEnvironment1()
    : rsgames(connection, settings_of(tables::games::rsgames)),
      rsvrd_fields(connection, settings_of(tables::vrd_fields::rsvrd_fields)),
      rsfield_info(connection, settings_of(tables::field_info::rsfield_info)),
      rsgames2(connection, settings_of(tables::games2::rsgames2)),
      rspartners(connection, settings_of(tables::partners::rspartners)),
      rssticks(connection, settings_of(tables::sticks::rssticks)),
      rss_put1(connection, settings_of(tables::s_put1::rss_put1)),
      rss_put2(connection, settings_of(tables::s_put2::rss_put2)),
      rsr_card(connection, settings_of(tables::r_card::rsr_card)),
      rsStat_rounds(connection, settings_of(tables::Stat_rounds::rsStat_rounds)),
      rssticknames(connection, settings_of(tables::sticknames::rssticknames)),
      rsstat_sticks(connection, settings_of(tables::stat_sticks::rsstat_sticks)),
      rsbuffer(connection, settings_of(tables::Stat_rounds::rsbuffer)),
      rsstats(connection, settings_of(tables::stats::rsstats)),
      rssettings(connection, settings_of(tables::settings::rssettings)),
      rshand(connection, settings_of(tables::hand::rshand)),
      rscryst_hand(connection, settings_of(tables::Cryst_hand::rscryst_hand)),
      rsr_cost(connection, settings_of(tables::r_cost::rsr_cost)),
      rscost(connection, settings_of(tables::cost::rscost))
{
}

std::array<std::reference_wrapper<Recordset>, 19> DataEnvironment1::recordsets()
{
    return {rsgames,    rsvrd_fields, rsfield_info,  rsgames2,     rspartners,    rssticks, rss_put1,
            rss_put2,   rsr_card,     rsStat_rounds, rssticknames, rsstat_sticks, rsbuffer, rsstats,
            rssettings, rshand,       rscryst_hand,  rsr_cost,     rscost};
}

void DataEnvironment1::abandon()
{
    for (Recordset& recordset : recordsets()) {
        if (recordset.is_open())
            recordset.Close();
        recordset.set_Source(recordset.settings().source);
    }
    connection.Close();
}

DataEnvironment1& data_environment()
{
    // Never destroyed, because Qt may have destroyed its list of connections by then. Instead the connection
    // is closed and its lock released when the application object is destroyed.
    static DataEnvironment1* const environment = [] {
        qAddPostRoutine([] { data_environment().abandon(); });
        return new DataEnvironment1;
    }();
    return *environment;
}

}  // namespace verdane
