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

QString described(const std::error_code& error, const QString& path)
{
    return path + u": "_s + QString::fromStdString(error.message());
}

void check(const std::error_code& error, const QString& path)
{
    if (error)
        throw run_time_failure(kind_of_file_error(error), described(error, path));
}

std::error_code last_error()
{
    return {errno, std::generic_category()};
}

/// Waits until the content of a file, or the names in a folder, have reached the disk.
std::error_code error_of_writing_out(const QString& path)
{
    const int opened = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    const bool is_written = opened >= 0 && fsync(opened) == 0;
    const std::error_code error = is_written ? std::error_code() : last_error();
    if (opened >= 0)
        close(opened);
    // Some file systems do not write out a folder by itself.
    return error == std::errc::invalid_argument ? std::error_code() : error;
}

void write_to_disk(const QString& path)
{
    check(error_of_writing_out(path), path);
}

/// Called after a file of the folder was renamed or removed. Fails with a kind whose text does not say that
/// nothing was changed.
void write_changed_folder(const QString& folder)
{
    const std::error_code error = error_of_writing_out(folder);
    if (error)
        throw run_time_failure(kind_of_file_error(error) == failure_kind::store_full
                                   ? failure_kind::store_full
                                   : failure_kind::store_other,
                               described(error, folder));
}

/// The content has reached the disk when the file is closed.
std::error_code error_of_closing(int opened, std::error_code error)
{
    if (!error && fsync(opened) != 0)
        error = last_error();
    if (close(opened) != 0 && !error)
        error = last_error();
    return error;
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
        error = error_of_closing(opened, error);
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

failure_kind kind_of_file_error(const std::error_code& error)
{
    const bool is_quota = error == std::error_code(EDQUOT, std::generic_category());
    if (is_quota || error == std::errc::no_space_on_device || error == std::errc::file_too_large)
        return failure_kind::store_full;
    const bool is_refused = error == std::errc::permission_denied ||
                            error == std::errc::operation_not_permitted ||
                            error == std::errc::read_only_file_system;
    return is_refused ? failure_kind::store_read_only : failure_kind::store_unreachable;
}

void make_folder_of(const QString& path)
{
    make_folder(QFileInfo(path).absolutePath());
}

void make_folder(const QString& folder)
{
    QStringList missing;
    for (QString each = folder; !QFileInfo::exists(each); each = QFileInfo(each).absolutePath())
        missing.prepend(each);
    std::error_code error;
    std::filesystem::create_directories(system_path(folder), error);
    check(error, folder);
    for (const QString& made : missing)
        write_to_disk(QFileInfo(made).absolutePath());
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
    write_changed_folder(QFileInfo(to).absolutePath());
}

void remove_files(const QStringList& paths)
{
    bool is_changed = false;
    for (const QString& path : paths) {
        std::error_code error;
        is_changed = std::filesystem::remove(system_path(path), error) || is_changed;
        check(error, path);
    }
    if (is_changed)
        write_changed_folder(QFileInfo(paths.first()).absolutePath());
}

void copy_mode(const QString& from, const QString& to)
{
    std::error_code error;
    const auto state = std::filesystem::status(system_path(from), error);
    if (!error)
        std::filesystem::permissions(system_path(to), state.permissions(), error);
    check(error, to);
}

bool rename_without_replacing(const QString& from, const QString& to)
{
    write_to_disk(from);
    const std::error_code error = rename_to_new_name(QFile::encodeName(from), QFile::encodeName(to));
    if (error == std::errc::file_exists)
        return false;
    check(error, to);
    write_changed_folder(QFileInfo(to).absolutePath());
    return true;
}

}  // namespace verdane
