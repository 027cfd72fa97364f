#include "base/version.h"

namespace verdane {

QString program_version()
{
    return QStringLiteral(VERDANE_VERSION);
}

}  // namespace verdane
