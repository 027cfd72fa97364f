#include "tests/transfer/course_csv.h"

#include <QCoreApplication>
#include <QFile>

#include "transfer/course_lines.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

QString accepted_value(const QString& column)
{
    static const std::map<QString, QString> general{{u"name"_s, u"Golf du Lac"_s},
                                                    {u"tee"_s, u"White"_s},
                                                    {u"rating"_s, u"70.5"_s},
                                                    {u"slope"_s, u"121"_s}};
    const auto found = general.find(column);
    if (found != general.end())
        return found->second;
    if (column.startsWith(u"yards_"))
        return u"350"_s;
    return column.startsWith(u"par_") ? u"4"_s : column.mid(4);
}

}  // namespace

QString course_line_with(const std::map<QString, QString>& values)
{
    QStringList line;
    for (const QString& column : course_columns()) {
        const auto found = values.find(column);
        line << (found == values.end() ? accepted_value(column) : found->second);
    }
    return line.join(u',');
}

QString course_heads()
{
    return course_columns().join(u',');
}

QString write_lines(const QString& path, const QStringList& lines)
{
    QFile file(path);
    const QByteArray bytes = (lines.join(u'\n') + u'\n').toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qUtf8Printable(path));
    return path;
}

QString published_examples()
{
    return QCoreApplication::applicationDirPath() + u"/guide/examples/courses.csv";
}

}  // namespace verdane::testing
