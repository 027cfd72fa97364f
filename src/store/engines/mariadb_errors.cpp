#include "store/engines/mariadb_errors.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

// The documented numbers. Those from 2000 are of the client library.
namespace code {
constexpr int cannot_make_file = 1;
constexpr int error_on_write = 3;
constexpr int cannot_create_table = 1005;
constexpr int disk_full = 1021;
constexpr int error_writing_file = 1026;
constexpr int storage_error = 1030;
constexpr int too_many_connections = 1040;
constexpr int database_denied = 1044;
constexpr int account_denied = 1045;
constexpr int no_database_selected = 1046;
constexpr int node_not_ready = 1047;
constexpr int unknown_database = 1049;
constexpr int server_shutdown = 1053;
constexpr int unknown_column = 1054;
constexpr int table_full = 1114;
constexpr int host_blocked = 1129;
constexpr int host_not_allowed = 1130;
constexpr int table_denied = 1142;
constexpr int column_denied = 1143;
constexpr int no_such_table = 1146;
constexpr int error_during_commit = 1180;
constexpr int too_many_connections_of_account = 1203;
constexpr int lock_wait_timeout = 1205;
constexpr int limit_of_account = 1226;
constexpr int privilege_missing = 1227;
constexpr int login_method_too_old = 1251;
constexpr int out_of_range = 1264;
constexpr int read_only_server = 1290;
constexpr int incorrect_value = 1366;
constexpr int too_long = 1406;
constexpr int account_denied_without_password = 1698;
constexpr int read_only_transaction = 1792;
constexpr int password_to_be_changed = 1820;
constexpr int read_only_mode = 1836;
constexpr int connection_killed = 1927;
constexpr int account_locked = 4151;
constexpr int password_expired = 1862;
constexpr int connection_lost = 2006;
constexpr int server_lost = 2013;
constexpr int encryption_error = 2026;
constexpr int server_lost_extended = 2055;
constexpr int login_method_missing = 2059;
constexpr int connection_error = 5014;
}  // namespace code

/// The server reports the error of the operating system or of the storage engine in the text.
bool names_error(const QString& text, const QString& numbers)
{
    const QRegularExpression error(u"\\b(error|errno:|errcode:) (%1)\\b"_s.arg(numbers),
                                   QRegularExpression::CaseInsensitiveOption);
    return error.match(text).hasMatch();
}

/// The driver begins the text with its own version in brackets, then that of the server.
bool is_from_mariadb(const QString& text)
{
    return text.contains(u"[ma-") || text.contains(u"MariaDB", Qt::CaseInsensitive);
}

/// 28 means that no space is left. 122 means that the quota is used up, although the server describes the
/// number as an error of a storage engine.
bool names_full_disk_of_file(const QString& text)
{
    return names_error(text, u"28|122"_s);
}

/// 122 is an internal error of a storage engine. 135 means that a table cannot grow.
bool names_full_disk_of_storage(const QString& text)
{
    return names_error(text, u"28|135"_s);
}

/// After the driver has reported that the connection is lost, it reports nothing.
bool is_nothing(const QString& text)
{
    return text.isEmpty();
}

struct error_meaning {
    int number;
    failure_kind kind;
    /// True if the error has that meaning with this text. Null: it has the meaning with every text.
    bool (*applies)(const QString& text) = nullptr;
};

/// What an error of a statement means. All others are `store_other`.
constexpr std::array meanings{
    error_meaning{0, failure_kind::source_lost, is_nothing},
    error_meaning{code::node_not_ready, failure_kind::source_lost},
    error_meaning{code::server_shutdown, failure_kind::source_lost},
    error_meaning{code::connection_killed, failure_kind::source_lost},
    error_meaning{code::connection_lost, failure_kind::source_lost},
    error_meaning{code::server_lost, failure_kind::source_lost},
    error_meaning{code::server_lost_extended, failure_kind::source_lost},
    error_meaning{code::connection_error, failure_kind::source_lost},
    error_meaning{code::lock_wait_timeout, failure_kind::store_locked},
    error_meaning{code::database_denied, failure_kind::source_read_only},
    error_meaning{code::table_denied, failure_kind::source_read_only},
    error_meaning{code::column_denied, failure_kind::source_read_only},
    error_meaning{code::privilege_missing, failure_kind::source_read_only},
    error_meaning{code::read_only_server, failure_kind::source_read_only},
    error_meaning{code::read_only_transaction, failure_kind::source_read_only},
    error_meaning{code::read_only_mode, failure_kind::source_read_only},
    error_meaning{code::no_such_table, failure_kind::source_part},
    error_meaning{code::unknown_column, failure_kind::source_part},
    error_meaning{code::out_of_range, failure_kind::source_value},
    error_meaning{code::incorrect_value, failure_kind::source_value},
    error_meaning{code::too_long, failure_kind::source_value},
    error_meaning{code::password_to_be_changed, failure_kind::source_password},
    error_meaning{code::no_database_selected, failure_kind::source_database},
    error_meaning{code::disk_full, failure_kind::source_full},
    error_meaning{code::table_full, failure_kind::source_full},
    error_meaning{code::cannot_make_file, failure_kind::source_full, names_full_disk_of_file},
    error_meaning{code::error_on_write, failure_kind::source_full, names_full_disk_of_file},
    error_meaning{code::error_writing_file, failure_kind::source_full, names_full_disk_of_file},
    error_meaning{code::cannot_create_table, failure_kind::source_full, names_full_disk_of_storage},
    error_meaning{code::storage_error, failure_kind::source_full, names_full_disk_of_storage},
    error_meaning{code::error_during_commit, failure_kind::source_full, names_full_disk_of_storage},
};

}  // namespace

failure_kind kind_of_mariadb_opening(int number)
{
    switch (number) {
    case code::account_denied:
    case code::account_denied_without_password:
    case code::account_locked:
    case code::password_to_be_changed:
    case code::password_expired:
        return failure_kind::source_password;
    case code::host_blocked:
    case code::host_not_allowed:
        return failure_kind::source_host;
    case code::encryption_error:
    case code::login_method_missing:
    case code::login_method_too_old:
        return failure_kind::source_login;
    case code::too_many_connections:
    case code::too_many_connections_of_account:
    case code::limit_of_account:
        return failure_kind::source_busy;
    case code::database_denied:
    case code::unknown_database:
        return failure_kind::source_database;
    case code::connection_lost:
    case code::server_lost:
    case code::server_lost_extended:
    case code::connection_error:
        return failure_kind::source_silent;
    default:
        return failure_kind::source_stopped;
    }
}

std::optional<failure_kind> kind_of_unusable_server(int number, const QString& text)
{
    // A node of a cluster that has lost the other nodes accepts connections and refuses queries.
    if (number == code::node_not_ready)
        return failure_kind::source_stopped;
    const failure_kind kind = kind_of_mariadb_error(number, text);
    if (kind == failure_kind::source_lost)
        return failure_kind::source_silent;
    // The server has the function, so the error has another reason.
    return is_from_mariadb(text) ? std::optional(kind) : std::nullopt;
}

failure_kind kind_of_mariadb_error(int number, const QString& text)
{
    const auto found = std::find_if(meanings.begin(), meanings.end(), [&](const error_meaning& meaning) {
        return meaning.number == number && (meaning.applies == nullptr || meaning.applies(text));
    });
    return found == meanings.end() ? failure_kind::store_other : found->kind;
}

}  // namespace verdane
