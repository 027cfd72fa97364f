#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

#include "tests/support/hand.h"

namespace verdane::guided_day {

/// The folder of the pictures and reports. A second file with the same name is a failure.
class album {
public:
    explicit album(QDir folder) : folder_(std::move(folder)) {}

    /// Saves a picture of a window as NAME.png.
    void save_picture(testing::hand& user, const QString& window, const QString& name);
    /// Saves a picture of a window with its open menu.
    void save_picture_with_menu(testing::hand& user, const QString& window, const QString& name);
    /// The path for a file that the program will write. Removes a file of an earlier run.
    QString path_for(testing::hand& user, const QString& file);

    QString folder() const { return folder_.absolutePath(); }
    /// The names of all files so far.
    QStringList files() const { return files_; }
    /// Those of them that do not exist or are empty.
    QStringList missing_files() const;

private:
    void save(testing::hand& user, const QImage& picture, const QString& name);

    QDir folder_;
    QStringList files_;
};

}  // namespace verdane::guided_day
