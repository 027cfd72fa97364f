#include <QTest>

#include <cerrno>
#include <limits>

#include "store/recovery/diary_copy.h"
#include "store/recovery/whole_files.h"

using namespace verdane;

/// The comparison of copied rows, and the meaning of errors of files.
class test_diary_copy : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rows_are_equal_if_their_values_are_data()
    {
        QTest::addColumn<QVariant>("left");
        QTest::addColumn<QVariant>("right");
        QTest::addColumn<bool>("equal");
        const double infinite = std::numeric_limits<double>::infinity();
        QTest::newRow("whole and real number") << QVariant(5) << QVariant(5.0) << true;
        QTest::newRow("last of 17 digits") << QVariant(0.1) << QVariant(0.1 + 1e-17) << true;
        QTest::newRow("other numbers") << QVariant(5) << QVariant(6) << false;
        QTest::newRow("infinity and a number") << QVariant(infinite) << QVariant(5.0) << false;
        QTest::newRow("a number and infinity") << QVariant(5.0) << QVariant(infinite) << false;
        QTest::newRow("both infinite") << QVariant(infinite) << QVariant(infinite) << true;
        QTest::newRow("infinities with other signs") << QVariant(infinite) << QVariant(-infinite) << false;
    }

    void rows_are_equal_if_their_values_are()
    {
        QFETCH(QVariant, left);
        QFETCH(QVariant, right);
        QFETCH(bool, equal);
        QCOMPARE(equal_rows({{left}}, {{right}}), equal);
    }

    void an_error_of_a_file_has_the_kind_that_names_its_cause_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<int>("kind");
        const auto row = [](const char* name, int error, failure_kind kind) {
            QTest::newRow(name) << error << static_cast<int>(kind);
        };
        row("no space", ENOSPC, failure_kind::store_full);
        row("quota", EDQUOT, failure_kind::store_full);
        row("limit", EFBIG, failure_kind::store_full);
        row("permission", EACCES, failure_kind::store_read_only);
        row("file that nobody may change", EPERM, failure_kind::store_read_only);
        row("read-only medium", EROFS, failure_kind::store_read_only);
        row("device", EIO, failure_kind::store_unreachable);
    }

    void an_error_of_a_file_has_the_kind_that_names_its_cause()
    {
        QFETCH(int, error);
        QFETCH(int, kind);
        QCOMPARE(static_cast<int>(kind_of_file_error({error, std::generic_category()})), kind);
    }
};

QTEST_GUILESS_MAIN(test_diary_copy)
#include "test_diary_copy.moc"
