#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <map>
#include <vector>

#include "transfer/exit_status.h"

/// The commands of `verdane-store` with their files, for tests that run each of them.
namespace verdane::testing {

struct tested_command {
    QString name;
    /// Makes what the command needs in a folder that has the diary `Verdbase.db`.
    std::function<void(const QString& folder)> prepare;
    /// The arguments for the files of that folder.
    std::function<QStringList(const QString& folder)> arguments;
    /// The stores and the folders with tables that it reads or writes. Those that it changes are in the order
    /// in which it changes them.
    QStringList files;
    /// The stores among them that exist before.
    QStringList stores;
    /// The status of a run after a complete one.
    exit_status again = exit_status::done;
};

/// Each command, and each of its options.
const std::vector<tested_command>& every_command();

/// A folder with a diary and what a command needs.
class command_folder {
public:
    command_folder(const tested_command& command, const QString& diary);

    QString path() const { return folder_.path(); }
    QStringList arguments() const { return command_.arguments(path()); }

private:
    const tested_command& command_;
    QTemporaryDir folder_;
};

/// The diary of some detailed rounds, which is made once.
const QString& small_diary();

/// What a file of a command has: the rows of a store, the texts of a folder with tables, nothing of a missing
/// one. Reading a store may copy its log into its file.
QStringList content_at(const QString& path);

/// The content of the files of a command by their names.
using folder_content = std::map<QString, QStringList>;
folder_content content_of_files(const tested_command& command, const QString& folder);

/// The files and folders of a folder and below, relative to it, in order.
QStringList names_below(const QString& folder);

/// Copies a folder with all that is in it.
void copy_folder(const QString& from, const QString& to);

}  // namespace verdane::testing
