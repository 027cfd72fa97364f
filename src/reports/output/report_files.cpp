#include "reports/output/report_files.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include "base/run_time_failure.h"
#include "reports/fill/template_fill.h"
#include "reports/report_document.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString field_of(const QVariant& value, QChar separator)
{
    QString text = printed_value(value);
    if (value.typeId() == QMetaType::Double && separator == u';')
        text.replace(u'.', u',');
    const bool needs_quotes =
        text.contains(separator) || text.contains(u'"') || text.contains(u'\n') || text.contains(u'\r');
    if (!needs_quotes)
        return text;
    return u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

}  // namespace

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

QByteArray csv_text(const report_rows& rows, QChar separator)
{
    QString text(QChar::ByteOrderMark);
    QStringList heads;
    for (const QString& column : rows.columns)
        heads.append(field_of(column, separator));
    text += heads.join(separator) + u"\r\n"_s;
    for (const std::vector<QVariant>& row : rows.rows) {
        QStringList fields;
        for (const QVariant& value : row)
            fields.append(field_of(value, separator));
        text += fields.join(separator) + u"\r\n"_s;
    }
    return text.toUtf8();
}

void write_report_file(const QString& path, const QByteArray& bytes)
{
    // The new file is written under another name and then replaces the old one, which would replace a device
    // or a pipe by a file.
    const QFileInfo there(path);
    if (there.exists() && !there.isFile())
        throw run_time_failure(failure_kind::report_output, u"%1: not a file"_s.arg(path));
    QSaveFile file(path);
    // Unbuffered, because the buffer of the toolkit reports a write as complete even if the disk is full.
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(bytes) == bytes.size() &&
        file.commit())
        return;
    throw run_time_failure(failure_kind::report_output, u"%1: %2"_s.arg(path, file.errorString()));
}

}  // namespace verdane
