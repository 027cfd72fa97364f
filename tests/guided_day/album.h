#pragma once

#include <QDir>
#include <QString>

#include "hand.h"

namespace verdane::guided_day {

/// The folder in which the day leaves its pictures and reports.
class album {
public:
    album(QDir folder, testing::hand& user) : folder_(std::move(folder)), user_(user) {}

    /// A picture of a window, as NAME.png.
    void keep(const QString& window, const QString& name) const;
    QString path(const QString& file) const { return folder_.filePath(file); }

private:
    QDir folder_;
    testing::hand& user_;
};

}  // namespace verdane::guided_day
