#include "tests/round/commit_watch.h"

#include <sqlite3.h>

#include <utility>

#include "store/DataEnvironment1.h"
#include "store/engines/sqlite.h"

namespace verdane::testing {

namespace {

sqlite3* program_connection()
{
    return engine_handle(data_environment().connection.database());
}

}  // namespace

commit_watch::commit_watch(std::function<QString()> read_state)
    : read_state_(std::move(read_state)), connection_(program_connection())
{
    sqlite3_wal_hook(connection_, committed, this);
}

commit_watch::~commit_watch()
{
    sqlite3_wal_hook(connection_, nullptr, nullptr);
}

int commit_watch::committed(void* watch, sqlite3*, const char*, int)
{
    auto& self = *static_cast<commit_watch*>(watch);
    self.states_.push_back(self.read_state_());
    return SQLITE_OK;
}

}  // namespace verdane::testing
