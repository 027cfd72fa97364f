#include "tests/transfer/every_command.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/transfer/archived_folder.h"
#include "tests/transfer/course_csv.h"
#include "tests/transfer/exported_folder.h"
#include "tests/transfer/stored_files.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds_of_small_diary = 8;

const QString diary_name = u"Verdbase.db"_s;
const QString target_name = u"target.db"_s;
const QString copy_name = u"copy.db"_s;
const QString files_name = u"files"_s;
const QString cards_name = u"cards.csv"_s;

QString store_in(const QString& folder, const QString& name)
{
    return file_argument(folder + u'/' + name);
}

QString diary_in(const QString& folder)
{
    return store_in(folder, diary_name);
}

void damage_rows(const QString& folder)
{
    reader(folder + u'/' + diary_name).write({u"update Stat_rounds set addpen = 7"_s, u"delete from cost"_s});
}

void lose_round(const QString& folder)
{
    reader(folder + u'/' + diary_name).write(u"delete from games where date = '%1'"_s.arg(key_in_diary(1)));
}

void make_copy(const QString& folder)
{
    const QString copy = folder + u'/' + copy_name;
    if (!QFile::copy(folder + u'/' + diary_name, copy))
        qFatal("cannot write %s", qPrintable(copy));
    reader(copy).write(u"delete from cost"_s);
}

void make_export(const QString& folder)
{
    if (exported_folder::run_export(diary_in(folder), folder + u'/' + files_name) !=
        status(exit_status::done))
        qFatal("cannot export to %s", qPrintable(folder));
}

void make_cards(const QString& folder)
{
    write_lines(folder + u'/' + cards_name, {course_heads(), course_line_with({})});
}

std::vector<tested_command> made_commands()
{
    using enum exit_status;
    const auto nothing = [](const QString&) {};
    const QStringList diary{diary_name};
    return {
        {u"check"_s, nothing,
         [](const QString& in) {
             return QStringList{u"check"_s, diary_in(in)};
         },
         diary, diary},
        {u"check --repair"_s, damage_rows,
         [](const QString& in) {
             return QStringList{u"check"_s, u"--repair"_s, diary_in(in)};
         },
         diary, diary},
        {u"check --repair --make-rounds"_s, lose_round,
         [](const QString& in) {
             return QStringList{u"check"_s, u"--repair"_s, u"--make-rounds"_s, diary_in(in)};
         },
         diary, diary},
        {u"copy"_s,
         nothing,
         [](const QString& in) {
             return QStringList{u"copy"_s, diary_in(in), store_in(in, target_name)};
         },
         {diary_name, target_name},
         diary,
         not_empty},
        {u"restore"_s,
         make_copy,
         [](const QString& in) {
             return QStringList{u"restore"_s, store_in(in, copy_name), diary_in(in)};
         },
         {copy_name, diary_name},
         {copy_name, diary_name}},
        {u"export"_s,
         nothing,
         [](const QString& in) {
             return QStringList{u"export"_s, diary_in(in), in + u'/' + files_name};
         },
         {diary_name, files_name},
         diary,
         not_empty},
        {u"import"_s,
         make_export,
         [](const QString& in) {
             return QStringList{u"import"_s, in + u'/' + files_name, store_in(in, target_name)};
         },
         {files_name, target_name},
         {},
         not_empty},
        {u"archive"_s,
         nothing,
         [](const QString& in) {
             return QStringList{u"archive"_s, diary_in(in), day_of_first_kept_round,
                                store_in(in, target_name)};
         },
         {target_name, diary_name},
         diary},
        {u"courses"_s, make_cards,
         [](const QString& in) {
             return QStringList{u"courses"_s, in + u'/' + cards_name, diary_in(in)};
         },
         diary, diary},
        {u"sample"_s,
         nothing,
         [](const QString& in) {
             return QStringList{u"sample"_s, store_in(in, target_name)};
         },
         {diary_name, target_name},
         {},
         not_empty},
    };
}

QStringList texts_of_tables(const QString& folder)
{
    QStringList texts;
    for (const auto& [name, content] : contents_of(folder))
        texts << name + u'|' + QString::fromUtf8(content);
    return texts;
}

}  // namespace

const std::vector<tested_command>& every_command()
{
    static const std::vector<tested_command> all = made_commands();
    return all;
}

command_folder::command_folder(const tested_command& command, const QString& diary) : command_(command)
{
    if (!QFile::copy(diary, folder_.filePath(diary_name)))
        qFatal("cannot write %s", qPrintable(path()));
    command.prepare(path());
}

const QString& small_diary()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        const QString made = folder.filePath(diary_name);
        create_diary(made, rounds_of_small_diary, true);
        // A long file takes more writes.
        reader(made).write(
            {u"delete from Stat_rounds where date > '%1'"_s.arg(key_in_diary(1)), u"vacuum"_s});
        return made;
    }();
    return path;
}

QStringList content_at(const QString& path)
{
    if (QFileInfo(path).isDir())
        return texts_of_tables(path);
    return QFileInfo(path).size() > 0 ? all_rows(path) : QStringList();
}

folder_content content_of_files(const tested_command& command, const QString& folder)
{
    folder_content content;
    for (const QString& name : command.files)
        content[name] = content_at(folder + u'/' + name);
    return content;
}

QStringList names_below(const QString& folder)
{
    QStringList names;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        names << QDir(folder).relativeFilePath(entries.next());
    names.sort();
    return names;
}

void copy_folder(const QString& from, const QString& to)
{
    std::filesystem::copy(from.toStdU16String(), to.toStdU16String(),
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::copy_symlinks);
}

}  // namespace verdane::testing
