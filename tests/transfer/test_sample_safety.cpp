#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "tests/support/reader.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

struct sample_folder {
    QStringList arguments() const { return {u"sample"_s, file_argument(path)}; }
    std::optional<int> write() const { return store_run(arguments()).run(); }
    int rows() const
    {
        return reader(path).number(
            u"select (select count(*) from games) + (select count(*) from vrd_fields)"_s);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"sample.db"_s);
};

/// 26 rounds and 3 courses.
constexpr int all_rows_of_sample = 29;

}  // namespace

/// `verdane-store sample` that fails.
class test_sample_safety : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_full_disk_leaves_no_store_data()
    {
        QTest::addColumn<int>("bytes");
        for (const int bytes : {0, 4096, 100'000, 200'000})
            QTest::addRow("%d bytes", bytes) << bytes;
    }

    void a_full_disk_leaves_no_store()
    {
        QFETCH(int, bytes);
        const sample_folder folder;
        store_run run(folder.arguments());
        run.limit_files(static_cast<unsigned long>(bytes));
        QCOMPARE(run.run(), status(exit_status::failed));
        QVERIFY2(run.errors().contains(u"no room left on the disk"), "another failure");
        QVERIFY(!QFile::exists(folder.path));
        QCOMPARE(folder.write(), status(exit_status::done));
        QCOMPARE(folder.rows(), all_rows_of_sample);
    }
};

QTEST_GUILESS_MAIN(test_sample_safety)
#include "test_sample_safety.moc"
