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

void exported_folder::replace(const QString& table, const QByteArray& old_text,
                              const QByteArray& new_text) const
{
    QByteArray content = content_of(file(table));
    const qsizetype place = content.indexOf(old_text);
    QFile written(file(table));
    if (place < 0 || !written.open(QIODevice::WriteOnly) ||
        written.write(content.replace(place, old_text.size(), new_text)) != content.size())
        qFatal("cannot replace %s in %s", old_text.constData(), qUtf8Printable(table));
}

}  // namespace verdane::testing
