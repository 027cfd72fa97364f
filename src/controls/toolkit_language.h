#pragma once

namespace verdane {

/// Brings the toolkit's own words (Yes, No, Cancel, the months of a calendar, the print dialog) into
/// the language of the interface. Called whenever that language changes.
void apply_toolkit_language();

}  // namespace verdane
