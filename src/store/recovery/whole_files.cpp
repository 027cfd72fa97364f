#include "store/recovery/whole_files.h"

#include <QDir>
#include <QFileInfo>

#include <filesystem>

#include "base/run_time_failure.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

std::filesystem::path system_path(const QString& path)
{
    return path.toStdU16String();
}

failure_kind kind_of(const std::error_code& error)
{
    if (error == std::errc::no_space_on_device || error == std::errc::file_too_large)
        return failure_kind::store_full;
    const bool is_refused =
        error == std::errc::permission_denied || error == std::errc::read_only_file_system;
    return is_refused ? failure_kind::store_read_only : failure_kind::store_unreachable;
}

void check(const std::error_code& error, const QString& path)
{
    if (error)
        throw run_time_failure(kind_of(error), path + u": "_s + QString::fromStdString(error.message()));
}

}  // namespace

void copy_whole_file(const QString& from, const QString& to)
{
    std::error_code error;
    std::filesystem::create_directories(system_path(QFileInfo(to).absolutePath()), error);
    check(error, to);
    const std::filesystem::path part = system_path(to + u".part");
    std::filesystem::copy_file(system_path(from), part, std::filesystem::copy_options::overwrite_existing,
                               error);
    if (error) {
        std::error_code ignored;
        std::filesystem::remove(part, ignored);
        check(error, to);
    }
    std::filesystem::rename(part, system_path(to), error);
    check(error, to);
}

void replace_file(const QString& from, const QString& to)
{
    std::error_code error;
    std::filesystem::rename(system_path(from), system_path(to), error);
    check(error, to);
}

}  // namespace verdane
