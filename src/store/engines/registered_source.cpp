#include "store/engines/registered_source.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QLibrary>

#include <filesystem>
#include <system_error>

#include "base/run_time_failure.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

#ifdef Q_OS_WIN
#define VERDANE_ODBC_CALL __stdcall
#else
#define VERDANE_ODBC_CALL
#endif

/// `SQLGetPrivateProfileString` of the installer library: source, setting (null for the list of all), default
/// value, buffer, its size, name of the file. It returns the number of bytes.
using read_profile = int(VERDANE_ODBC_CALL*)(const char*, const char*, const char*, char*, int, const char*);

QFunctionPointer resolve_reader()
{
    constexpr auto* reader = "SQLGetPrivateProfileString";
#ifdef Q_OS_WIN
    return QLibrary(u"odbccp32"_s).resolve(reader);
#else
    // The version is that of the package at run time; the name without one belongs to the development files.
    return QLibrary(u"odbcinst"_s, 2).resolve(reader);
#endif
}

/// Null if the library is not installed, in which case no source can be opened.
read_profile profile_reader()
{
    static const auto reader = reinterpret_cast<read_profile>(resolve_reader());
    return reader;
}

QString profile(const QString& name, const char* setting)
{
    const read_profile read = profile_reader();
    if (read == nullptr)
        return {};
    constexpr int most_bytes = 4096;
    QByteArray value(most_bytes, '\0');
    read(name.toLocal8Bit().constData(), setting, "", value.data(), most_bytes, "odbc.ini");
    return QString::fromLocal8Bit(value.constData());
}

#ifdef Q_OS_WIN
bool is_named_in_files(const QString&)
{
    return false;
}
#else
bool is_missing(const QString& path)
{
    std::error_code error;
    return std::filesystem::status(QFile::encodeName(path).toStdString(), error).type() ==
           std::filesystem::file_type::not_found;
}

/// True if a line of the file is the name of a source between brackets, in any case. Fails with
/// `source_driver` if the file exists and cannot be read: it may name the source.
bool names_source(const QString& path, const QString& name)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (is_missing(path))
            return false;
        throw run_time_failure(failure_kind::source_driver, QString(path + u": " + file.errorString()));
    }
    while (!file.atEnd()) {
        const QString line = QString::fromLocal8Bit(file.readLine()).trimmed();
        const QString found = line.mid(1).section(u']', 0, 0).trimmed();
        if (line.startsWith(u'[') && found.compare(name, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

/// True if a source of that name is in the file of the user or in that of the computer, where the driver
/// manager looks for it.
bool is_named_in_files(const QString& name)
{
    const QString of_user = qEnvironmentVariable("ODBCINI", QDir::homePath() + u"/.odbc.ini");
    const QString of_computer = qEnvironmentVariable("ODBCSYSINI", u"/etc"_s) + u"/odbc.ini";
    return names_source(of_user, name) || names_source(of_computer, name);
}
#endif

}  // namespace

bool is_registered_source(const QString& name)
{
    return is_named_in_files(name) || !profile(name, nullptr).isEmpty();
}

QString setting_of_source(const QString& name, const QString& setting)
{
    return profile(name, setting.toLatin1().constData());
}

}  // namespace verdane
