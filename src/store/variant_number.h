#pragma once

#include <QVariant>

#include "base/numbers.h"

namespace verdane {

/// The number that a value is read as: a text by its leading number, a yes as 1.
inline double number_of(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
        return *static_cast<const double*>(value.constData());
    case QMetaType::QString:
        return leading_number(*static_cast<const QString*>(value.constData()));
    case QMetaType::Bool:
        return value.toBool() ? 1.0 : 0.0;
    default:
        return value.toDouble();
    }
}

}  // namespace verdane
