#pragma once

#include <QString>
#include <QUrl>

#include <functional>

class QWidget;

/// The user's guide: HTML files in the folder `guide` next to the program, in a folder for each language. The
/// platform's browser shows them.
namespace verdane {

/// Where the guide is, and how one of its pages is opened.
struct guide_access {
    /// The folder with the folders `fr` and `en`.
    QString folder;
    /// Returns false if the page cannot be opened.
    std::function<bool(const QUrl&)> open;
};

/// The access of the program. Tests replace its members.
guide_access& guide();

/// The page of a window in its present state, for example "windows/f_sticks_averages.html". It redirects to
/// the section that describes the window. The name of a section cannot be part of the address that is opened:
/// some desktops refuse such an address of a file.
QString guide_page_of(const QWidget& window);

/// Opens the guide at the page of the window, or at its contents if it has no such page. If the guide is
/// missing or cannot be opened, shows a message in the same language and does nothing else.
void open_guide(QWidget& window, bool french);

}  // namespace verdane
