#include "tests/support/store_folder.h"

#include "base/program.h"
#include "records/Main_module.h"
#include "store/DataEnvironment1.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

store_folder::store_folder(bool french)
{
    set_interface_language(french);
    Main_module::round_keys.clear();
    Main_module::round_key_count = 0;
    Main_module::club_names_kept = true;
    data_environment().connection.Open(location());
}

store_folder::~store_folder()
{
    for (Recordset& recordset : data_environment().recordsets()) {
        if (recordset.is_open())
            recordset.Close();
        recordset.set_Source(recordset.settings().source);
    }
    data_environment().connection.Close();
}

}  // namespace verdane::testing
