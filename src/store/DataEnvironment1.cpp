#include "store/DataEnvironment1.h"

#include "store/catalogue.h"

#include <QCoreApplication>

namespace verdane {

DataEnvironment1::DataEnvironment1()
    : rsgames(connection, catalogue_entry(u"rsgames")),
      rsvrd_fields(connection, catalogue_entry(u"rsvrd_fields")),
      rsfield_info(connection, catalogue_entry(u"rsfield_info")),
      rsgames2(connection, catalogue_entry(u"rsgames2")),
      rspartners(connection, catalogue_entry(u"rspartners")),
      rssticks(connection, catalogue_entry(u"rssticks")),
      rss_put1(connection, catalogue_entry(u"rss_put1")),
      rss_put2(connection, catalogue_entry(u"rss_put2")),
      rsr_card(connection, catalogue_entry(u"rsr_card")),
      rsStat_rounds(connection, catalogue_entry(u"rsStat_rounds")),
      rssticknames(connection, catalogue_entry(u"rssticknames")),
      rsstat_sticks(connection, catalogue_entry(u"rsstat_sticks")),
      rsbuffer(connection, catalogue_entry(u"rsbuffer")),
      rsstats(connection, catalogue_entry(u"rsstats")),
      rssettings(connection, catalogue_entry(u"rssettings")),
      rshand(connection, catalogue_entry(u"rshand")),
      rscryst_hand(connection, catalogue_entry(u"rscryst_hand")),
      rsr_cost(connection, catalogue_entry(u"rsr_cost")),
      rscost(connection, catalogue_entry(u"rscost"))
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
    // Never destroyed: the toolkit's own tables of connections may be gone by then. Instead the
    // connection is closed, and its lock given back, when the application object goes.
    static DataEnvironment1* const environment = [] {
        qAddPostRoutine([] { data_environment().abandon(); });
        return new DataEnvironment1;
    }();
    return *environment;
}

}  // namespace verdane
