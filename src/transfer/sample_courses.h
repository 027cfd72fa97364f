#pragma once

#include <vector>

#include "records/course_entry.h"

namespace verdane {

/// The invented courses of the sample, with their tees in the current language.
std::vector<entered_course> sample_courses();

}  // namespace verdane
