#include "tests/transfer/killed_run.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/ptrace.h>
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

/// Whether the system call at which a process has stopped begins and changes a file.
bool is_at_change(pid_t child)
{
    __ptrace_syscall_info call{};
    if (ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof call, &call) <= 0)
        return false;
    return call.op == PTRACE_SYSCALL_INFO_ENTRY && changes_a_file(static_cast<long>(call.entry.nr));
}

/// Runs the program, and kills it before the change with that number. Returns the number of changes.
int run_until(const QStringList& arguments, int last)
{
    const pid_t child = start(arguments);
    int state = 0;
    waitpid(child, &state, 0);
    ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    int signal = 0;
    int changes = 0;
    while (true) {
        ptrace(PTRACE_SYSCALL, child, nullptr, signal);
        waitpid(child, &state, 0);
        if (!WIFSTOPPED(state))
            return changes;
        const bool at_call = WSTOPSIG(state) == (SIGTRAP | 0x80);
        signal = at_call || WSTOPSIG(state) == SIGTRAP ? 0 : WSTOPSIG(state);
        changes += at_call && is_at_change(child) ? 1 : 0;
        if (changes == last)
            break;
    }
    kill(child, SIGKILL);
    waitpid(child, &state, 0);
    return changes;
}

}  // namespace

int number_of_writes(const QStringList& arguments)
{
    return run_until(arguments, -1);
}

void kill_before_write(const QStringList& arguments, int number)
{
    run_until(arguments, number);
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
