#include "transfer/command.h"

#include <QDir>
#include <QFileInfo>

#include "base/run_time_failure.h"
#include "store/commits.h"
#include "store/recovery/diary_copy.h"
#include "store/recovery/sole_use.h"
#include "store/recovery/whole_files.h"
#include "store/recovery/work_folder.h"
#include "transfer/console.h"
#include "transfer/empty_store.h"
#include "transfer/store_argument.h"
#include "transfer/table_csv.h"
#include "transfer/table_list.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// Returns the number of rows, and adds the table to the list.
int write_table(const Connection1& store, const table& written, const QString& folder, QString& list)
{
    QString text = csv_heads_of(written);
    int rows = 0;
    read_rows(store, written, [&](const std::vector<QVariant>& row) {
        ++rows;
        const auto line = csv_line_of(row);
        if (!line)
            throw run_time_failure(failure_kind::store_other,
                                   in_language(u"%1, ligne %2 : des octets qui ne sont pas du texte",
                                               u"%1, row %2: bytes that are no text")
                                       .arg(written.name)
                                       .arg(rows));
        text += *line;
    });
    const QByteArray bytes = text.toUtf8();
    write_whole_file(QDir(folder).filePath(csv_name_of(written)), bytes);
    list += line_of_list(written, rows, bytes);
    print(in_language(u"%1 : %2", u"%1: %2").arg(written.name, counted_rows(rows)));
    return rows;
}

/// Returns the number of rows.
int write_tables(const Connection1& store, const QString& folder)
{
    make_folder(folder);
    int rows = 0;
    QString list = heads_of_list();
    for (const table& each : schema())
        rows += write_table(store, each, folder, list);
    write_whole_file(path_of_list(folder), list.toUtf8());
    return rows;
}

/// A folder that is empty is replaced.
bool is_used(const QString& folder)
{
    const QFileInfo present(folder);
    return (present.exists() || present.isSymLink()) &&
           (!present.isDir() || present.isSymLink() || !QDir(folder).isEmpty());
}

exit_status refuse_folder(const QString& folder)
{
    return refuse(exit_status::not_empty,
                  in_language(u"Le dossier n'est pas vide : %1. Rien n'a été modifié.",
                              u"The folder is not empty: %1. Nothing was changed.")
                      .arg(folder));
}

/// A program that works in a folder does not find the new one that replaces it.
bool is_current(const QString& folder)
{
    const QString current = QDir::current().canonicalPath() + u'/';
    const QString replaced = QFileInfo(folder).canonicalFilePath();
    return !replaced.isEmpty() && current.startsWith(replaced + u'/');
}

exit_status refuse_current_folder(const QString& folder)
{
    return refuse(exit_status::usage,
                  in_language(u"%1 est le dossier actuel. Rien n'a été modifié ; donnez le "
                              u"nom d'un nouveau dossier.",
                              u"%1 is the current folder. Nothing was changed; give the "
                              u"name of a new folder.")
                      .arg(folder));
}

exit_status export_diary(const store_location& from, const QString& folder)
{
    remove_unfinished(folder);
    if (is_used(folder))
        return refuse_folder(folder);
    if (is_current(folder))
        return refuse_current_folder(folder);
    Connection1 store;
    if (!open_alone(store, from))
        return refuse_without_diary(from);
    const joined_commits one_moment(store);
    if (tables_in_use(store).empty())
        return refuse_without_diary(from);
    const work_folder work(folder);
    const int rows = write_tables(store, work.files());
    // Another program may have filled it. A folder with files cannot be replaced even after this.
    if (is_used(folder))
        return refuse_folder(folder);
    if (QFileInfo::exists(folder))
        copy_mode(folder, work.files());
    replace_file(work.files(), folder);
    print(in_language(u"Exporté : %1 tables, %2.", u"Exported: %1 tables, %2.")
              .arg(QString::number(schema().size()), counted_rows(rows)));
    return exit_status::done;
}

exit_status run_export(const QStringList& arguments, int)
{
    const auto store = arguments.size() == 2 ? store_of_argument(arguments[0]) : std::nullopt;
    if (!store || arguments[1].isEmpty())
        return refuse_usage();
    if (is_empty_file(*store))
        return refuse_without_diary(*store);
    const QString folder = QDir::cleanPath(QFileInfo(arguments[1]).absoluteFilePath());
    return reported([&] { return export_diary(*store, folder); });
}

}  // namespace

const command export_command{u"export",
                             {u"JOURNAL DOSSIER", u"STORE FOLDER"},
                             {u"écrit tout le journal dans un nouveau dossier, un fichier CSV par table",
                              u"writes the whole diary to a new folder, one CSV file for each table"},
                             {},
                             run_export};

}  // namespace verdane
