#include "base/oversized_writes.h"

#include <csignal>

namespace verdane {

void let_oversized_writes_fail()
{
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

}  // namespace verdane
