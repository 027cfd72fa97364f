#include "base/program.h"

#include <csignal>

namespace verdane {

QString program_version()
{
    return QString::fromUtf8(VERDANE_VERSION);
}

void let_oversized_writes_fail()
{
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

}  // namespace verdane
