#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "base/program.h"

using namespace verdane;
using namespace Qt::StringLiterals;

class test_program : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void without_a_program_in_the_path_the_command_is_the_quoted_path_next_to_the_running_one()
    {
        const QTemporaryDir empty;
        qputenv("PATH", QFile::encodeName(empty.path()));
        QCOMPARE(command_of_store_program(),
                 u"'" + QCoreApplication::applicationDirPath() + u"/verdane-store'");
    }

    void with_a_program_in_the_path_the_command_is_its_name()
    {
        const QTemporaryDir folder;
        QFile program(folder.filePath(u"verdane-store"_s));
        QVERIFY(program.open(QFile::WriteOnly));
        QVERIFY(program.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        qputenv("PATH", QFile::encodeName(folder.path()));
        QCOMPARE(command_of_store_program(), u"verdane-store"_s);
    }

    void a_quoted_text_is_one_word_of_a_shell_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("quoted");
        QTest::newRow("blank and dollar") << u"a $b"_s << u"'a $b'"_s;
        QTest::newRow("apostrophe") << u"l'été"_s << uR"('l'\''été')"_s;
        QTest::newRow("empty") << u""_s << u"''"_s;
    }
    void a_quoted_text_is_one_word_of_a_shell()
    {
        QFETCH(QString, text);
        QFETCH(QString, quoted);
        QCOMPARE(in_shell_quotes(text), quoted);
    }
};

QTEST_GUILESS_MAIN(test_program)
#include "test_program.moc"
