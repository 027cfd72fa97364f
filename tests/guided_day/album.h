#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

#include "tests/support/hand.h"

namespace verdane::guided_day {

/// The folder in which the pictures and reports are left. Nothing is kept twice under one name.
class album {
public:
    explicit album(QDir folder) : folder_(std::move(folder)) {}

    /// A picture of a window, as NAME.png.
    void keep(testing::hand& user, const QString& window, const QString& name);
    /// The same with the menu that is up before it.
    void keep_with_menu(testing::hand& user, const QString& window, const QString& name);
    /// The path of a file that the program is about to write.
    QString place_for(testing::hand& user, const QString& file);

    QString folder() const { return folder_.absolutePath(); }
    /// What was kept by now.
    QStringList files() const { return files_; }
    /// What of it is not there, or empty.
    QStringList lost_files() const;

private:
    void save(testing::hand& user, const QImage& picture, const QString& name);

    QDir folder_;
    QStringList files_;
};

}  // namespace verdane::guided_day
