#include "store/recovery/kept_copy.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

#include "base/run_time_failure.h"
#include "store/Connection1.h"
#include "store/engines/file_backup.h"
#include "store/recovery/diary_copy.h"
#include "store/recovery/whole_files.h"
#include "store/recovery/work_folder.h"
#include "store/store_files.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool is_free(const QString& path)
{
    return !QFile::exists(path) && !QFileInfo(path).isSymLink() &&
           std::none_of(endings_of_logs.begin(), endings_of_logs.end(),
                        [&](QStringView ending) { return QFile::exists(path + ending); });
}

/// The path of every copy of a store begins with it.
QString start_of_copies(const store_location& store)
{
    const bool is_file = store.where == store_location::place::file;
    const QFileInfo file(is_file ? store.name : Connection1::default_path());
    return file.absolutePath() + u"/copies/" + (is_file ? file.completeBaseName() : store.name);
}

/// The endings of the files of a store that have content, or are the file itself: the logs first.
QStringList endings_of(const QString& store)
{
    QStringList endings;
    for (const QStringView ending : endings_of_logs) {
        if (QFileInfo(store + ending).size() > 0)
            endings << ending.toString();
    }
    if (QFile::exists(store))
        endings << QString();
    return endings;
}

/// Gives all files that name. False if one of the names is taken: no file has it then.
bool rename_all(const QString& from, const QString& to, const QStringList& endings)
{
    for (qsizetype place = 0; place < endings.size(); ++place) {
        if (rename_without_replacing(from + endings[place], to + endings[place]))
            continue;
        for (qsizetype renamed = 0; renamed < place; ++renamed)
            replace_file(to + endings[renamed], from + endings[renamed]);
        return false;
    }
    return true;
}

}  // namespace

QString free_copy_path(const store_location& store, const QString& why)
{
    const QString start =
        start_of_copies(store) + u'-' + QDate::currentDate().toString(Qt::ISODate) + u'-' + why;
    QString path = start + u".db";
    for (int number = 2; !is_free(path); ++number)
        path = start + u'-' + QString::number(number) + u".db";
    return path;
}

void check_closed(const QString& path)
{
    const QString file = real_path(path);
    if (QFileInfo(file + u"-wal").size() > 0)
        throw run_time_failure(failure_kind::store_full,
                               QString(file + u": the write-ahead log was not copied into the file"));
    check_copy(file);
}

void copy_store_files(const QString& from, const QString& to)
{
    const QString file = real_path(from);
    for (const QStringView ending : endings_of_logs) {
        if (QFileInfo(file + ending).size() > 0)
            copy_whole_file(file + ending, to + ending);
    }
    copy_whole_file(file, to);
    QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
}

void write_closed_store(const QString& path, const store_filling& fill)
{
    Connection1 copy;
    copy.Open(path);
    fill(copy);
    copy.Close();
    check_closed(path);
}

void write_closed_copy(Connection1& from, const QString& path)
{
    write_closed_store(path, [&](Connection1& copy) { copy_diary(from, copy, [](const counted_table&) {}); });
}

QStringList keep_files(const store_location& store, const QString& why)
{
    const QStringList endings = endings_of(store.name);
    if (endings.isEmpty())
        return {};
    const work_folder work(start_of_copies(store) + u'-' + why);
    for (const QString& ending : endings)
        copy_whole_file(store.name + ending, work.read_store() + ending);
    QString path = free_copy_path(store, why);
    while (!rename_all(work.read_store(), path, endings))
        path = free_copy_path(store, why);
    QStringList kept;
    for (const QString& ending : endings)
        kept.prepend(path + ending);
    return kept;
}

QString keep_copy(Connection1& store, const QString& why)
{
    const work_folder work(start_of_copies(store.location()) + u'-' + why);
    write_closed_copy(store, work.new_store());
    QString path = free_copy_path(store.location(), why);
    while (!rename_without_replacing(work.new_store(), path))
        path = free_copy_path(store.location(), why);
    return path;
}

}  // namespace verdane
