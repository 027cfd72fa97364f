#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "base/failure_words.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using namespace verdane::testing;

namespace {

const QString plugin_of_files = u"libqsqlite.so"_s;
const QString plugin_of_sources = u"libqsqlodbc.so"_s;

/// A data source with a driver that does not exist, for the programs that this process starts.
class source_without_driver {
public:
    source_without_driver()
    {
        QFile file(folder_.filePath(u"odbc.ini"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write("[Verdbase]\nDriver=/nowhere/libnone.so\n") < 0)
            qFatal("cannot write %s", qUtf8Printable(file.fileName()));
        qputenv("ODBCINI", QFile::encodeName(file.fileName()));
    }
    ~source_without_driver() { qputenv("ODBCINI", ini_before_); }
    source_without_driver(const source_without_driver&) = delete;
    source_without_driver& operator=(const source_without_driver&) = delete;

private:
    QTemporaryDir folder_;
    const QByteArray ini_before_ = qgetenv("ODBCINI");
};

/// What `verdane-store` writes to its error output when it copies to the source with those plug-ins.
QString errors_with_plugins(const QStringList& plugins, bool french)
{
    const source_without_driver source;
    const copied_folder folder;
    const QTemporaryDir place;
    store_run run({u"copy"_s, file_argument(folder.diary), u"source:Verdbase"_s});
    run.set_language(french ? u"fr_FR.UTF-8"_s : u"en_GB.UTF-8"_s);
    run.limit_plugins(place.path(), plugins);
    if (run.run() != status(exit_status::failed))
        qFatal("another exit status");
    return run.errors();
}

}  // namespace

/// `verdane-store` without Qt's plug-in for ODBC, and without the driver of a source.
class test_missing_plugin : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_copy_to_a_source_that_cannot_be_opened_writes_only_the_words_and_the_reason_data()
    {
        QTest::addColumn<QStringList>("plugins");
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("reason");
        const QStringList files{plugin_of_files};
        const QStringList both{plugin_of_files, plugin_of_sources};
        const QString no_plugin = u"Verdbase: no plug-in QODBC"_s;
        const QString no_driver = u"Verdbase (/nowhere/libnone.so): "_s;
        QTest::newRow("no plug-in, French") << files << true << no_plugin;
        QTest::newRow("no plug-in, English") << files << false << no_plugin;
        QTest::newRow("no driver, French") << both << true << no_driver;
        QTest::newRow("no driver, English") << both << false << no_driver;
    }

    void a_copy_to_a_source_that_cannot_be_opened_writes_only_the_words_and_the_reason()
    {
        QFETCH(QStringList, plugins);
        QFETCH(bool, french);
        QFETCH(QString, reason);
        const QString errors = errors_with_plugins(plugins, french);
        const QString words = failure_words(failure_kind::source_driver).in(french);
        QVERIFY2(errors.startsWith(words + u'\n' + reason), qPrintable(errors));
        QCOMPARE(errors.count(u'\n'), 2);
    }
};

QTEST_GUILESS_MAIN(test_missing_plugin)
#include "test_missing_plugin.moc"
