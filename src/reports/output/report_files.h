#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace verdane {

class report_document;

/// All pages as a PDF file's bytes.
QByteArray pdf_of(const report_document& document);

/// A picture as a PNG file's bytes.
QByteArray png_of(const QImage& image);

/// Writes a file whole or not at all. Fails with `report_output`; a file of that name is then as it
/// was.
void write_report_file(const QString& path, const QByteArray& bytes);

}  // namespace verdane
