#include <QFile>
#include <QTest>

#include "store/Connection1.h"
#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/transfer/exported_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// `verdane-store import` of files that are wrong.
class test_import_faults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_wrong_line_is_reported_and_nothing_is_imported_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QByteArray>("old_text");
        QTest::addColumn<QByteArray>("new_text");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("reason");
        const QByteArray head = "NAME,SURNAME,AD1,AD2,TEL,MAIL,code\n";
        const QString not_head = u"the first line is not that of the columns of table partners"_s;
        QTest::newRow("no number") << u"partners"_s << head << head + "\"a\",\"b\",,,,,x\n"
                                   << 2 << u"code: not a number"_s;
        QTest::newRow("half a number") << u"partners"_s << head << head + "\"a\",\"b\",,,,,1x\n"
                                       << 2 << u"code: not a number"_s;
        QTest::newRow("too few values") << u"partners"_s << head << head + "\"a\n\",\"b\"\n"
                                        << 2 << u"2 values instead of 7"_s;
        QTest::newRow("after lines in quotes")
            << u"partners"_s << head << head + "\"a\n\n\",\"b\",,,,,1\n\"a\",\"b\",,,,,1,\n"
            << 5 << u"8 values instead of 7"_s;
        QTest::newRow("open quote") << u"partners"_s << head << head + "\"a,b,,,,,1\n"
                                    << 2 << u"a quotation mark is not closed"_s;
        QTest::newRow("text after a quote")
            << u"partners"_s << head << head + "\"a\"b,,,,,,1\n"
            << 2 << u"text between the closing quotation mark and the comma"_s;
        QTest::newRow("quote in a value")
            << u"partners"_s << head << head + "a\"b,,,,,,1\n"
            << 2 << u"a quotation mark within a value that does not begin with one"_s;
        QTest::newRow("other column")
            << u"partners"_s << QByteArray("AD1") << QByteArray("AD7") << 1 << not_head;
        QTest::newRow("columns exchanged")
            << u"partners"_s << QByteArray("NAME,SURNAME") << QByteArray("SURNAME,NAME") << 1 << not_head;
        QTest::newRow("other encoding") << u"partners"_s << head << head + "\xe9,,,,,,1\n"
                                        << 2 << u"the text is not in UTF-8"_s;
        QTest::newRow("letter before a number")
            << u"settings"_s << QByteArray("language\n") << QByteArray("language\na") << 2
            << u"language: not a number"_s;
    }

    void a_wrong_line_is_reported_and_nothing_is_imported()
    {
        QFETCH(QString, table);
        QFETCH(QByteArray, old_text);
        QFETCH(QByteArray, new_text);
        QFETCH(int, line);
        QFETCH(QString, reason);
        const exported_folder folder;
        QCOMPARE(folder.run_export(), status(exit_status::done));
        folder.replace(table, old_text, new_text);
        store_run run({u"import"_s, folder.files, file_argument(folder.target)});
        QCOMPARE(run.run(), status(exit_status::bad_file));
        QCOMPARE(run.errors(), folder.file(table) + u", line "_s + QString::number(line) + u": " + reason +
                                   u"\nNothing was changed.\n");
        QVERIFY(!QFile::exists(folder.target));
    }

    void every_wrong_file_is_reported_in_the_language_of_the_user()
    {
        const exported_folder folder;
        QCOMPARE(folder.run_export(), status(exit_status::done));
        QVERIFY(QFile::remove(folder.file(u"cost"_s)));
        folder.replace(u"partners"_s, "code\n", "code\n\n1,2\n,,,,,,y\n");
        store_run run({u"import"_s, folder.files, file_argument(folder.target)});
        run.set_language(u"fr_FR.UTF-8"_s);
        QCOMPARE(run.run(), status(exit_status::bad_file));
        const QString errors = run.errors();
        QVERIFY2(errors.startsWith(folder.file(u"cost"_s) + u" : "), qUtf8Printable(errors));
        QVERIFY2(errors.endsWith(folder.file(u"partners"_s) + u", ligne 3 : 2 valeurs au lieu de 7\n"_s +
                                 folder.file(u"partners"_s) +
                                 u", ligne 4 : code : ce n'est pas un nombre\nRien n'a été modifié.\n"),
                 qUtf8Printable(errors));
        QVERIFY(!QFile::exists(folder.target));
    }

    void values_that_a_spreadsheet_has_written_without_quotes_are_read()
    {
        const exported_folder folder;
        QCOMPARE(folder.run_export(), status(exit_status::done));
        folder.replace(u"partners"_s, "code\n", "code\r\nMorin,Zoé, ,12,,\"\",\"7\"\r\n");
        folder.change_listed_rows(u"partners"_s, 1);
        QCOMPARE(folder.run_import(), status(exit_status::done));
        QVERIFY2(all_rows(folder.target).contains(u"partners|Morin|Zoé| |12|null||7"_s), "another row");
    }

    void a_file_that_was_changed_after_the_export_is_reported_and_imported_data()
    {
        QTest::addColumn<bool>("of_another_export");
        QTest::newRow("a digit") << false;
        QTest::newRow("a file of another export") << true;
    }

    void a_file_that_was_changed_after_the_export_is_reported_and_imported()
    {
        QFETCH(bool, of_another_export);
        const exported_folder folder;
        QCOMPARE(folder.run_export(), status(exit_status::done));
        store_run unchanged(
            {u"import"_s, folder.files, file_argument(folder.folder.filePath(u"other.db"_s))});
        QCOMPARE(unchanged.run(), status(exit_status::done));
        QCOMPARE(unchanged.errors(), QString());
        if (of_another_export) {
            const exported_folder other;
            reader(other.diary).write(u"update games set missed_1 = 3"_s);
            QCOMPARE(other.run_export(), status(exit_status::done));
            folder.write(u"games"_s, content_of(other.file(u"games"_s)));
        } else {
            folder.set_value(u"games"_s, 1, u"missed_1"_s, "3");
        }
        store_run run({u"import"_s, folder.files, file_argument(folder.target)});
        QCOMPARE(run.run(), status(exit_status::done));
        QCOMPARE(run.errors(), u"games.csv was changed after the export.\n"_s);
        QCOMPARE(reader(folder.target).number(u"select missed_1 from games where rowid = 1"_s), 3);
        store_run french({u"import"_s, folder.files, file_argument(folder.target + u"2")});
        french.set_language(u"fr_FR.UTF-8"_s);
        QCOMPARE(french.run(), status(exit_status::done));
        QCOMPARE(french.errors(), u"games.csv a été modifié après l'exportation.\n"_s);
    }

    void a_target_with_rows_is_refused_and_not_changed()
    {
        const exported_folder folder;
        QCOMPARE(folder.run_export(), status(exit_status::done));
        create_diary(folder.target, 1, false);
        const QStringList before = all_rows(folder.target);
        QCOMPARE(folder.run_import(), status(exit_status::not_empty));
        QCOMPARE(all_rows(folder.target), before);
    }

    void an_error_while_a_file_is_read_is_reported()
    {
        const exported_folder folder;
        QCOMPARE(folder.run_export(), status(exit_status::done));
        // Opening this file succeeds, and reading it fails.
        QVERIFY(QFile::remove(folder.file(u"cost"_s)));
        QVERIFY(QFile::link(u"/proc/self/mem"_s, folder.file(u"cost"_s)));
        store_run run({u"import"_s, folder.files, file_argument(folder.target)});
        QCOMPARE(run.run(), status(exit_status::bad_file));
        QCOMPARE(run.errors(), folder.file(u"cost"_s) + u": Input/output error\nNothing was changed.\n"_s);
        QVERIFY(!QFile::exists(folder.target));
    }

    void a_folder_that_does_not_exist_is_refused()
    {
        const exported_folder folder;
        QCOMPARE(folder.run_import(), status(exit_status::bad_file));
        QVERIFY(!QFile::exists(folder.target));
    }
};

QTEST_GUILESS_MAIN(test_import_faults)
#include "test_import_faults.moc"
