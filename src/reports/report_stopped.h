#pragma once

#include <QString>

#include <exception>
#include <string>
#include <utility>

namespace verdane {

/// The user stopped a report. It is no failure: nothing was changed, and the program continues.
class report_stopped : public std::exception {
public:
    /// `where` is "file.rpt:LINE: query NAME".
    explicit report_stopped(QString where) : where_(std::move(where)), what_(where_.toStdString()) {}

    const QString& where() const { return where_; }
    const char* what() const noexcept override { return what_.c_str(); }

private:
    QString where_;
    std::string what_;
};

}  // namespace verdane
