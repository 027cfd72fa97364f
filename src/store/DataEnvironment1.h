#pragma once

#include <array>
#include <functional>

#include "store/Connection1.h"
#include "store/Recordset.h"

namespace verdane {

/// The connection to the store and the catalogue: one shared recordset for each table, with the settings that
/// are declared next to the table (`store/tables/`). They exist for the whole run and have no rows between
/// uses: the caller that opens a recordset closes it.
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

    /// All of them, in the order above.
    std::array<std::reference_wrapper<Recordset>, 19> recordsets();

    /// Drops every pending row, closes all recordsets and the connection and restores the statements of the
    /// catalogue. Called at the end of the run and after a failure.
    void abandon();
};

/// The data environment of the run.
DataEnvironment1& data_environment();

}  // namespace verdane
