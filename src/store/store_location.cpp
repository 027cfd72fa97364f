#include "store/store_location.h"

#include "store/Connection1.h"

namespace verdane {

store_location default_store()
{
    return store_location::file(Connection1::default_path());
}

}  // namespace verdane
