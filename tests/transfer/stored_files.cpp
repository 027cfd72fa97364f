#include "tests/transfer/stored_files.h"

#include <QDir>
#include <QFile>

#include "tests/support/full_diary.h"
#include "tests/support/outside_connection.h"

namespace verdane::testing {

namespace {

/// Made once, because that takes longer than most of the tests.
const QString& made_diary()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        const QString made = folder.filePath(u"Verdbase.db"_s);
        create_diary(made, rounds_of_diary, true);
        return made;
    }();
    return path;
}

}  // namespace

copied_folder::copied_folder()
{
    if (!QFile::copy(made_diary(), diary))
        qFatal("cannot write %s", qUtf8Printable(diary));
}

std::optional<int> copied_folder::copy() const
{
    return store_run({u"copy"_s, file_argument(diary), file_argument(target)}).run();
}

QByteArray content_of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList unfinished_in(const QString& folder)
{
    return QDir(folder).entryList({u"*unfinished*"_s}, QDir::AllEntries | QDir::Hidden | QDir::System);
}

QStringList all_rows(const QString& path)
{
    const outside_connection store(store_location::file(path));
    QStringList lines;
    QSqlQuery tables = store.run(u"select name from sqlite_master where type = 'table' order by name"_s);
    for (const auto& table : all_rows(tables)) {
        const QString name = table[0].toString();
        QSqlQuery rows = store.run(u"select * from `%1` order by rowid"_s.arg(name));
        for (const auto& row : all_rows(rows)) {
            lines += name;
            for (const QVariant& value : row)
                lines.back() += u'|' + (value.isNull() ? u"null"_s : value.toString());
        }
    }
    return lines;
}

}  // namespace verdane::testing
