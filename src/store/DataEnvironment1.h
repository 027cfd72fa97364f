#pragma once

#include <array>
#include <functional>

#include "store/Connection1.h"
#include "store/Recordset.h"

namespace verdane {

/// The object through which the program sees the store: one connection and one long-lived, shared
/// recordset for each table. They live for the whole run and hold no rows between uses: whoever opens
/// a recordset closes it.
class DataEnvironment1 {
public:
    DataEnvironment1();

    Connection1 connection;

    Recordset rsgames;
    Recordset rsvrd_fields;
    Recordset rsfield_info;
    Recordset rsgames2;
    Recordset rspartners;
    Recordset rssticks;
    Recordset rss_put1;
    Recordset rss_put2;
    Recordset rsr_card;
    Recordset rsStat_rounds;
    Recordset rssticknames;
    Recordset rsstat_sticks;
    Recordset rsbuffer;
    Recordset rsstats;
    Recordset rssettings;
    Recordset rshand;
    Recordset rscryst_hand;
    Recordset rsr_cost;
    Recordset rscost;

    /// The nineteen recordsets, in the order of the catalogue.
    std::array<std::reference_wrapper<Recordset>, 19> recordsets();

    /// Drops every pending row and closes the connection: the last act after a failure.
    void abandon();
};

/// The one data environment of the run.
DataEnvironment1& data_environment();

}  // namespace verdane
