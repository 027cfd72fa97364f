#pragma once

#include <QApplication>
#include <QStringList>
#include <QTest>

#include <functional>
#include <vector>

#include "shell/start_up.h"
#include "tests/server/failing_round.h"
#include "tests/support/hand.h"

/// The pages and windows of a round that are open when the store fails.
namespace verdane::testing {

/// What a user does before the store fails, and the next step, which then fails.
struct open_page {
    QString name;
    std::function<void(hand&)> work;
    std::function<void(hand&)> next_step;
    /// A query for what the work has committed, and its expected result.
    QString question;
    QString committed;
    /// The result after the next step if that is one statement, which commits itself.
    QString with_next_step = {};
};

const std::vector<open_page>& open_pages();
const open_page& page_called(const QString& name);

/// Runs the program in a child process, which works on the page, reports, and takes the next step when the
/// store fails. Returns how the result differs from a failure that is reported in time, after which
/// everything that was committed is stored and the next start opens the store. Empty if it does not differ.
QStringList faults_on_page(const open_page& page, const store_harm& harm, bool french);

/// The arguments of the child, and whether a process is that child.
QStringList arguments_of_child(const open_page& page, const store_harm& harm);
bool is_child_on_page(const QStringList& arguments);

using harm_by_name = std::function<const store_harm&(const QString& name)>;

/// The script of the child. Returns the exit status for a program that does not end with the failure.
int fail_on_page(const QStringList& arguments, const harm_by_name& harms);

/// `main` of such a test, which is its own child.
template <typename Test>
int page_test_main(int argc, char** argv, const harm_by_name& harms)
{
    QApplication application(argc, argv);
    prepare_application(application);
    if (is_child_on_page(application.arguments()))
        return fail_on_page(application.arguments(), harms);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

}  // namespace verdane::testing
