#include "store/recovery/whole_files.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

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

/// Waits until the content of a file, or the names in a folder, have reached the disk.
void write_to_disk(const QString& path)
{
    const int opened = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    const bool is_written = opened >= 0 && fsync(opened) == 0;
    const std::error_code error =
        is_written ? std::error_code() : std::error_code(errno, std::generic_category());
    if (opened >= 0)
        close(opened);
    // Some file systems do not write out a folder by itself.
    if (error != std::errc::invalid_argument)
        check(error, path);
}

std::error_code last_error()
{
    return {errno, std::generic_category()};
}

void write_bytes(const QString& path, const QByteArray& bytes)
{
    constexpr mode_t for_everyone = 0666;
    const int opened = open(QFile::encodeName(path).constData(),
                            O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, for_everyone);
    std::error_code error = opened >= 0 ? std::error_code() : last_error();
    qsizetype written = 0;
    while (!error && written < bytes.size()) {
        const ssize_t part =
            write(opened, bytes.constData() + written, static_cast<std::size_t>(bytes.size() - written));
        if (part < 0)
            error = last_error();
        else
            written += part;
    }
    if (opened >= 0)
        close(opened);
    check(error, path);
}

/// The name of a file until it is complete.
QString part_of(const QString& path)
{
    return path + u".part";
}

/// Fails with `file_exists` if there is a file at `to`.
std::error_code link_and_unlink(const QByteArray& from, const QByteArray& to)
{
    if (link(from.constData(), to.constData()) != 0)
        return last_error();
    return unlink(from.constData()) == 0 ? std::error_code() : last_error();
}

/// The same. Some file systems support the first way, some the second one.
std::error_code rename_to_new_name(const QByteArray& from, const QByteArray& to)
{
#ifdef RENAME_NOREPLACE
    if (renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return {};
    if (errno != EINVAL && errno != ENOSYS)
        return last_error();
#endif
    return link_and_unlink(from, to);
}

void remove_quietly(const QString& path)
{
    std::error_code ignored;
    std::filesystem::remove(system_path(path), ignored);
}

}  // namespace

void write_whole_file(const QString& path, const QByteArray& bytes)
{
    try {
        write_bytes(part_of(path), bytes);
        replace_file(part_of(path), path);
    } catch (...) {
        remove_quietly(part_of(path));
        throw;
    }
}

void make_folder_of(const QString& path)
{
    std::error_code error;
    std::filesystem::create_directories(system_path(QFileInfo(path).absolutePath()), error);
    check(error, path);
}

QString make_unique_folder(const QString& start)
{
    QByteArray path = QFile::encodeName(start + u"XXXXXX");
    if (mkdtemp(path.data()) == nullptr)
        check(last_error(), start);
    return QFile::decodeName(path);
}

void copy_whole_file(const QString& from, const QString& to)
{
    make_folder_of(to);
    std::error_code error;
    const QString part = part_of(to);
    if (QFileInfo(part).isSymLink())
        throw run_time_failure(failure_kind::store_unreachable, QString(part + u": a link"));
    try {
        std::filesystem::copy_file(system_path(from), system_path(part),
                                   std::filesystem::copy_options::overwrite_existing, error);
        check(error, to);
        replace_file(part, to);
    } catch (...) {
        remove_quietly(part);
        throw;
    }
}

void replace_file(const QString& from, const QString& to)
{
    write_to_disk(from);
    std::error_code error;
    std::filesystem::rename(system_path(from), system_path(to), error);
    check(error, to);
    write_to_disk(QFileInfo(to).absolutePath());
}

bool rename_without_replacing(const QString& from, const QString& to)
{
    write_to_disk(from);
    const std::error_code error = rename_to_new_name(QFile::encodeName(from), QFile::encodeName(to));
    if (error == std::errc::file_exists)
        return false;
    check(error, to);
    write_to_disk(QFileInfo(to).absolutePath());
    return true;
}

}  // namespace verdane
