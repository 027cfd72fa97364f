#include "store/recovery/sole_use.h"

#include <QFileInfo>

#include "store/engines/file_backup.h"

namespace verdane {

namespace {

void need_no_other_user(const store_location& place)
{
    if (place.where == store_location::place::file && QFileInfo(place.name).size() > 0)
        need_sole_use(place.name);
}

}  // namespace

bool open_alone(Connection1& store, const store_location& place, soundness_check check)
{
    need_no_other_user(place);
    return store.OpenExisting(place, check);
}

void open_or_create_alone(Connection1& store, const store_location& place)
{
    need_no_other_user(place);
    store.Open(place);
}

}  // namespace verdane
