#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include "tests/support/reader.h"
#include "tests/support/refused_change.h"
#include "tests/transfer/archived_folder.h"
#include "tests/transfer/killed_run.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// `verdane-store archive` that fails, or runs at the same time as others.
class test_archive_safety : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void a_full_disk_changes_nothing_data()
    {
        QTest::addColumn<int>("bytes");
        for (const int bytes : {0, 4096, 40'000, 100'000})
            QTest::addRow("%d bytes", bytes) << bytes;
    }

    void a_full_disk_changes_nothing()
    {
        QFETCH(int, bytes);
        const divided_rows original = archived_folder().rows();
        const archived_folder folder;
        store_run run(folder.arguments());
        run.limit_files(static_cast<unsigned long>(bytes));
        QCOMPARE(run.run(), status(exit_status::failed));
        QVERIFY(folder.rows() == original);
        QVERIFY(!QFile::exists(folder.target));
        QCOMPARE(folder.archive(), status(exit_status::done));
    }

    void rounds_that_cannot_be_removed_stay_and_the_run_can_be_repeated()
    {
        const divided_rows original = archived_folder().rows();
        const archived_folder folder;
        reader(folder.diary).write(refuse(u"delete"_s, u"cost"_s));
        QCOMPARE(folder.archive(), status(exit_status::failed));
        reader(folder.diary).write(refuse_no_more());
        QVERIFY(folder.rows() == original);
        QCOMPARE(folder.archive(), status(exit_status::done));
        QVERIFY(folder.is_archived(original));
    }

    void a_round_that_was_changed_after_a_failure_is_not_removed()
    {
        const archived_folder folder;
        reader(folder.diary).write(refuse(u"delete"_s, u"cost"_s));
        QCOMPARE(folder.archive(), status(exit_status::failed));
        reader(folder.diary).write({refuse_no_more(), u"update games set missed_1 = 3 where rowid = 2"_s});
        const QStringList before = all_rows(folder.diary);
        QCOMPARE(folder.archive(), status(exit_status::not_empty));
        QCOMPARE(all_rows(folder.diary), before);
        QVERIFY(QFile::remove(folder.target));
        QCOMPARE(folder.archive(), status(exit_status::done));
        QCOMPARE(reader(folder.target).number(u"select missed_1 from games where rowid = 2"_s), 3);
    }

    void a_full_disk_while_rounds_are_removed_leaves_all_of_them()
    {
        const divided_rows original = archived_folder().rows();
        const archived_folder folder;
        QVERIFY(run_without_space_for(folder.arguments(), folder.diary + u"-wal", 0).writes > 0);
        QVERIFY(folder.rows() == original);
        QVERIFY(rows_divided_at(folder.target, day_of_first_kept_round).before == original.before);
        QCOMPARE(folder.archive(), status(exit_status::done));
        QVERIFY(folder.is_archived(original));
    }

    void a_file_that_another_program_writes_meanwhile_is_not_replaced()
    {
        const divided_rows original = archived_folder().rows();
        const archived_folder folder;
        const auto write_file = [&folder] {
            QFile file(folder.target);
            if (!file.open(QIODevice::WriteOnly) || file.write("mine") != 4)
                qFatal("cannot write %s", qPrintable(folder.target));
        };
        QCOMPARE(run_with_step(folder.arguments(), file_use::name, folder.target, write_file),
                 status(exit_status::not_empty));
        QCOMPARE(content_of(folder.target), QByteArray("mine"));
        QVERIFY(folder.rows() == original);
        QCOMPARE(unfinished_in(QFileInfo(folder.target).path()), QStringList());
    }

    void a_second_run_to_the_same_file_is_refused()
    {
        const divided_rows original = archived_folder().rows();
        const archived_folder folder;
        const archived_folder second;
        std::optional<int> of_second;
        const QStringList arguments{u"archive"_s, file_argument(second.diary), day_of_first_kept_round,
                                    file_argument(folder.target)};
        QCOMPARE(run_with_step(folder.arguments(), file_use::name, folder.target,
                               [&] { of_second = store_run(arguments).run(); }),
                 status(exit_status::done));
        QCOMPARE(of_second, status(exit_status::in_use));
        QVERIFY(folder.is_archived(original));
        QVERIFY(second.rows() == original);
    }

    void a_row_that_is_written_when_the_lock_of_the_archive_is_released_is_not_lost()
    {
        const archived_folder folder;
        const QString row = u"select count(*) from cost where date = '20230102000000'"_s;
        const auto write_row = [&folder] {
            reader(folder.diary).write(u"insert into cost (date) values ('20230102000000')"_s);
        };
        // The row has the key of a round that is moved.
        reader(folder.diary)
            .write({u"update games set date = '20230102000000' where rowid = 2"_s,
                    u"update games2 set date = '20230102000000' where rowid = 2"_s});
        const int before = reader(folder.diary).number(row);
        QCOMPARE(run_with_step(folder.arguments(), file_use::remove, folder.target + u".lock", write_row),
                 status(exit_status::done));
        QCOMPARE(reader(folder.diary).number(row) + reader(folder.target).number(row), before + 1);
    }

    void a_link_next_to_the_new_file_is_not_followed()
    {
        const divided_rows original = archived_folder().rows();
        const archived_folder folder;
        QVERIFY(QDir(folder.folder.path()).mkdir(u"target"_s));
        QVERIFY(QFile::link(folder.diary, folder.target + u".unfinished"));
        QCOMPARE(folder.archive(), status(exit_status::done));
        QVERIFY(folder.is_archived(original));
    }

    void the_new_file_reaches_the_disk_before_it_gets_its_name()
    {
        const archived_folder folder;
        QCOMPARE(renames_before_content(folder.arguments()), QStringList());
    }
};

QTEST_GUILESS_MAIN(test_archive_safety)
#include "test_archive_safety.moc"
