#include "store/engines/odbc_link.h"

#include <QSqlDatabase>
#include <QSqlError>

#include "store/engines/mariadb_errors.h"
#include "store/engines/registered_source.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int cannot_open_file = 14;

failure_kind kind_of_opening(const QSqlError& error)
{
    switch (native_code(error)) {
    case 0:
        // An error of the driver manager: the source is registered, and its driver cannot be loaded.
        return failure_kind::source_driver;
    case cannot_open_file:
        return failure_kind::store_unreachable;
    default:
        return kind_of_mariadb_opening(native_code(error));
    }
}

/// Settings of the connection, which override those of the source. Settings unknown to a driver have no
/// effect.
QString settings_of_link(int time_out_s)
{
    // OPTION=2: an update counts the rows that match, even if no value changes. BigInt: without it, the
    // driver of SQLite cuts whole numbers to 32 bits. Timeout: for that many milliseconds the driver of
    // SQLite repeats a statement whose own wait for a lock has ended; by default for 100 s.
    return u";OPTION=2;BigInt=1;Timeout=1;AUTO_RECONNECT=0;CHARSET=utf8mb4"
           u";CONN_TIMEOUT=%1;READ_TIMEOUT=%2;WRITE_TIMEOUT=%2"_s.arg(source_opening_time_out_s)
               .arg(time_out_s);
}

}  // namespace

void open_link(const QString& connection, const QString& source, int time_out_s)
{
    if (!is_registered_source(source))
        throw run_time_failure(failure_kind::source_unknown, source);
    if (!QSqlDatabase::isDriverAvailable(u"QODBC"_s))
        throw run_time_failure(failure_kind::source_driver, QString(source + u": no plug-in QODBC"));
    QSqlError error;
    {
        QSqlDatabase link = QSqlDatabase::addDatabase(u"QODBC"_s, connection);
        link.setDatabaseName(source + settings_of_link(time_out_s));
        if (link.open())
            return;
        error = link.lastError();
    }
    QSqlDatabase::removeDatabase(connection);
    const QString driver = setting_of_source(source, u"Driver"_s);
    throw run_time_failure(kind_of_opening(error), u"%1 (%2): %3 (%4)"_s.arg(source, driver, text_of(error),
                                                                             error.nativeErrorCode()));
}

int native_code(const QSqlError& error)
{
    return error.nativeErrorCode().toInt();
}

QString text_of(const QSqlError& error)
{
    return error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
}

}  // namespace verdane
