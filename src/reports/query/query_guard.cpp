#include "reports/query/query_guard.h"

#include <QSqlDatabase>

#include <sqlite3.h>

#include <map>
#include <utility>

#include "reports/query/query_functions.h"
#include "reports/query/report_tables.h"
#include "store/table_copy.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// Steps of the engine between two calls of `may_continue`: less than a millisecond.
constexpr int steps_between_checks = 20'000;
/// Bytes of one value and of a row. A row of a report table with all its texts fits. The time of some
/// functions of the engine, which search a text in another, grows with the square of the length, and they
/// cannot be interrupted.
constexpr int most_bytes = 200'000;
/// What the queries of a report may use in addition, in bytes. Compiling a query whose steps name one another
/// several times doubles the memory with every step, and cannot be interrupted.
constexpr sqlite3_int64 most_memory = 128'000'000;

QString name_of(int action)
{
    static const std::map<int, QString> names{
        {SQLITE_ATTACH, u"ATTACH"_s},
        {SQLITE_DETACH, u"DETACH"_s},
        {SQLITE_PRAGMA, u"PRAGMA"_s},
        {SQLITE_INSERT, u"a statement that writes"_s},
        {SQLITE_UPDATE, u"a statement that writes"_s},
        {SQLITE_DELETE, u"a statement that writes"_s},
    };
    const auto found = names.find(action);
    return found == names.end() ? u"any other statement"_s : found->second;
}

bool is_readable(const QString& table, bool any_column)
{
    if (readable_tables().contains(table, Qt::CaseInsensitive))
        return true;
    // Without a column the engine also passes the names of the queries above.
    return !any_column && !table.startsWith(u"sqlite_"_s, Qt::CaseInsensitive);
}

bool is_dangerous(const QString& function)
{
    return function == u"load_extension"_s || function == u"fts3_tokenizer"_s;
}

}  // namespace

query_guard::query_guard(const QSqlDatabase& database, continue_check may_continue)
    : connection_(handle_of_copy(database)), may_continue_(std::move(may_continue))
{
    sqlite3_set_authorizer(connection_, authorize, this);
    sqlite3_progress_handler(connection_, steps_between_checks, interrupt, this);
    sqlite3_limit(connection_, SQLITE_LIMIT_LENGTH, most_bytes);
    limit_trim(connection_);
    add_grouped(connection_);
    memory_limit_before_ = sqlite3_hard_heap_limit64(sqlite3_memory_used() + most_memory);
}

query_guard::~query_guard()
{
    sqlite3_hard_heap_limit64(memory_limit_before_);
    sqlite3_set_authorizer(connection_, nullptr, nullptr);
    sqlite3_progress_handler(connection_, 0, nullptr, nullptr);
}

QString query_guard::take_refusal()
{
    return std::exchange(refusal_, QString());
}

bool query_guard::keep_rows(const QString& table, const QString& statement)
{
    const QByteArray create = (u"create temp table \""_s + table + u"\" as " + statement).toUtf8();
    sqlite3_set_authorizer(connection_, nullptr, nullptr);
    const bool done = sqlite3_exec(connection_, create.constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
    sqlite3_set_authorizer(connection_, authorize, this);
    if (done)
        kept_.append(table);
    return done;
}

bool query_guard::may_continue()
{
    is_stopped_ = is_stopped_ || (may_continue_ && !may_continue_());
    return !is_stopped_;
}

int query_guard::authorize(void* guard, int action, const char* first, const char* second, const char*,
                           const char*)
{
    auto& self = *static_cast<query_guard*>(guard);
    const QString name = QString::fromUtf8(action == SQLITE_FUNCTION ? second : first);
    if (action == SQLITE_SELECT || action == SQLITE_RECURSIVE)
        return SQLITE_OK;
    if (action == SQLITE_READ)
        return self.kept_.contains(name, Qt::CaseInsensitive) ||
                       is_readable(name, second != nullptr && *second != '\0')
                   ? SQLITE_OK
                   : self.refuse(u"%1 is none of them"_s.arg(name));
    if (action == SQLITE_FUNCTION)
        return is_dangerous(name) ? self.refuse(u"%1 is refused"_s.arg(name)) : SQLITE_OK;
    // Creating a table, also that of a table-valued function, first inserts a row into the schema.
    if (name.startsWith(u"sqlite_"_s))
        return self.refuse(u"a new table is refused"_s);
    return self.refuse(u"%1 is refused"_s.arg(name_of(action)));
}

int query_guard::interrupt(void* guard)
{
    return static_cast<query_guard*>(guard)->may_continue() ? 0 : 1;
}

int query_guard::refuse(const QString& reason)
{
    if (refusal_.isEmpty())
        refusal_ = reason;
    return SQLITE_DENY;
}

}  // namespace verdane
