#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

#include "base/run_time_failure.h"
#include "tests/support/hand.h"

/// A round that is open in a child process when its store fails.
namespace verdane::testing {

// The script of the child.

/// The exit status of a child whose program returns although it had to end after the failure.
constexpr int not_reached = 77;

/// Prints a line and returns when a line can be read: the parent makes the store fail in between.
void report_and_wait(const char* word);

/// Opens the only stored round from the list of rounds.
void open_the_round(hand& user);

/// The figures with which a hole is left: every digit is the same.
QString figures_of(int hole);

/// Types the figures of a hole and selects the next one, which stores them.
void leave_hole(hand& user, int hole);

// The parent.

/// Longer than any time-out of the program.
constexpr int longest_failure_ms = 60000;

struct failed_child {
    /// False if it had to be killed.
    bool ended = false;
    bool crashed = false;
    int status = -1;
    /// From the failure of the store to the end of the child.
    qint64 took_ms = 0;
    QByteArray errors;
};

/// Starts this program again, runs `harm` when the child reports, and returns after its end.
failed_child run_failing_child(const QStringList& arguments, const std::function<void()>& harm);

/// How the end of the child differs from that of a program that has reported a failure in time; empty if it
/// does not.
QStringList faults_of_end(const failed_child& child, int longest_ms = longest_failure_ms);

/// The SQL of the eleven figures of a hole in the order of the quick page, of a round in `games` and
/// `games2`.
QString figures_in_sql(int hole);

/// What happens to the store while the program waits, and the failure that the program reports.
struct store_harm {
    QString name;
    failure_kind kind;
    /// Before the program starts.
    std::function<void()> prepare;
    /// In the parent, or in the process of the program.
    std::function<void()> occur;
    std::function<void()> occur_inside;
    /// After the program has ended.
    std::function<void()> undo;
    int longest_ms = longest_failure_ms;
    /// True if the store executes the last statement after the program has ended.
    bool executes_later = false;
};

}  // namespace verdane::testing
