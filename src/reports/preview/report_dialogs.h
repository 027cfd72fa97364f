#pragma once

#include <QString>

#include <functional>

class QPrinter;
class QWidget;

namespace verdane {

/// What a file chooser is asked.
struct file_question {
    QString caption;
    /// A file name without a folder.
    QString proposed;
    /// The kind of file in words, and its ending without the point.
    QString kind;
    QString ending;
};

/// The two questions that a preview puts to the user through dialogs of the platform. A test puts its
/// own answers in their place.
struct report_dialogs {
    /// Where to write to; empty when the user changed their mind.
    std::function<QString(QWidget* owner, const file_question&)> choose_file;
    /// Sets the printer up for a report of that many pages; false when the user changed their mind.
    std::function<bool(QWidget* owner, QPrinter&, int pages)> choose_printer;
};

/// The dialogs in use.
report_dialogs& dialogs_of_reports();

}  // namespace verdane
