#include "tests/transfer/killed_run.h"

#include <QCoreApplication>
#include <QFile>

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

#ifdef SYS_rename
constexpr std::array changing_calls{SYS_write,     SYS_pwrite64, SYS_rename,         SYS_renameat,
                                    SYS_unlink,    SYS_unlinkat, SYS_link,           SYS_linkat,
                                    SYS_ftruncate, SYS_sendfile, SYS_copy_file_range};
#else
constexpr std::array changing_calls{SYS_write,  SYS_pwrite64,  SYS_renameat, SYS_unlinkat,
                                    SYS_linkat, SYS_ftruncate, SYS_sendfile, SYS_copy_file_range};
#endif

bool changes_a_file(long call)
{
    return std::find(changing_calls.begin(), changing_calls.end(), call) != changing_calls.end();
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

using system_call = __ptrace_syscall_info;

/// The system call at which a process has stopped, if it begins and changes a file.
std::optional<system_call> change_at_stop(pid_t child)
{
    system_call call{};
    if (ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof call, &call) <= 0)
        return std::nullopt;
    if (call.op != PTRACE_SYSCALL_INFO_ENTRY || !changes_a_file(static_cast<long>(call.entry.nr)))
        return std::nullopt;
    return call;
}

/// Called before a change; the process continues if the result is true.
using change_step = std::function<bool(pid_t child, const system_call& call)>;

/// Runs the program until the step returns false, and kills it then.
void run_by_changes(const QStringList& arguments, const change_step& step)
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
            return;
        const bool at_call = WSTOPSIG(state) == (SIGTRAP | 0x80);
        signal = at_call || WSTOPSIG(state) == SIGTRAP ? 0 : WSTOPSIG(state);
        const auto change = at_call ? change_at_stop(child) : std::nullopt;
        if (change && !step(child, *change))
            break;
    }
    kill(child, SIGKILL);
    waitpid(child, &state, 0);
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

int run_without_space_for(const QStringList& arguments, const QString& ending, unsigned long bytes)
{
    int limited = 0;
    run_by_changes(arguments, [&](pid_t child, const system_call& call) {
        const QString file = QFile::symLinkTarget(u"/proc/%1/fd/%2"_s.arg(child).arg(call.entry.args[0]));
        const bool is_limited = file.endsWith(ending);
        limit_files_of(child, is_limited ? bytes : RLIM_INFINITY);
        limited += is_limited ? 1 : 0;
        return true;
    });
    return limited;
}

std::vector<int> some_writes(int all)
{
    constexpr int ends = 8;
    constexpr int between = 4;
    std::vector<int> numbers;
    const int step = std::max(1, (all - 2 * ends) / between);
    for (int number = 1; number <= all; ++number) {
        if (number <= ends || number > all - ends || (number - ends) % step == 0)
            numbers.push_back(number);
    }
    return numbers;
}

}  // namespace verdane::testing
