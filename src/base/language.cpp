#include "base/language.h"

namespace verdane {

bool is_french = true;

QString in_language(QStringView french, QStringView english)
{
    return text_pair{french, english}.in(is_french);
}

}  // namespace verdane
