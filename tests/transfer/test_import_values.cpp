#include <QFile>
#include <QTest>

#include <functional>
#include <vector>

#include "scoring/limits.h"
#include "store/schema.h"
#include "tests/support/reader.h"
#include "tests/transfer/exported_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

using edit = std::function<void(const exported_folder&)>;

/// An edit of exported files that makes them wrong.
struct wrong_edit {
    const char* name;
    edit change;
    /// The file that is reported, with its line, if it is a fault of one, and the reason.
    QString table;
    QString reason;
};

edit value(const QString& table, const QString& column, const QByteArray& text)
{
    return [=](const exported_folder& folder) { folder.set_value(table, 2, column, text); };
}

edit replacement(const QString& table, const QByteArray& content, int rows)
{
    return [=](const exported_folder& folder) {
        folder.write(table, content);
        folder.change_listed_rows(table, rows);
    };
}

/// Removes the last bytes of a file.
edit cut(const QString& table, qsizetype bytes)
{
    return [=](const exported_folder& folder) {
        folder.write(table, content_of(folder.file(table)).chopped(bytes));
    };
}

void remove_last_line(const exported_folder& folder)
{
    QByteArray content = content_of(folder.file(u"cost"_s)).chopped(1);
    content.truncate(content.lastIndexOf('\n') + 1);
    folder.write(u"cost"_s, content);
}

QByteArray first_round(const exported_folder& folder)
{
    return content_of(folder.file(u"games"_s)).split('\n').at(1);
}

void repeat_first_round(const exported_folder& folder)
{
    folder.write(u"games"_s, content_of(folder.file(u"games"_s)) + first_round(folder) + '\n');
    folder.change_listed_rows(u"games"_s, 1);
}

/// Adds rounds until there is one too many.
void add_rounds(const exported_folder& folder)
{
    constexpr int added = most_rounds + 1 - rounds_of_diary;
    QByteArray content = content_of(folder.file(u"games"_s));
    for (int round = 0; round < added; ++round)
        content +=
            "\"" + QByteArray::number(19000101000000 + round) + "\"" + first_round(folder).sliced(16) + '\n';
    folder.write(u"games"_s, content);
    folder.change_listed_rows(u"games"_s, added);
}

const std::vector<wrong_edit>& wrong_edits()
{
    const QString count = u", line 3: long_1: not a whole number from 0 to 32767"_s;
    const QString key = u", line 3: date: the key of a round has 14 digits"_s;
    static const std::vector<wrong_edit> all{
        {"beyond 16 bits", value(u"games"_s, u"long_1"_s, "99999"), u"games"_s, count},
        {"far beyond 16 bits", value(u"games"_s, u"long_1"_s, "1e300"), u"games"_s, count},
        {"negative count", value(u"games"_s, u"long_1"_s, "-7"), u"games"_s, count},
        {"fraction", value(u"games"_s, u"long_1"_s, "2.5"), u"games"_s, count},
        {"letters in quotes", value(u"games"_s, u"long_1"_s, "\"abc\""), u"games"_s,
         u", line 3: long_1: not a number"_s},
        {"infinite length", value(u"field_info"_s, u"yards_1"_s, "inf"), u"field_info"_s,
         u", line 3: yards_1: not a whole number from -32768 to 32767"_s},
        {"below 16 bits", value(u"field_info"_s, u"yards_1"_s, "-32769"), u"field_info"_s,
         u", line 3: yards_1: not a whole number from -32768 to 32767"_s},
        {"beyond 32 bits", value(u"cost"_s, u"fg"_s, "2147483648"), u"cost"_s,
         u", line 3: fg: not a whole number from -2147483648 to 2147483647"_s},
        {"neither yes nor no", value(u"Stat_rounds"_s, u"missed"_s, "2"), u"Stat_rounds"_s,
         u", line 3: missed: not a whole number from 0 to 1"_s},
        {"decimal comma",
         [](const exported_folder& folder) { folder.set_value(u"sticks"_s, 1, u"avg_1"_s, "\"201,5\""); },
         u"sticks"_s, u", line 2: avg_1: not a number"_s},
        {"infinity",
         [](const exported_folder& folder) { folder.set_value(u"sticks"_s, 1, u"avg_1"_s, "inf"); },
         u"sticks"_s, u", line 2: avg_1: not a number"_s},
        {"key as a number with exponent", value(u"games"_s, u"date"_s, "2.02504E+13"), u"games"_s, key},
        {"letters in a key", value(u"games2"_s, u"date"_s, "2025040108000x"), u"games2"_s, key},
        {"no key", value(u"Stat_rounds"_s, u"date"_s, ""), u"Stat_rounds"_s, key},
        {"a round twice", repeat_first_round, u"games"_s, u" is on an earlier line, too"_s},
        {"too many rounds", add_rounds, u"games"_s, u", line 368: a diary has 366 rounds at most"_s},
        {"no row of the settings", replacement(u"settings"_s, "language\n", -1), u"settings"_s,
         u": 0 rows instead of 1"_s},
        {"empty line after the settings", replacement(u"settings"_s, "language\n1\n\n", 1), u"settings"_s,
         u", line 3: 2 rows instead of 1"_s},
        {"end of the last line removed", cut(u"Stat_rounds"_s, 1), u"Stat_rounds"_s,
         u": the line has no end: the file is cut"_s},
        {"cut within a value", cut(u"Stat_rounds"_s, 2), u"Stat_rounds"_s,
         u": the line has no end: the file is cut"_s},
        {"last line removed", remove_last_line, u"tables"_s,
         u": 11 rows in the file cost.csv; if you added or removed rows, write their number here, otherwise the file is cut"_s},
        {"line of the list removed",
         [](const exported_folder& folder) { folder.replace(u"tables"_s, "\"cost\"", "\"costs\""); },
         u"tables"_s, u": table cost is missing"_s},
    };
    return all;
}

}  // namespace

