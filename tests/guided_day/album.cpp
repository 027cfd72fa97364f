#include "album.h"

#include <QImage>

namespace verdane::guided_day {

void album::keep(const QString& window, const QString& name) const
{
    const QImage picture = user_.picture(window);
    user_.check(!picture.isNull() && picture.save(path(name + u".png")),
                QStringLiteral("the picture %1 cannot be kept").arg(name));
}

}  // namespace verdane::guided_day
