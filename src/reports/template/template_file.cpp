#include "reports/template/template_file.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSizeF>

#include "reports/template/page_limits.h"
#include "reports/template/template_head.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString read_text(const QString& path, const template_place& place)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail_template(place, u"cannot open %1: %2"_s.arg(path, file.errorString()));
    if (file.size() > most_template_bytes)
        fail_template(place, u"the template is longer than %1 bytes"_s.arg(most_template_bytes));
    QString text = QString::fromUtf8(file.readAll());
    return text.remove(u'\r');
}

/// The line between head and body; blanks behind the dashes do no harm, since nobody sees them.
qsizetype position_of_rule(const QStringList& lines)
{
    for (qsizetype line = 0; line < lines.size(); ++line)
        if (lines[line].startsWith(u'-') && lines[line].trimmed() == u"---")
            return line;
    return -1;
}

}  // namespace

const template_query* template_file::find_query(const QString& name) const
{
    for (const template_query& query : queries)
        if (query.name == name)
            return &query;
    return nullptr;
}

QSizeF template_file::page_size_mm() const
{
    const QSizeF upright = QPageSize(paper).size(QPageSize::Millimeter);
    return landscape ? upright.transposed() : upright;
}

template_file read_template(const QString& path)
{
    template_file result;
    result.file_name = QFileInfo(path).fileName();
    const QStringList lines = read_text(path, result.at(1)).split(u'\n');
    const qsizetype rule = position_of_rule(lines);
    if (rule < 0)
        fail_template(result.at(static_cast<int>(lines.size())),
                      u"no line --- between the head and the body"_s);
    read_template_head(result, lines.first(rule));
    result.body = lines.sliced(rule + 1).join(u'\n');
    result.body_line = static_cast<int>(rule) + 2;
    return result;
}

}  // namespace verdane
