#include "controls/interface_language.h"

#include "base/program.h"

namespace verdane {

namespace {

bool language_is_set = false;

}  // namespace

void set_interface_language(bool french)
{
    is_french = french;
    language_is_set = true;
    load_toolkit_texts();
}

void reset_interface_language()
{
    is_french = true;
    language_is_set = false;
}

QString in_known_language(const text_pair& text, QStringView separator)
{
    return language_is_set ? text.in(is_french) : text.in(true) + separator + text.in(false);
}

}  // namespace verdane
