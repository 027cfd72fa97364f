#include <QDir>
#include <QFile>
#include <QTest>

#include "store/new_store_name.h"
#include "tests/transfer/archived_folder.h"
#include "tests/transfer/exported_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The commands that make a store, with the file of a new one.
QList<QStringList> commands_for(const exported_folder& folder, const QString& target)
{
    const QString diary = file_argument(folder.diary);
    const QString to = file_argument(target);
    return {{u"archive"_s, diary, day_of_first_kept_round, to},
            {u"copy"_s, diary, to},
            {u"import"_s, folder.files, to},
            {u"restore"_s, diary, to},
            {u"sample"_s, to}};
}

}  // namespace

/// Names that the file of a new store may have.
class test_new_store_name : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_name_is_reserved_if_other_files_of_a_store_have_it_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("reserved");
        for (const QString& ending : {u"-journal"_s, u"-wal"_s, u"-shm"_s, u".lock"_s, u".unfinished"_s,
                                      u".restored"_s, u".source"_s, u".part"_s, u"-JOURNAL"_s, u".Lock"_s}) {
            QTest::newRow(qPrintable(ending)) << u"Verdbase.db"_s + ending << true;
            QTest::addRow("file %s.db", qPrintable(ending)) << u"Verdbase"_s + ending + u".db" << false;
        }
        QTest::newRow("copy") << u"copies/Verdbase-2026-01-01.db"_s << true;
        QTest::newRow("copy in capitals") << u"Copies/old.db"_s << true;
        QTest::newRow("below a copy") << u"copies/golf/old.db"_s << false;
        QTest::newRow("other folder") << u"my copies/old.db"_s << false;
        QTest::newRow("folder of a run") << u"old.db.unfinished-Ab12Cd/old.db"_s << true;
        QTest::newRow("linked folder") << u"linked/old.db"_s << true;
        QTest::newRow("link to a log") << u"link.db"_s << true;
        QTest::newRow("journal") << u"journal"_s << false;
    }

    void a_name_is_reserved_if_other_files_of_a_store_have_it()
    {
        QFETCH(QString, name);
        QFETCH(bool, reserved);
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"copies"_s));
        QVERIFY(QFile::link(folder.filePath(u"copies"_s), folder.filePath(u"linked"_s)));
        QVERIFY(QFile::link(folder.filePath(u"Verdbase.db-wal"_s), folder.filePath(u"link.db"_s)));
        QCOMPARE(is_reserved_name(folder.filePath(name)), reserved);
    }

    void no_command_makes_a_store_of_a_reserved_name_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : {u"Verdbase.db-journal"_s, u"copies/old.db"_s})
            QTest::newRow(qPrintable(name)) << name;
    }

    void no_command_makes_a_store_of_a_reserved_name()
    {
        QFETCH(QString, name);
        const exported_folder folder;
        QCOMPARE(folder.run_export(), status(exit_status::done));
        const QStringList before = all_rows(folder.diary);
        const QString target = folder.folder.filePath(name);
        for (const QStringList& arguments : commands_for(folder, target)) {
            store_run run(arguments);
            QCOMPARE(run.run(), status(exit_status::usage));
            QCOMPARE(run.errors(),
                     u"The name "_s + file_argument(target) +
                         u" is reserved for the files that belong to a diary and for its copies. Nothing was "
                         u"changed; choose another name or folder.\n");
            store_run french(arguments);
            french.set_language(u"fr_FR.UTF-8"_s);
            QCOMPARE(french.run(), status(exit_status::usage));
            QVERIFY(french.errors().startsWith(u"Le nom " + file_argument(target) + u" est réservé aux "));
            QVERIFY(!QFile::exists(target));
        }
        QCOMPARE(all_rows(folder.diary), before);
    }

    void a_path_that_the_engine_reads_as_no_file_is_made_absolute()
    {
        const auto store = store_of_argument(u"file::memory:"_s);
        QVERIFY(store.has_value());
        QCOMPARE(store->name, QDir::current().filePath(u":memory:"_s));
        QCOMPARE(store_of_argument(u"file:a.db"_s)->name, QDir::current().filePath(u"a.db"_s));
    }
};

QTEST_GUILESS_MAIN(test_new_store_name)
#include "test_new_store_name.moc"
