#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "tests/support/hand.h"

/// The table of all windows, for what holds in each of them.
namespace verdane::testing {

/// A window of the program, on a page or in a state that looks different.
struct program_window {
    /// Name of the row, the same in both languages: the window's family and its state.
    QString view;
    /// objectName of the French twin; the English one ends in "_en".
    QString family;
    /// The button that Escape clicks; empty in a window without one.
    QString cancel_button;
    /// Opens the window from the main window and leaves it in front.
    std::function<void(hand&)> open;

    /// objectName of the window in a language.
    QString name(bool french) const;
};

/// Every window that a command of the program opens; first the language window and the main window.
const std::vector<program_window>& every_window();

/// Called with a window in front. It may leave the window open, and message boxes above it.
using look_at_window = std::function<void(hand& user, const program_window& window)>;

/// Runs the program in a language on a new store and opens every window. The store has a diary of 20 rounds,
/// and names and figures that need much space.
void visit_every_window(bool french, const look_at_window& look);

/// One row of data for each window and language, in the columns `view` and `french`.
using window_filter = std::function<bool(const program_window&)>;
void every_window_in_both_languages(const window_filter& filter = [](const auto&) { return true; });
/// One row of data for each window, in the column `view`.
void every_window_once();

/// Something that was found in the windows, by row of `every_window_in_both_languages`.
class window_findings {
public:
    void add(const program_window& window, bool french, const QStringList& found)
    {
        found_[{window.view, french}] += found;
    }
    bool has(const QString& view, bool french) const { return found_.contains({view, french}); }
    QStringList of(const QString& view, bool french) const { return found_.at({view, french}); }
    /// Fails the test unless the window of the current row was visited and nothing was found there.
    void verify_nothing_found() const;

private:
    std::map<std::pair<QString, bool>, QStringList> found_;
};

}  // namespace verdane::testing
