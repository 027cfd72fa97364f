#pragma once

#include <QString>

#include <functional>

class QPrinter;
class QWidget;

namespace verdane {

/// What a file chooser shows.
struct file_question {
    QString caption;
    /// A file name without a folder.
    QString proposed;
    /// The description of the kind of file, and its ending without the point.
    QString kind;
    QString ending;
};

/// The two dialogs of the platform that a preview opens. A test replaces them by functions.
struct report_dialogs {
    /// The path to write to; empty if the user has cancelled.
    std::function<QString(QWidget* owner, const file_question&)> choose_file;
    /// Sets the printer up for a report of that many pages; false if the user has cancelled.
    std::function<bool(QWidget* owner, QPrinter&, int pages)> choose_printer;
};

/// The dialogs in use.
report_dialogs& dialogs_of_reports();

}  // namespace verdane
