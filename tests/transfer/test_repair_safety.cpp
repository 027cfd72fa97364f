#include <QTest>

#include "tests/support/refused_change.h"
#include "tests/transfer/checked_store.h"
#include "tests/transfer/killed_run.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// Removes the later holes from the index of the shots, which nothing else shows.
void lose_half_of_index(const QString& path)
{
    const reader store(path);
    const QString whole = store.text(u"select sql from sqlite_master where name = 'shots_by_hole'"_s);
    const auto declare = [&](const QString& sql) {
        store.write({u"pragma writable_schema = on"_s,
                     u"update sqlite_master set sql = '%1' where name = 'shots_by_hole'"_s.arg(sql)});
    };
    declare(whole + u" where hole < 9"_s);
    store.write(u"reindex shots_by_hole"_s);
    declare(whole);
}

/// Overwrites a page of the table of the shots. Returns the content of the file.
QByteArray damage_table(const QString& path)
{
    constexpr int page = 4096;
    const reader store(path);
    const int root = store.number(u"select rootpage from sqlite_master where name = 'Stat_rounds'"_s);
    store.text(u"pragma wal_checkpoint(truncate)"_s);
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || !file.seek(qint64(page) * (root - 1)) ||
        file.write(QByteArray(page, '\xaa')) != page)
        qFatal("cannot damage %s", qUtf8Printable(path));
    file.close();
    return content_of(path);
}

}  // namespace

/// `verdane-store check --repair` that fails, or finds a damaged file.
class test_repair_safety : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// The copies of a source are in the data folder of the user.
    void initTestCase() { qputenv("XDG_DATA_HOME", data_.path().toUtf8()); }

    void an_index_that_differs_from_its_table_is_rebuilt()
    {
        const copied_folder folder;
        lose_half_of_index(folder.diary);
        const QStringList before = all_rows(folder.diary);
        const reader store(folder.diary);
        QVERIFY(!store.damage().isEmpty());
        const QStringList arguments{u"check"_s, file_argument(folder.diary)};
        store_run found(arguments);
        QCOMPARE(found.run(), status(exit_status::problems));
        QVERIFY2(found.output().contains(
                     u"an index differs from its table (1 : shots_by_hole)\n    --repair repairs it\n"),
                 qUtf8Printable(found.output()));
        QVERIFY(!store.damage().isEmpty());
        store_run repair(arguments + QStringList{u"--repair"_s});
        QCOMPARE(repair.run(), status(exit_status::done));
        QCOMPARE(store.damage(), QString());
        QCOMPARE(all_rows(folder.diary), before);
    }

    void a_damaged_table_is_not_repaired()
    {
        const copied_folder folder;
        const QByteArray damaged = damage_table(folder.diary);
        store_run repair({u"check"_s, file_argument(folder.diary), u"--repair"_s});
        QCOMPARE(repair.run(), status(exit_status::failed));
        QCOMPARE(content_of(folder.diary), damaged);
        QCOMPARE(kept_copies(folder.folder.path()), QStringList());
    }

    void a_repair_that_fails_changes_no_row_also_if_an_index_is_missing()
    {
        const checked_store checked;
        checked.store.write({drop_index(), u"delete from cost"_s, u"update Stat_rounds set addpen = 7"_s,
                             refuse(u"update"_s, u"Stat_rounds"_s)});
        QCOMPARE(store_run(checked.arguments({u"--repair"_s})).run(), status(exit_status::failed));
        QCOMPARE(checked.store.number(u"select count(*) from cost"_s), 0);
        checked.store.write(refuse_no_more());
        QCOMPARE(store_run(checked.arguments({u"--repair"_s})).run(), status(exit_status::done));
        QCOMPARE(checked.store.number(u"select count(*) from cost"_s), rounds);
    }

    void a_copy_with_the_old_rows_is_made_before_a_repair()
    {
        const copied_folder folder;
        reader(folder.diary).write(u"update Stat_rounds set addpen = 7"_s);
        const QStringList before = all_rows(folder.diary);
        const QStringList arguments{u"check"_s, file_argument(folder.diary), u"--repair"_s};
        QCOMPARE(store_run(arguments).run(), status(exit_status::done));
        const QStringList copies = kept_copies(folder.folder.path());
        QCOMPARE(copies.size(), 1);
        QVERIFY2(copies[0].endsWith(u"-repair.db"), qUtf8Printable(copies[0]));
        QCOMPARE(all_rows(copies[0]), before);
        QCOMPARE(store_run(arguments).run(), status(exit_status::done));
        QCOMPARE(kept_copies(folder.folder.path()), copies);
    }

    void a_full_disk_changes_nothing_data()
    {
        QTest::addColumn<int>("bytes");
        for (const int bytes : {0, 50'000, 300'000})
            QTest::addRow("%d bytes", bytes) << bytes;
    }

    void a_full_disk_changes_nothing()
    {
        QFETCH(int, bytes);
        const copied_folder folder;
        reader(folder.diary).write(u"update Stat_rounds set addpen = 7"_s);
        const QStringList before = all_rows(folder.diary);
        store_run run({u"check"_s, file_argument(folder.diary), u"--repair"_s});
        run.limit_files(static_cast<unsigned long>(bytes));
        QCOMPARE(run.run(), status(exit_status::failed));
        QCOMPARE(all_rows(folder.diary), before);
        QCOMPARE(kept_copies(folder.folder.path()), QStringList());
    }

    void a_copy_that_was_not_completed_prevents_the_repair()
    {
        const copied_folder folder;
        reader(folder.diary).write(u"update Stat_rounds set addpen = 7"_s);
        const QStringList before = all_rows(folder.diary);
        const QStringList arguments{u"check"_s, file_argument(folder.diary), u"--repair"_s};
        QVERIFY(run_without_space_for(arguments, u"/store.db"_s, 8192).writes > 1);
        QCOMPARE(all_rows(folder.diary), before);
        QCOMPARE(kept_copies(folder.folder.path()), QStringList());
    }

private:
    QTemporaryDir data_;
};

QTEST_GUILESS_MAIN(test_repair_safety)
#include "test_repair_safety.moc"
