#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

#include "store/Connection1.h"
#include "store/engines/odbc_link.h"
#include "store/engines/registered_source.h"
#include "tests/server/stalling_proxy.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int without_end = std::numeric_limits<int>::max();

/// The program's source with the socket of a proxy.
class proxied_source {
public:
    explicit proxied_source(int messages)
        : proxy_(folder_.filePath(u"s"_s), setting_of_source(u"Verdbase"_s, u"SOCKET"_s), messages)
    {
        QString settings = u"SOCKET="_s + folder_.filePath(u"s"_s) + u'\n';
        for (const QString& key : {u"Driver"_s, u"DATABASE"_s, u"UID"_s, u"PWD"_s})
            settings += key + u'=' + setting_of_source(u"Verdbase"_s, key) + u'\n';
        QFile file(folder_.filePath(u"odbc.ini"_s));
        const QByteArray content = QString(u'[' + name_ + u"]\n" + settings).toUtf8();
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qUtf8Printable(file.fileName()));
        qputenv("ODBCINI", QFile::encodeName(file.fileName()));
    }
    ~proxied_source() { qputenv("ODBCINI", ini_before_); }
    proxied_source(const proxied_source&) = delete;
    proxied_source& operator=(const proxied_source&) = delete;

    store_location place() const { return store_location::source(name_); }
    std::vector<int> messages() { return proxy_.messages_of_connections(); }

private:
    /// The installer library keeps the settings that it has read for a while, so each source has a new name.
    static QString next_name()
    {
        static int last = 0;
        return u"proxied_%1"_s.arg(++last);
    }

    const QString name_ = next_name();
    const QByteArray ini_before_ = qgetenv("ODBCINI");
    QTemporaryDir folder_;
    stalling_proxy proxy_;
};

}  // namespace

/// A server that accepts the connection and stops responding while the source is opened.
class test_server_stall : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Connection1 connection;
        connection.Open(new_program_store());
        connection.Close();
        proxied_source whole(without_end);
        connection.Open(whole.place());
        connection.Close();
        messages_ = whole.messages();
        QCOMPARE(messages_.size(), std::size_t(2));
        QVERIFY(messages_[0] > 20);
    }

    void opening_fails_within_its_time_out_if_the_server_stops_at_any_check()
    {
        // The last message of the connection closes it.
        for (const int passed : {1, 2, messages_[0] / 2, messages_[0] - 2}) {
            const qint64 took = time_of_refusal(passed);
            QVERIFY2(took < 2000 * source_opening_time_out_s, qPrintable(seen(passed, took)));
        }
    }

    void opening_fails_within_the_time_out_of_statements_after_the_checks()
    {
        // The driver cannot change the time-out of a connection, so the longer one applies from the first
        // message of the connection with which the program works.
        const int passed = messages_[0] + messages_[1] / 2;
        const qint64 took = time_of_refusal(passed);
        QVERIFY2(took > 1000 * (source_time_out_s - 1), qPrintable(seen(passed, took)));
        QVERIFY2(took < 1000 * (source_time_out_s + source_opening_time_out_s),
                 qPrintable(seen(passed, took)));
    }

private:
    static QString seen(int passed, qint64 took)
    {
        return u"after %1 messages, in %2 ms"_s.arg(passed).arg(took);
    }

    /// How long opening takes to fail, in milliseconds, if the server stops responding after those messages.
    static qint64 time_of_refusal(int passed)
    {
        proxied_source stalled(passed);
        Connection1 connection;
        QElapsedTimer time;
        time.start();
        const auto failed = failure_of([&] { connection.Open(stalled.place()); });
        const qint64 took = time.elapsed();
        if (failed != failure_kind::source_silent)
            qFatal("%s: another result", qPrintable(seen(passed, took)));
        return took;
    }

    /// How many messages each connection of a start sends.
    std::vector<int> messages_;
};

QTEST_GUILESS_MAIN(test_server_stall)
#include "test_server_stall.moc"
