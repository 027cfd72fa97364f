#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <optional>

#include "tests/support/test_store.h"
#include "tests/transfer/store_run.h"
#include "transfer/exit_status.h"
#include "transfer/store_argument.h"

/// The stores that the tests of `verdane-store` work on.
namespace verdane::testing {

using namespace Qt::StringLiterals;

/// The rounds of the diary in a `copied_folder`.
constexpr int rounds_of_diary = 12;

/// The argument of the program for a file.
inline QString file_argument(const QString& path)
{
    return argument_of_store(store_location::file(path));
}
inline QString argument_of(const test_store& store)
{
    return argument_of_store(store.location());
}

constexpr int status(exit_status value)
{
    return static_cast<int>(value);
}

/// A folder with the file of a diary of some detailed rounds, and a path for another file.
struct copied_folder {
    copied_folder();

    /// Runs `verdane-store copy` from the diary to the target.
    std::optional<int> copy() const;

    QTemporaryDir folder;
    QString diary = folder.filePath(u"Verdbase.db"_s);
    QString target = folder.filePath(u"target/Verdbase.db"_s);
};

/// The bytes of a file.
QByteArray content_of(const QString& path);

/// The files and folders in a folder that a run has for what is not complete.
QStringList unfinished_in(const QString& folder);

/// Every row of every table of a file in order, as text.
QStringList all_rows(const QString& path);

}  // namespace verdane::testing
