#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "base/run_time_failure.h"
#include "store/Connection1.h"
#include "store/engines/registered_source.h"
#include "store/store_location.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

/// The registered sources of this process: those of the user and those of the computer.
class registration {
public:
    registration()
    {
        qputenv("ODBCINI", QFile::encodeName(of_user()));
        qputenv("ODBCSYSINI", QFile::encodeName(folder_.path()));
    }

    QString of_user() const { return folder_.filePath(u"user.ini"_s); }
    QString of_computer() const { return folder_.filePath(u"odbc.ini"_s); }

    static void write(const QString& path, const QByteArray& content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }

private:
    QTemporaryDir folder_;
};

}  // namespace

/// Which store the program opens.
class test_registered_source : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_source_is_registered_by_its_name_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("registered");
        QTest::newRow("nothing") << QByteArray() << false;
        QTest::newRow("settings") << QByteArray("[Verdbase]\nDriver=none\n") << true;
        QTest::newRow("name without settings") << QByteArray("[Verdbase]\n") << true;
        QTest::newRow("name without settings after another")
            << QByteArray("[Z]\nDriver=none\n[Verdbase]") << true;
        QTest::newRow("small letters and blanks") << QByteArray(" [ verdbase ]\n") << true;
        QTest::newRow("mark of UTF-8 before the name") << QByteArray("\xEF\xBB\xBF[Verdbase]\n") << true;
        QTest::newRow("another name") << QByteArray("[Verdbase2]\nDriver=none\n") << false;
        QTest::newRow("name in a setting") << QByteArray("[Z]\nDescription=[Verdbase]\n") << false;
    }
    void a_source_is_registered_by_its_name()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, registered);
        const store_location expected = registered ? store_location::source(u"Verdbase"_s)
                                                   : store_location::file(Connection1::default_path());
        const registration of_user;
        registration::write(of_user.of_user(), content);
        QCOMPARE(is_registered_source(u"Verdbase"_s), registered);
        QVERIFY(default_store() == expected);
        const registration of_computer;
        registration::write(of_computer.of_computer(), content);
        QVERIFY(default_store() == expected);
    }

    void a_registration_that_cannot_be_read_is_a_failure_data()
    {
        QTest::addColumn<bool>("of_user");
        QTest::addColumn<bool>("is_folder");
        QTest::newRow("folder in place of the file of the user") << true << true;
        QTest::newRow("file of the user that links to itself") << true << false;
        QTest::newRow("folder in place of the file of the computer") << false << true;
        QTest::newRow("file of the computer that links to itself") << false << false;
    }
    void a_registration_that_cannot_be_read_is_a_failure()
    {
        QFETCH(bool, of_user);
        QFETCH(bool, is_folder);
        const registration any;
        const QString path = of_user ? any.of_user() : any.of_computer();
        QVERIFY(is_folder ? QDir().mkdir(path) : QFile::link(path, path));
        try {
            default_store();
            QFAIL("a store was found");
        } catch (const run_time_failure& failure) {
            QCOMPARE(failure.kind(), failure_kind::source_driver);
            QVERIFY2(failure.details().startsWith(path + u": "), qPrintable(failure.details()));
            QVERIFY(failure.details().size() > path.size() + 2);
        }
    }

    void a_setting_is_read_from_the_file_of_the_user()
    {
        const registration both;
        registration::write(both.of_user(), "[Verdbase]\nDriver=of the user\n");
        registration::write(both.of_computer(), "[Verdbase]\nDriver=of the computer\n");
        QCOMPARE(setting_of_source(u"Verdbase"_s, u"Driver"_s), u"of the user"_s);
        QCOMPARE(setting_of_source(u"Verdbase"_s, u"Database"_s), QString());
    }
};

QTEST_GUILESS_MAIN(test_registered_source)
#include "test_registered_source.moc"
