#include "tests/transfer/exported_folder.h"

#include <QDir>

namespace verdane::testing {

file_contents contents_of(const QString& folder)
{
    file_contents contents;
    for (const QString& name : QDir(folder).entryList(QDir::Files))
        contents[name] = content_of(folder + u'/' + name);
    return contents;
}

void exported_folder::write(const QString& table, const QByteArray& content) const
{
    QFile written(file(table));
    if (!written.open(QIODevice::WriteOnly) || written.write(content) != content.size())
        qFatal("cannot write %s", qUtf8Printable(written.fileName()));
}

void exported_folder::replace(const QString& table, const QByteArray& old_text,
                              const QByteArray& new_text) const
{
    QByteArray content = content_of(file(table));
    const qsizetype place = content.indexOf(old_text);
    if (place < 0)
        qFatal("%s has no %s", qUtf8Printable(table), old_text.constData());
    write(table, content.replace(place, old_text.size(), new_text));
}

void exported_folder::set_value(const QString& table, int row, const QString& column,
                                const QByteArray& value) const
{
    QList<QByteArray> lines = content_of(file(table)).split('\n');
    const qsizetype place = lines.at(0).split(',').indexOf(column.toUtf8());
    QList<QByteArray> values = lines.at(row).split(',');
    if (place < 0 || values.size() != lines.at(0).split(',').size())
        qFatal("%s has no %s in row %d", qUtf8Printable(table), qUtf8Printable(column), row);
    values[place] = value;
    lines[row] = values.join(',');
    write(table, lines.join('\n'));
}

void exported_folder::change_listed_rows(const QString& table, int by) const
{
    const QByteArray name = '"' + table.toUtf8() + "\",";
    const QByteArray list = content_of(file(u"tables"_s));
    const qsizetype start = list.indexOf(name) + name.size();
    const QByteArray number = list.sliced(start, list.indexOf(',', start) - start);
    replace(u"tables"_s, name + number + ',', name + QByteArray::number(number.toInt() + by) + ',');
}

}  // namespace verdane::testing
