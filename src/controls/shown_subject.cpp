#include "controls/shown_subject.h"

#include <vector>

namespace verdane {

namespace {

std::vector<const shows_subject*>& windows()
{
    static std::vector<const shows_subject*> existing;
    return existing;
}

}  // namespace

shows_subject::shows_subject()
{
    windows().push_back(this);
}

shows_subject::~shows_subject()
{
    std::erase(windows(), this);
}

failure_subject subject_on_screen()
{
    return windows().empty() ? failure_subject() : windows().back()->shown_subject();
}

}  // namespace verdane
