#include <QFile>
#include <QTemporaryDir>

#include <limits>
#include <memory>

#include "store/engines/registered_source.h"
#include "tests/server/open_pages.h"
#include "tests/server/stalling_proxy.h"
#include "tests/shell/program_run.h"
#include "tests/support/engine_of_tests.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const auto nothing = [] {};

/// The program's source through a proxy, for the processes that are started meanwhile. The proxy exists until
/// the end of the test, because the installer library of this process may keep the settings for a while.
class cut_source {
public:
    cut_source()
        : proxy_(folder_.filePath(u"s"_s), setting_of_source(u"Verdbase"_s, u"SOCKET"_s),
                 std::numeric_limits<int>::max())
    {
    }

    /// For the database of the program at this time.
    void register_it()
    {
        ini_before_ = qgetenv("ODBCINI");
        QString settings = u"[Verdbase]\nSOCKET="_s + folder_.filePath(u"s"_s) + u"\nDATABASE=" +
                           file_of(program_run::store_place()) + u'\n';
        for (const QString& key : {u"Driver"_s, u"UID"_s, u"PWD"_s})
            settings += key + u'=' + setting_of_source(u"Verdbase"_s, key) + u'\n';
        QFile file(folder_.filePath(u"odbc.ini"_s));
        const QByteArray content = settings.toUtf8();
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qUtf8Printable(file.fileName()));
        qputenv("ODBCINI", QFile::encodeName(file.fileName()));
    }
    void restore() { qputenv("ODBCINI", ini_before_); }
    stalling_proxy& proxy() { return proxy_; }

private:
    QByteArray ini_before_;
    QTemporaryDir folder_;
    stalling_proxy proxy_;
};

cut_source* source_of_test = nullptr;

/// The harm whose name is the number of messages that still reach the server. Each of them is executed, so
/// the last one may be the commit.
const store_harm& cut_after(const QString& messages)
{
    static store_harm harm;
    harm = {messages,
            failure_kind::source_lost,
            [] { source_of_test->register_it(); },
            [messages] { source_of_test->proxy().cut_after(messages.toInt()); },
            nothing,
            [] { source_of_test->restore(); },
            longest_failure_ms,
            true};
    return harm;
}

}  // namespace

/// The connection ends between two messages of one save.
class test_cut_connections : public QObject {
    Q_OBJECT

    std::unique_ptr<cut_source> source_;

private Q_SLOTS:
    void initTestCase()
    {
        source_ = std::make_unique<cut_source>();
        source_of_test = source_.get();
    }

    void both_tables_of_a_hole_are_saved_or_none_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<bool>("saved");
        QTest::newRow("1") << true << false;
        QTest::newRow("2") << false << false;
        QTest::newRow("3") << true << false;
        QTest::newRow("4") << false << true;
    }
    void both_tables_of_a_hole_are_saved_or_none()
    {
        QFETCH(bool, french);
        QFETCH(bool, saved);
        // Eleven figures of each of two holes, of both tables, and no shots.
        const QString both_holes = u"22222222222 33333333333 0"_s;
        open_page page = page_called(u"a hole is left"_s);
        page.with_next_step = saved ? both_holes : page.committed;
        const store_harm& harm = cut_after(QString::fromLatin1(QTest::currentDataTag()));
        const QStringList faults = faults_on_page(page, harm, french);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

int main(int argc, char** argv)
{
    return page_test_main<test_cut_connections>(argc, argv, cut_after);
}

#include "test_cut_connections.moc"
