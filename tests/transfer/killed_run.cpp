#include "tests/transfer/killed_run.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <optional>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array changing_calls{
    SYS_write,           SYS_pwrite64,  SYS_writev,   SYS_pwritev,   SYS_pwritev2, SYS_sendfile,
    SYS_copy_file_range, SYS_ftruncate, SYS_truncate, SYS_fallocate, SYS_renameat, SYS_renameat2,
    SYS_unlinkat,        SYS_linkat,    SYS_mkdirat,  SYS_fchmod,    SYS_fchmodat,
#ifdef SYS_rename
    SYS_rename,          SYS_unlink,    SYS_link,     SYS_mkdir,     SYS_rmdir,    SYS_chmod,
#endif
};

using system_call = __ptrace_syscall_info;

long number_of(const system_call& call)
{
    return static_cast<long>(call.entry.nr);
}

/// The file that a process has opened under that number.
QString opened_file(pid_t process, quint64 number)
{
    return QFile::symLinkTarget(u"/proc/%1/fd/%2"_s.arg(process).arg(number));
}

bool creates_a_file(const system_call& call)
{
    return number_of(call) == SYS_openat && (call.entry.args[2] & O_CREAT) != 0;
}

/// Pipes and devices are no files: the sanitizers write to a pipe.
bool writes_to_a_pipe(pid_t child, const system_call& call)
{
    if (number_of(call) != SYS_write && number_of(call) != SYS_writev)
        return false;
    const QString file = opened_file(child, call.entry.args[0]);
    return !file.startsWith(u'/') || file.startsWith(u"/dev/") || file.contains(u"pipe:[");
}

bool changes_a_file(pid_t child, const system_call& call)
{
    const bool is_changing =
        std::find(changing_calls.begin(), changing_calls.end(), number_of(call)) != changing_calls.end();
    return creates_a_file(call) || (is_changing && !writes_to_a_pipe(child, call));
}

/// Does not return.
[[noreturn]] void become(std::vector<char*> arguments)
{
    const int nothing = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nothing, STDOUT_FILENO);
    dup2(nothing, STDERR_FILENO);
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    raise(SIGSTOP);
    execv(arguments.front(), arguments.data());
    std::abort();
}

pid_t start(const QStringList& arguments)
{
    QList<QByteArray> words{QFile::encodeName(QCoreApplication::applicationDirPath() + u"/verdane-store")};
    for (const QString& argument : arguments)
        words << argument.toUtf8();
    std::vector<char*> pointers;
    for (QByteArray& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0)
        become(pointers);
    return child;
}

/// The system call at which a process has stopped, if it begins.
std::optional<system_call> call_at_stop(pid_t child)
{
    system_call call{};
    if (ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof call, &call) <= 0 ||
        call.op != PTRACE_SYSCALL_INFO_ENTRY)
        return std::nullopt;
    return call;
}

/// Called before a system call; the process continues if the result is true.
using call_step = std::function<bool(pid_t child, const system_call& call)>;

/// Runs the program until the step returns false, and kills it then. Returns the state of the ended process.
int run_by_calls(const QStringList& arguments, const call_step& step)
{
    const pid_t child = start(arguments);
    int state = 0;
    waitpid(child, &state, 0);
    ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    int signal = 0;
    while (true) {
        ptrace(PTRACE_SYSCALL, child, nullptr, signal);
        waitpid(child, &state, 0);
        if (!WIFSTOPPED(state))
            return state;
        const bool at_call = WSTOPSIG(state) == (SIGTRAP | 0x80);
        signal = at_call || WSTOPSIG(state) == SIGTRAP ? 0 : WSTOPSIG(state);
        const auto call = at_call ? call_at_stop(child) : std::nullopt;
        if (call && !step(child, *call))
            break;
    }
    kill(child, SIGKILL);
    waitpid(child, &state, 0);
    return state;
}

/// The same with the calls that change a file only.
int run_by_changes(const QStringList& arguments, const call_step& step)
{
    return run_by_calls(arguments, [&](pid_t child, const system_call& call) {
        return !changes_a_file(child, call) || step(child, call);
    });
}

/// No value if a process did not end by itself.
std::optional<int> status_of(int state)
{
    return WIFEXITED(state) ? std::optional(WEXITSTATUS(state)) : std::nullopt;
}

/// A text in the memory of a process.
QString text_at(pid_t process, quint64 address)
{
    QFile memory(u"/proc/%1/mem"_s.arg(process));
    QByteArray text;
    char next = 0;
    if (!memory.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ||
        !memory.seek(static_cast<qint64>(address)))
        return {};
    while (memory.getChar(&next) && next != '\0')
        text += next;
    return QFile::decodeName(text);
}

