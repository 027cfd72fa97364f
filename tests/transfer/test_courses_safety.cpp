#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include "scoring/words.h"
#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/transfer/course_csv.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The courses of the file: one for each tee.
constexpr int courses_in_file = static_cast<int>(tee_words.size());

/// The diary of a `copied_folder`, and a file with courses that it lacks.
struct imported_folder : copied_folder {
    imported_folder()
    {
        QStringList lines{course_heads()};
        for (const text_pair& tee : tee_words)
            lines << course_line_with({{u"tee"_s, tee.in(false)}});
        write_lines(file, lines);
    }

    QStringList arguments() const { return {u"courses"_s, file, file_argument(diary)}; }
    std::optional<int> import() const { return store_run(arguments()).run(); }
    int added() const
    {
        return reader(diary).number(
            u"select count(*) from vrd_fields join field_info on FIELD_CODE = code where name = 'Golf du Lac'"_s);
    }
    /// The rows of all other tables.
    QStringList other_rows() const
    {
        return all_rows(diary).filter(QRegularExpression(u"^(?!vrd_fields|field_info)"_s));
    }

    QString file = folder.filePath(u"cards.csv"_s);
};

}  // namespace

/// `verdane-store courses` that fails.
class test_courses_safety : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void courses_are_added_to_a_full_diary_whose_rounds_do_not_change()
    {
        const imported_folder folder;
        QVERIFY(QFile::remove(folder.diary));
        create_diary(folder.diary, rounds_of_full_diary, false);
        const QStringList before = folder.other_rows();
        QCOMPARE(folder.import(), status(exit_status::done));
        QCOMPARE(folder.added(), courses_in_file);
        QCOMPARE(folder.other_rows(), before);
    }

    void a_store_that_does_not_exist_is_refused_and_not_created()
    {
        const imported_folder folder;
        QVERIFY(QFile::remove(folder.diary));
        QCOMPARE(folder.import(), status(exit_status::no_diary));
        QVERIFY(!QFile::exists(folder.diary));
    }

    void a_full_disk_changes_nothing_data()
    {
        QTest::addColumn<int>("bytes");
        for (const int bytes : {0, 4096})
            QTest::addRow("%d bytes", bytes) << bytes;
    }

    void a_full_disk_changes_nothing()
    {
        QFETCH(int, bytes);
        const imported_folder folder;
        const QStringList before = all_rows(folder.diary);
        store_run run(folder.arguments());
        run.limit_files(static_cast<unsigned long>(bytes));
        QCOMPARE(run.run(), status(exit_status::failed));
        QCOMPARE(all_rows(folder.diary), before);
        QCOMPARE(folder.import(), status(exit_status::done));
    }
};

QTEST_GUILESS_MAIN(test_courses_safety)
#include "test_courses_safety.moc"
