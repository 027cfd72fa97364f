#pragma once

class QPrinter;

namespace verdane {

class report_document;

/// Prints the pages that the printer was asked for. Fails with `report_output`.
void print_report(const report_document& document, QPrinter& printer);

}  // namespace verdane
