#include "controls/failure_guard.h"

#include <QDir>

#include <cstdlib>
#include <optional>

#include "base/failure_words.h"
#include "controls/boxes.h"
#include "controls/interface_language.h"
#include "store/DataEnvironment1.h"
#include "store/recovery/copy_days.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The newest dated copy of the store if it is a file; empty if there is none.
QString newest_copy(const store_location& store)
{
    if (store.where != store_location::place::file)
        return {};
    const std::vector<QDate> days = days_of_copies(store.name);
    return days.empty() ? QString() : QDir::toNativeSeparators(path_of_copy(store.name, days.back()));
}

/// What the user reads; for a damaged file also which copy can be put back.
QString words_of(const run_time_failure& failure)
{
    const QString words = in_known_language(failure_words(failure.kind()));
    const QString copy = failure.kind() == failure_kind::store_damaged
                             ? newest_copy(data_environment().connection.location())
                             : QString();
    if (copy.isEmpty())
        return words;
    const text_pair newest{u"La copie la plus récente : %1", u"The newest copy: %1"};
    return words + u"\n\n" + in_known_language(newest, u"\n").arg(copy);
}

/// The first loss of the connection that was ignored.
std::optional<run_time_failure>& ignored_loss()
{
    static std::optional<run_time_failure> loss;
    return loss;
}

void show(const run_time_failure& failure)
{
    const auto box = failure_box(failure, words_of(failure), active_window());
    box->setObjectName(u"failure_box"_s);
    box->exec();
}

}  // namespace

void end_after_failure(const run_time_failure& failure)
{
    show(failure);
    data_environment().abandon();
    std::_Exit(EXIT_FAILURE);
}

void note_ignored(const run_time_failure& failure)
{
    if (failure.kind() == failure_kind::source_lost && !ignored_loss())
        ignored_loss() = failure;
}

void end_if_store_is_lost()
{
    if (ignored_loss())
        end_after_failure(*ignored_loss());
}

bool is_failure_of_store(failure_kind kind)
{
    switch (kind) {
    case failure_kind::overflow:
    case failure_kind::subscript:
    case failure_kind::invalid_null:
    case failure_kind::bad_number:
    case failure_kind::report_template:
    case failure_kind::report_output:
        return false;
    default:
        return true;
    }
}

}  // namespace verdane