/// What a program has written, and which of it has not reached the disk yet.
class written_files {
public:
    void see(pid_t child, const system_call& call)
    {
        const auto& arguments = call.entry.args;
        switch (static_cast<long>(call.entry.nr)) {
        case SYS_fsync:
        case SYS_fdatasync:
            files_.remove(opened_file(child, arguments[0]));
            see_written_folder(opened_file(child, arguments[0]));
            break;
        case SYS_copy_file_range:
            files_.insert(opened_file(child, arguments[2]));
            break;
        case SYS_write:
        case SYS_pwrite64:
        case SYS_sendfile:
            files_.insert(opened_file(child, arguments[0]));
            break;
        case SYS_mkdirat:
            see_new_folder(text_at(child, arguments[1]));
            break;
        case SYS_unlinkat:
            new_folders_.remove(text_at(child, arguments[1]));
            break;
#ifdef SYS_rename
        case SYS_mkdir:
            see_new_folder(text_at(child, arguments[0]));
            break;
        case SYS_rmdir:
            new_folders_.remove(text_at(child, arguments[0]));
            break;
        case SYS_rename:
            see_rename(text_at(child, arguments[0]), text_at(child, arguments[1]));
            break;
#endif
        case SYS_renameat:
        case SYS_renameat2:
            see_rename(text_at(child, arguments[1]), text_at(child, arguments[3]));
            break;
        default:
            break;
        }
    }
    QStringList faults() const
    {
        return faults_ + folders_.values() + new_folders_.values();
    }
    int renames() const
    {
        return renames_;
    }

private:
    void see_rename(const QString& from, const QString& to)
    {
        ++renames_;
        if (files_.contains(from))
            faults_ << from;
        folders_.insert(QFileInfo(to).absolutePath());
    }

    /// The name of a new folder has to reach the disk, too.
    void see_new_folder(const QString& path)
    {
        if (!QFileInfo::exists(path))
            new_folders_.insert(path);
    }

    void see_written_folder(const QString& folder)
    {
        folders_.remove(folder);
        erase_if(new_folders_, [&](const QString& path) { return QFileInfo(path).absolutePath() == folder; });
    }

    QSet<QString> files_;
    QSet<QString> folders_;
    /// Until their names have reached the disk, or they are removed.
    QSet<QString> new_folders_;
    QStringList faults_;
    int renames_ = 0;
};

/// The file that a call opens, removes, or gives a name.
QString named_file(pid_t child, const system_call& call)
{
    const auto& arguments = call.entry.args;
    switch (number_of(call)) {
    case SYS_openat:
    case SYS_unlinkat:
        return text_at(child, arguments[1]);
    case SYS_renameat:
    case SYS_renameat2:
    case SYS_linkat:
        return text_at(child, arguments[3]);
#ifdef SYS_rename
    case SYS_unlink:
        return text_at(child, arguments[0]);
    case SYS_rename:
    case SYS_link:
        return text_at(child, arguments[1]);
#endif
    default:
        return {};
    }
}

file_use use_in(const system_call& call)
{
    switch (number_of(call)) {
    case SYS_openat:
        return file_use::open;
#ifdef SYS_rename
    case SYS_unlink:
#endif
    case SYS_unlinkat:
        return file_use::remove;
    default:
        return file_use::name;
    }
}

void limit_files_of(pid_t process, rlim_t bytes)
{
    rlimit limit{};
    prlimit(process, RLIMIT_FSIZE, nullptr, &limit);
    limit.rlim_cur = std::min(bytes, limit.rlim_max);
    prlimit(process, RLIMIT_FSIZE, &limit, nullptr);
}

}  // namespace

int number_of_writes(const QStringList& arguments)
{
    int changes = 0;
    run_by_changes(arguments, [&](pid_t, const system_call&) { return ++changes > 0; });
    return changes;
}

void kill_before_write(const QStringList& arguments, int number)
{
    int changes = 0;
    run_by_changes(arguments, [&](pid_t, const system_call&) { return ++changes < number; });
}

std::optional<int> run_by_writes(const QStringList& arguments, const std::function<void()>& step)
{
    return status_of(run_by_changes(arguments, [&](pid_t, const system_call&) {
        step();
        return true;
    }));
}

limited_run run_without_space_for(const QStringList& arguments, const QString& ending, unsigned long bytes)
{
    int limited = 0;
    const int state = run_by_changes(arguments, [&](pid_t child, const system_call& call) {
        const bool is_limited = opened_file(child, call.entry.args[0]).endsWith(ending);
        limit_files_of(child, is_limited ? bytes : RLIM_INFINITY);
        limited += is_limited ? 1 : 0;
        return true;
    });
    return {limited, status_of(state)};
}

std::optional<int> run_with_step(const QStringList& arguments, file_use use, const QString& ending,
                                 const std::function<void()>& step)
{
    bool is_done = false;
    const int state = run_by_calls(arguments, [&](pid_t child, const system_call& call) {
        if (!is_done && use_in(call) == use && named_file(child, call).endsWith(ending)) {
            is_done = true;
            step();
        }
        return true;
    });
    return is_done ? status_of(state) : std::nullopt;
}

QStringList renames_before_content(const QStringList& arguments)
{
    written_files written;
    run_by_calls(arguments, [&](pid_t child, const system_call& call) {
        written.see(child, call);
        return true;
    });
    return written.renames() > 0 ? written.faults() : QStringList{u"nothing was renamed"_s};
}

}  // namespace verdane::testing
