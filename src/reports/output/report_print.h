#pragma once

class QPrinter;

namespace verdane {

class report_document;

/// Prints the pages of the range that is set in the printer. Fails with `report_output`.
void print_report(const report_document& document, QPrinter& printer);

}  // namespace verdane
