#include "reports/output/report_files.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include "base/run_time_failure.h"
#include "reports/report_document.h"

namespace verdane {

using namespace Qt::StringLiterals;

QByteArray pdf_of(const report_document& document)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(document.title());
    writer.setResolution(1200);
    writer.setPageSize(QPageSize(document.page_size_mm(), QPageSize::Millimeter));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    const double dots_per_mm = writer.resolution() / 25.4;
    painter.scale(dots_per_mm, dots_per_mm);
    for (int page = 0; page < document.page_count(); ++page) {
        if (page > 0)
            writer.newPage();
        document.paint(painter, page);
    }
    painter.end();
    return buffer.data();
}

QByteArray png_of(const QImage& image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

void write_report_file(const QString& path, const QByteArray& bytes)
{
    // A file is written beside and then takes the name over, which would put a file in the place of a
    // device or a pipe.
    const QFileInfo there(path);
    if (there.exists() && !there.isFile())
        throw run_time_failure(failure_kind::report_output, u"%1: not a file"_s.arg(path));
    QSaveFile file(path);
    // Unbuffered, because the toolkit's buffer takes a write that a full disk cut short for a whole one.
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(bytes) == bytes.size() &&
        file.commit())
        return;
    throw run_time_failure(failure_kind::report_output, u"%1: %2"_s.arg(path, file.errorString()));
}

}  // namespace verdane
