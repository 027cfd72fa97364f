#pragma once

#include <array>

#include "base/language.h"

namespace verdane {

/// The names of the weathers, in the order of the values that a round is stored with.
inline constexpr std::array<text_pair, 4> weather_words{{{u"Ensoleillé", u"Sunny"},
                                                         {u"Ciel variable", u"Variable cloudiness"},
                                                         {u"Pluie", u"Rainy"},
                                                         {u"Vent", u"Windy"}}};

}  // namespace verdane
