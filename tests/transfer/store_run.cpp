#include "tests/transfer/store_run.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>

#include <sys/resource.h>
#include <unistd.h>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int longest_run_ms = 60'000;

}  // namespace

store_run::store_run(const QStringList& arguments)
{
    process_.setProgram(QCoreApplication::applicationDirPath() + u"/verdane-store"_s);
    process_.setArguments(arguments);
    set_language(u"en_GB.UTF-8"_s);
}

void store_run::set_language(const QString& language)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, language);
    process_.setProcessEnvironment(environment);
}

void store_run::limit_files(unsigned long bytes)
{
    process_.setChildProcessModifier([bytes] {
        const rlimit limit{bytes, bytes};
        setrlimit(RLIMIT_FSIZE, &limit);
    });
}

void store_run::become_nobody(const QString& folder)
{
    if (geteuid() != 0)
        return;
    copy_program(folder);
    process_.setChildProcessModifier([] {
        constexpr int nobody = 65534;
        if (setgid(nobody) != 0 || setuid(nobody) != 0)
            _exit(1);
    });
}

void store_run::limit_plugins(const QString& folder, const QStringList& drivers)
{
    copy_program(folder);
    const QString wanted = u"/sqldrivers"_s;
    const QString plugins = folder + u"/plugins";
    QDir().mkpath(plugins + wanted);
    for (const QString& driver : drivers) {
        if (!QFile::link(QLibraryInfo::path(QLibraryInfo::PluginsPath) + wanted + u'/' + driver,
                         plugins + wanted + u'/' + driver))
            qFatal("no link to %s", qUtf8Printable(driver));
    }
    QFile settings(folder + u"/qt.conf");
    if (!settings.open(QIODevice::WriteOnly) || settings.write("[Paths]\nPlugins=plugins\n") < 0)
        qFatal("cannot write %s", qUtf8Printable(settings.fileName()));
}

void store_run::copy_program(const QString& folder)
{
    const QString copy = folder + u"/verdane-store";
    if (!QFile::copy(process_.program(), copy))
        qFatal("cannot write %s", qUtf8Printable(copy));
    process_.setProgram(copy);
}

void store_run::start()
{
    process_.start();
}

void store_run::close_output()
{
    process_.setChildProcessModifier([] {
        int ends[2] = {};
        if (pipe(ends) != 0 || close(ends[0]) != 0 || dup2(ends[1], STDOUT_FILENO) < 0)
            _exit(1);
    });
}

bool store_run::wait_for(const QString& printed)
{
    while (!output_.contains(printed)) {
        if (!process_.waitForReadyRead(longest_run_ms))
            return false;
        output_ += QString::fromUtf8(process_.readAllStandardOutput());
    }
    return true;
}

void store_run::kill()
{
    process_.kill();
    process_.waitForFinished(longest_run_ms);
}

std::optional<int> store_run::exit_status()
{
    const bool ended = process_.waitForFinished(longest_run_ms);
    output_ += QString::fromUtf8(process_.readAllStandardOutput());
    if (!ended || process_.exitStatus() != QProcess::NormalExit)
        return std::nullopt;
    return process_.exitCode();
}

std::optional<int> store_run::run()
{
    start();
    return exit_status();
}

}  // namespace verdane::testing
