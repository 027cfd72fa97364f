#pragma once

#include <QByteArray>
#include <QChar>
#include <QImage>
#include <QString>

#include "reports/query/report_snapshot.h"

class QPrinter;

namespace verdane {

class report_document;

/// All pages as a PDF file's bytes.
QByteArray pdf_of(const report_document& document);

/// A picture as a PNG file's bytes.
QByteArray png_of(const QImage& image);

/// Rows as the bytes of a CSV file: UTF-8 with a byte order mark, line ends as in RFC 4180, and quotes around
/// fields that contain a separator, a quote or a line end. With `;` as separator,
/// numbers take a decimal comma.
QByteArray csv_text(const report_rows& rows, QChar separator);

/// Writes a file completely or not at all. Fails with `report_output`; a file of that name is then as it was.
void write_report_file(const QString& path, const QByteArray& bytes);

/// Prints the pages of the range that is set in the printer. Fails with `report_output`.
void print_report(const report_document& document, QPrinter& printer);

}  // namespace verdane
