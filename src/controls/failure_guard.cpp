#include "controls/failure_guard.h"

#include <QDir>

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "base/failure_text.h"
#include "base/program.h"
#include "controls/boxes.h"
#include "controls/shown_subject.h"
#include "store/DataEnvironment1.h"
#include "store/recovery/copy_days.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString in_both_if_unknown(const QString& french, const QString& english, QStringView separator = u"\n\n")
{
    return in_known_language({french, english}, separator);
}

QString line_of_copy(const text_pair& words, const store_location& store, QDate day)
{
    const QString path = QDir::toNativeSeparators(path_of_copy(store.name, day));
    return u"\n\n" + in_both_if_unknown(words.in(true).arg(path), words.in(false).arg(path), u"\n");
}

/// Which dated copies of a damaged file can be put back; empty if there is none. A copy of a day after today
/// is newer only if the clock was right when it was made, so it is named apart.
QString lines_of_copies(const store_location& store)
{
    if (store.where != store_location::place::file)
        return {};
    const std::vector<QDate> days = days_of_copies(store.name);
    const auto later = std::upper_bound(days.begin(), days.end(), QDate::currentDate());
    QString lines;
    if (later != days.begin())
        lines +=
            line_of_copy({u"La copie la plus récente : %1", u"The newest copy: %1"}, store, *(later - 1));
    if (later != days.end())
        lines += line_of_copy({u"Une copie porte une date future (l'horloge de l'ordinateur était ou est "
                               u"fausse) : %1",
                               u"A copy has a date in the future (the clock of the computer was or is "
                               u"wrong): %1"},
                              store, days.back());
    return lines;
}

QString words_of(const run_time_failure& failure)
{
    const QString words = in_both_if_unknown(failure_text(failure, true), failure_text(failure, false));
    if (failure.kind() != failure_kind::store_damaged)
        return words;
    return words + lines_of_copies(data_environment().connection.location());
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
    show(with_subject(failure, subject_on_screen));
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
