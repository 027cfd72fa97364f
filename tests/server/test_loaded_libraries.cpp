#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

#include "shell/start_up.h"
#include "store/Connection1.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"
#include "tests/support/reader.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// Parts of the names of libraries that only a registered source needs: the plug-in of Qt, the driver manager
/// and the driver.
const QStringList libraries_of_sources{u"libqsqlodbc"_s, u"libodbc.so"_s, u"libmaodbc"_s};

/// Those of them that this process has loaded.
QStringList loaded_libraries()
{
    QFile maps(u"/proc/self/maps"_s);
    if (!maps.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qUtf8Printable(maps.fileName()));
    const QString text = QString::fromUtf8(maps.readAll());
    QStringList loaded;
    for (const QString& library : libraries_of_sources) {
        if (text.contains(library))
            loaded << library;
    }
    return loaded;
}

/// The child process: runs the program and prints the libraries that it has loaded at its end.
int run_and_report()
{
    int status = -1;
    play([&] { status = run_verdane(*qApp); }, [](hand& user) { quit(user); });
    std::printf("%s", qUtf8Printable(loaded_libraries().join(u' ')));
    return status;
}

/// The libraries that the program loads in that environment.
QString libraries_of_child(const QProcessEnvironment& environment)
{
    QProcess child;
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), {u"--start"_s});
    if (!child.waitForFinished(120000) || child.exitCode() != 0)
        qFatal("the program ended with %d", child.exitCode());
    return QString::fromUtf8(child.readAllStandardOutput());
}

}  // namespace

/// The libraries of ODBC, with and without a registered source.
class test_loaded_libraries : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void without_a_registered_source_no_library_of_sources_is_loaded()
    {
        const QTemporaryDir home;
        const QString file = home.filePath(u"Verdane/Verdbase.db"_s);
        Connection1().Open(store_location::file(file));
        reader(file).write(u"update settings set language = 2"_s);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_s, home.path());
        environment.insert(u"ODBCINI"_s, u"/dev/null"_s);
        environment.insert(u"ODBCSYSINI"_s, u"/dev/null"_s);
        QCOMPARE(libraries_of_child(environment), QString());
    }

    void with_a_registered_source_its_libraries_are_loaded()
    {
        const program_run run(2);
        QCOMPARE(libraries_of_child(QProcessEnvironment::systemEnvironment()),
                 libraries_of_sources.join(u' '));
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    if (QCoreApplication::arguments().value(1) == u"--start")
        return run_and_report();
    test_loaded_libraries test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_loaded_libraries.moc"
