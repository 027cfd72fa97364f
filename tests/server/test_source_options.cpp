#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include "store/engines/registered_source.h"
#include "store/Recordset.h"
#include "tests/server/foreign_source.h"
#include "tests/server/own_server.h"
#include "tests/support/failures.h"
#include "tests/support/outside_connection.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A source of the database of another one, with a further option of the driver.
class source_with_option {
public:
    source_with_option(const store_location& same, const QString& option)
    {
        QString settings;
        for (const QString& key : {u"Driver"_s, u"SOCKET"_s, u"DATABASE"_s, u"UID"_s, u"PWD"_s})
            settings += key + u'=' + setting_of_source(same.name, key) + u'\n';
        QFile file(folder_.filePath(u"odbc.ini"_s));
        const QByteArray content = QString(u'[' + name_ + u"]\n" + settings + option + u'\n').toUtf8();
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qUtf8Printable(file.fileName()));
        qputenv("ODBCINI", QFile::encodeName(file.fileName()));
    }
    ~source_with_option() { qputenv("ODBCINI", ini_before_); }
    source_with_option(const source_with_option&) = delete;
    source_with_option& operator=(const source_with_option&) = delete;

    store_location place() const { return store_location::source(name_); }

private:
    /// The installer library keeps the settings that it has read for a while, so each source has a new name.
    static QString next_name()
    {
        static int last = 0;
        return u"with_option_%1"_s.arg(++last);
    }

    const QString name_ = next_name();
    const QByteArray ini_before_ = qgetenv("ODBCINI");
    QTemporaryDir folder_;
};

/// Ends the connection of the program, which is the holder of its lock, as an administrator does.
void end_connection(const QString& database)
{
    const outside_connection server(store_location::source(administrator_source()));
    QSqlQuery query =
        server.run_unchanged(u"select is_used_lock(concat('verdane ', md5('%1')))"_s.arg(database));
    server.run_unchanged(u"kill "_s + all_rows(query)[0][0].toString());
}

}  // namespace

/// Options of the driver in the registration of a source.
class test_source_options : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void an_option_of_the_source_loses_no_save_and_opens_no_lost_connection_again_data()
    {
        QTest::addColumn<QString>("option");
        for (const char* option :
             {"AUTO_RECONNECT=1", "INITSTMT=SET autocommit=0", "INITSTMT=SET sql_mode='ANSI'",
              "INITSTMT=SET completion_type='CHAIN'", "NO_CACHE=1", "FORWARDONLY=1", "NO_SSPS=1", "OPTION=0",
              "OPTION=4194304", "CHARSET=latin1"})
            QTest::newRow(option) << QString::fromLatin1(option);
    }
    void an_option_of_the_source_loses_no_save_and_opens_no_lost_connection_again()
    {
        QFETCH(QString, option);
        foreign_source direct;
        direct.open();
        direct.connection.Close();
        const source_with_option registered(direct.place, option);
        Connection1 program;
        program.Open(registered.place());
        Recordset partners(program, partners_settings(lock_type::batch_optimistic));
        partners.Open();
        add_partner(partners, u"a"_s, 1);
        add_partner(partners, u"é\\"_s, 2);
        partners.UpdateBatch();
        partners.MoveFirst();
        partners.Fields(u"TEL").set(u"7"_s);
        partners.UpdateBatch();
        // A change of no value matches its row, too.
        program.Execute(u"update partners set code = code"_s);
        const QString saved = u"a:1:7 é\\:2:null"_s;
        QCOMPARE(stored_partners(direct), saved);

        end_connection(direct.database());
        for (int attempt = 0; attempt < 2; ++attempt)
            QVERIFY(failure_of([&] { program.Execute(u"update partners set code = 9"_s); }) ==
                    failure_kind::source_lost);
        QCOMPARE(stored_partners(direct), saved);
    }
};

QTEST_GUILESS_MAIN(test_source_options)
#include "test_source_options.moc"
