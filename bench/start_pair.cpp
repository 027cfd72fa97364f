#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <benchmark/benchmark.h>

#include <spawn.h>
#include <sys/wait.h>

#include <vector>

#include "bench/diaries.h"
#include "bench/pairs.h"
#include "bench/stopwatch.h"
#include "store/Connection1.h"
#include "store/engines/registered_source.h"

extern char** environ;

/// From the start of the process to a painted main window, and until the program is idle. The floor is an
/// empty window that opens the same file.
namespace verdane::bench {

using namespace Qt::StringLiterals;

namespace {

/// Starts a program in this one's folder and waits for its end. False when it failed.
bool run_to_its_end(const char* program, const QStringList& arguments)
{
    std::vector<QByteArray> texts{
        QFile::encodeName(QCoreApplication::applicationDirPath() + u'/' + QString::fromLatin1(program))};
    for (const QString& argument : arguments)
        texts.push_back(QFile::encodeName(argument));
    std::vector<char*> words;
    for (QByteArray& text : texts)
        words.push_back(text.data());
    words.push_back(nullptr);
    pid_t process = 0;
    int status = 0;
    return posix_spawn(&process, words.front(), nullptr, nullptr, words.data(), environ) == 0 &&
           waitpid(process, &status, 0) == process && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// Removes the locks and the logs that a killed program leaves next to its file. A source has a file if its
/// engine is SQLite; a server removes what is left by itself.
void tidy_up_after_end()
{
    const QString of_source = setting_of_source(default_store().name, u"Database"_s);
    for (const QString& ending : {u".lock"_s, u"-wal"_s, u"-shm"_s}) {
        QFile::remove(diaries_of_run().full() + ending);
        if (QFileInfo(of_source).isAbsolute())
            QFile::remove(of_source + ending);
    }
}

void time_start(benchmark::State& state, const char* program, const QStringList& arguments)
{
    const QByteArray home = QFile::encodeName(diaries_of_run().data_home());
    qputenv("XDG_DATA_HOME", home);
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", home);
    for (auto _ : state) {
        const stopwatch watch;
        if (!run_to_its_end(program, arguments))
            state.SkipWithError("the program did not show its window");
        state.SetIterationTime(watch.seconds());
        tidy_up_after_end();
    }
}

/// Hides the registered data source from the programs that are started during its lifetime.
class without_source {
public:
    without_source()
    {
        qputenv("ODBCINI", "/dev/null");
        qputenv("ODBCSYSINI", "/dev/null");
    }
    ~without_source()
    {
        qputenv("ODBCINI", of_user_);
        qputenv("ODBCSYSINI", of_system_);
    }
    without_source(const without_source&) = delete;
    without_source& operator=(const without_source&) = delete;

private:
    const QByteArray of_user_ = qgetenv("ODBCINI");
    const QByteArray of_system_ = qgetenv("ODBCSYSINI");
};

void start(benchmark::State& state)
{
    const without_source file_only;
    time_start(state, "timed_start_verdane", {u"shown"_s});
}

void start_on_source(benchmark::State& state)
{
    time_start(state, "timed_start_verdane", {u"shown"_s});
}

void start_settled(benchmark::State& state)
{
    const without_source file_only;
    time_start(state, "timed_start_verdane", {u"settled"_s});
}

void start_floor(benchmark::State& state)
{
    time_start(state, "timed_start_empty", {diaries_of_run().full()});
}

void start_of_one_word(benchmark::State& state)
{
    time_start(state, "timed_start_empty", {diaries_of_run().full(), u"Verdane"_s});
}

}  // namespace

void register_start()
{
    register_timed("start", start);
    if (diaries_of_run().on_source())
        register_timed("start" + on_source, start_on_source);
    register_timed("start_floor", start_floor);
    register_timed("start_settled", start_settled);
    register_timed("start_of_one_word", start_of_one_word);
}

}  // namespace verdane::bench