/// `verdane-store import` of files that were exported and then edited.
class test_import_values : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_wrong_edit_is_reported_and_nothing_is_imported_data()
    {
        QTest::addColumn<int>("place");
        int place = 0;
        for (const wrong_edit& each : wrong_edits())
            QTest::newRow(each.name) << place++;
    }

    void a_wrong_edit_is_reported_and_nothing_is_imported()
    {
        QFETCH(int, place);
        const wrong_edit& wrong = wrong_edits().at(static_cast<std::size_t>(place));
        const exported_folder folder;
        QCOMPARE(folder.run_export(), status(exit_status::done));
        wrong.change(folder);
        store_run run({u"import"_s, folder.files, file_argument(folder.target)});
        QCOMPARE(run.run(), status(exit_status::bad_file));
        const QString errors = run.errors();
        QVERIFY2(errors.startsWith(folder.file(wrong.table)) &&
                     errors.endsWith(wrong.reason + u"\nNothing was changed.\n"),
                 qUtf8Printable(errors));
        QVERIFY(!QFile::exists(folder.target));
    }

    void every_value_of_the_diary_fits_into_its_column()
    {
        const exported_folder folder;
        QCOMPARE(folder.run_export(), status(exit_status::done));
        for (const table& each : schema())
            folder.replace(each.name, "\n", "\r\n");
        QCOMPARE(folder.run_import(), status(exit_status::done));
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
    }

    void a_file_that_was_not_edited_can_have_values_that_an_edit_cannot()
    {
        const exported_folder folder;
        reader(folder.diary).write(u"update games set long_1 = 99999 where rowid = 2"_s);
        QCOMPARE(folder.run_export(), status(exit_status::done));
        QCOMPARE(folder.run_import(), status(exit_status::done));
        QCOMPARE(all_rows(folder.target), all_rows(folder.diary));
        QVERIFY(QFile::remove(folder.target));
        folder.replace(u"games"_s, "\n", "\r\n");
        QCOMPARE(folder.run_import(), status(exit_status::bad_file));
    }

    void a_list_that_is_missing_is_reported()
    {
        const exported_folder folder;
        QCOMPARE(folder.run_export(), status(exit_status::done));
        QVERIFY(QFile::remove(folder.file(u"tables"_s)));
        store_run run({u"import"_s, folder.files, file_argument(folder.target)});
        QCOMPARE(run.run(), status(exit_status::bad_file));
        QVERIFY2(run.errors().startsWith(folder.file(u"tables"_s) + u": "), "another file");
    }
};

QTEST_GUILESS_MAIN(test_import_values)
#include "test_import_values.moc"
