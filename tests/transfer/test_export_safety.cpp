#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <sys/stat.h>

#include "store/schema.h"
#include "tests/support/reader.h"
#include "tests/transfer/exported_folder.h"
#include "tests/transfer/killed_run.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QStringList export_arguments(const exported_folder& folder)
{
    return {u"export"_s, file_argument(folder.diary), folder.files};
}

QStringList import_arguments(const exported_folder& folder)
{
    return {u"import"_s, folder.files, file_argument(folder.target)};
}

bool is_exported(const exported_folder& folder)
{
    return contents_of(folder.files).size() == schema().size() + 1;
}

}  // namespace

/// `verdane-store export` and `import` that fail, or run at the same time as others.
class test_export_safety : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void an_export_without_space_leaves_no_file_data() { sizes({0, 4096, 30'000}); }
    void an_export_without_space_leaves_no_file()
    {
        QFETCH(int, bytes);
        const exported_folder folder;
        store_run run(export_arguments(folder));
        run.limit_files(static_cast<unsigned long>(bytes));
        QCOMPARE(run.run(), status(exit_status::failed));
        QVERIFY(!QFile::exists(folder.files));
        QCOMPARE(unfinished_in(QFileInfo(folder.files).path()), QStringList());
        QCOMPARE(folder.run_export(), status(exit_status::done));
    }

    void an_import_without_space_leaves_no_store_data() { sizes({0, 4096, 40'000, 300'000}); }
    void an_import_without_space_leaves_no_store()
    {
        QFETCH(int, bytes);
        const exported_folder folder;
        QCOMPARE(folder.run_export(), status(exit_status::done));
        store_run run(import_arguments(folder));
        run.limit_files(static_cast<unsigned long>(bytes));
        QCOMPARE(run.run(), status(exit_status::failed));
        QVERIFY2(run.errors().contains(u"no room left on the disk"), "another failure");
        QVERIFY(!QFile::exists(folder.target));
        QCOMPARE(folder.run_import(), status(exit_status::done));
    }

    void rows_that_are_written_during_an_export_are_in_no_file_of_it()
    {
        const exported_folder whole;
        QCOMPARE(whole.run_export(), status(exit_status::done));
        const exported_folder folder;
        QCOMPARE(run_with_step(export_arguments(folder), file_use::open, u"/games.csv.part"_s,
                               [&] { reader(folder.diary).write(u"delete from cost"_s); }),
                 status(exit_status::done));
        QVERIFY(contents_of(folder.files) == contents_of(whole.files));
        QCOMPARE(reader(folder.diary).number(u"select count(*) from cost"_s), 0);
    }

    void an_empty_folder_keeps_its_permissions()
    {
        const exported_folder folder;
        QVERIFY(QDir().mkpath(folder.files));
        QCOMPARE(chmod(QFile::encodeName(folder.files).constData(), 0700), 0);
        QCOMPARE(folder.run_export(), status(exit_status::done));
        struct stat state {};
        QCOMPARE(stat(QFile::encodeName(folder.files).constData(), &state), 0);
        QCOMPARE(state.st_mode & 0777U, 0700U);
    }

    void the_current_folder_is_refused_because_it_would_be_replaced()
    {
        const exported_folder folder;
        QVERIFY(QDir().mkpath(folder.files));
        store_run run({u"export"_s, file_argument(folder.diary), u"."_s});
        run.set_folder(folder.files);
        QCOMPARE(run.run(), status(exit_status::usage));
        QCOMPARE(run.errors(), folder.files +
                                   u" is the current folder. Nothing was changed; give the name of a "
                                   u"new folder.\n"_s);
        QVERIFY(QDir(folder.files).isEmpty());
        store_run inner({u"export"_s, file_argument(folder.diary), u"new"_s});
        inner.set_folder(folder.files);
        QCOMPARE(inner.run(), status(exit_status::done));
    }

    void folders_of_the_user_next_to_the_export_are_kept()
    {
        const exported_folder folder;
        const QString own = folder.files + u".unfinished";
        QVERIFY(QDir().mkpath(own));
        QVERIFY(QFile::copy(folder.diary, own + u"/games.csv"));
        QCOMPARE(folder.run_export(), status(exit_status::done));
        QCOMPARE(content_of(own + u"/games.csv"), content_of(folder.diary));
    }

    void two_exports_to_one_folder_are_not_mixed()
    {
        const exported_folder folder;
        const exported_folder other;
        reader(other.diary).write(u"delete from games where rowid > 3"_s);
        std::optional<int> of_other;
        QCOMPARE(run_with_step(export_arguments(folder), file_use::name, u"/partners.csv"_s,
                               [&] {
                                   of_other =
                                       exported_folder::run_export(file_argument(other.diary), folder.files);
                               }),
                 status(exit_status::not_empty));
        QCOMPARE(of_other, status(exit_status::done));
        QCOMPARE(other.run_export(), status(exit_status::done));
        QVERIFY(contents_of(folder.files) == contents_of(other.files));
        QCOMPARE(unfinished_in(QFileInfo(folder.files).path()), QStringList());
    }

    void every_file_reaches_the_disk_before_it_gets_its_name()
    {
        const exported_folder folder;
        QCOMPARE(renames_before_content(export_arguments(folder)), QStringList());
        QVERIFY(is_exported(folder));
    }

private:
    static void sizes(const QList<int>& all)
    {
        QTest::addColumn<int>("bytes");
        for (const int bytes : all)
            QTest::addRow("%d bytes", bytes) << bytes;
    }
};

QTEST_GUILESS_MAIN(test_export_safety)
#include "test_export_safety.moc"
