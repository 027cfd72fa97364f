#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>

#include "tests/transfer/stored_files.h"

/// Diaries that are exported to CSV files and imported again.
namespace verdane::testing {

/// The content of the files of a folder by their names.
using file_contents = std::map<QString, QByteArray>;

file_contents contents_of(const QString& folder);

/// The diary of a `copied_folder`, and a folder for its files.
struct exported_folder : copied_folder {
    std::optional<int> run_export() const { return run_export(file_argument(diary), files); }
    static std::optional<int> run_export(const QString& store, const QString& to)
    {
        return store_run({u"export"_s, store, to}).run();
    }
    std::optional<int> run_import() const { return run_import(file_argument(target)); }
    std::optional<int> run_import(const QString& store) const
    {
        return store_run({u"import"_s, files, store}).run();
    }
    QString file(const QString& table) const { return files + u'/' + table + u".csv"; }
    /// Replaces a text in the file of a table, or in the list of the tables (`tables`), which has it once at
    /// least.
    void replace(const QString& table, const QByteArray& old_text, const QByteArray& new_text) const;
    /// Writes a value, as it is in the file, to a row of a table, from 1. No text of the table has a comma.
    void set_value(const QString& table, int row, const QString& column, const QByteArray& value) const;
    /// Adds to the number of rows of a table in the list of the tables.
    void change_listed_rows(const QString& table, int by) const;
    /// Writes the file of a table.
    void write(const QString& table, const QByteArray& content) const;

    QString files = folder.filePath(u"L'été \"%1\"/files"_s);
};

}  // namespace verdane::testing
