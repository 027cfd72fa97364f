#include "store/new_store_name.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool is_reserved(const QFileInfo& file)
{
    static const QRegularExpression ending(
        u"(?:-journal|-wal|-shm|\\.lock|\\.unfinished|\\.restored|\\.source|\\.part)$"_s,
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression folder(u"^copies$|\\.unfinished-[a-z0-9]{6}$"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    return ending.match(file.fileName()).hasMatch() ||
           folder.match(QFileInfo(file.absolutePath()).fileName()).hasMatch();
}

/// The absolute path of a file, with links followed and without.
QStringList paths_of(const QFileInfo& file)
{
    QStringList paths{file.absoluteFilePath()};
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    if (!folder.isEmpty())
        paths << folder + u'/' + file.fileName();
    if (file.isSymLink())
        paths << file.symLinkTarget();
    if (file.exists())
        paths << file.canonicalFilePath();
    return paths;
}

}  // namespace

bool is_reserved_name(const QString& path)
{
    const QStringList paths = paths_of(QFileInfo(path));
    return std::any_of(paths.begin(), paths.end(),
                       [](const QString& each) { return is_reserved(QFileInfo(each)); });
}

}  // namespace verdane
