#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include "store/Connection1.h"
#include "store/schema.h"
#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/transfer/exported_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// Values that a file can have although the program does not write all of them.
QStringList unusual_values()
{
    return {
        u"update settings set language = null"_s,
        u"update sticks set avg_1 = 0.1, avg_2 = 1.0 / 3, avg_3 = 1e300, avg_4 = -1e-7, avg_5 = 9e999, avg_6 = 'far', avg_7 = null"_s,
        u"update games set long_1 = 2.5, long_2 = 'abc', long_3 = 99999999999, long_4 = '', long_5 = ' 3'"_s,
        u"update games2 set games2_spare_1 = 12, games2_spare_2 = '', games2_spare_3 = ' '"_s,
        u"update cost set date = date || '  ' where rowid = 2"_s,
        u"insert into partners values ('O\"Brien, Jr.', '', null, ' two  blanks ', 'line' || char(10) || 'next' || char(13, 10) || char(10), '⛳🏌 é', 1)"_s,
        u"insert into partners values (char(65279), char(65279, 65279) || 'x', '" +
            QString(QChar::ReplacementCharacter) + u"', null, null, null, 2)",
        u"insert into partners values (null, null, null, null, null, null, null)"_s,
        u"insert into partners values ('\"', ',', '\"\"', 'a' || char(9), 'x' || char(65279), '12', 2147483648)"_s,
    };
}

/// The type and the value of every column of every row.
QStringList typed_rows(const QString& path)
{
    QStringList lines;
    for (const table& each : schema()) {
        QStringList columns;
        for (const column& column : each.columns)
            columns << u"typeof(`%1`) || ' ' || quote(`%1`)"_s.arg(column.name);
        for (const auto& row :
             reader(path).rows(u"select %1 from `%2` order by rowid"_s.arg(columns.join(u','), each.name))) {
            QStringList values{each.name};
            for (const QVariant& value : row)
                values << value.toString();
            lines << values.join(u'|');
        }
    }
    return lines;
}

}  // namespace

/// `verdane-store export` and `import` as child processes.
class test_export_import : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void an_exported_diary_is_imported_unchanged_and_exported_to_the_same_bytes()
    {
        const exported_folder folder;
        reader(folder.diary).write(unusual_values());
        QCOMPARE(folder.run_export(), status(exit_status::done));
        store_run import({u"import"_s, folder.files, file_argument(folder.target)});
        QCOMPARE(import.run(), status(exit_status::problems));
        QVERIFY2(import.output().contains(u"\nnot met: no key begins or ends with a blank (1 : ") &&
                     import.output().endsWith(u"\nProblems: 1.\n"),
                 qUtf8Printable(import.output()));
        const QString again = folder.folder.filePath(u"again"_s);
        QCOMPARE(exported_folder::run_export(file_argument(folder.target), again), status(exit_status::done));
        QCOMPARE(typed_rows(folder.target), typed_rows(folder.diary));
        const file_contents first = contents_of(folder.files);
        QCOMPARE(first.size(), schema().size() + 1);
        for (const auto& [name, content] : contents_of(again))
            QVERIFY2(first.at(name) == content, qPrintable(name));
        QCOMPARE(contents_of(again).size(), first.size());
    }

    void the_files_have_quoted_texts_plain_numbers_and_nothing_for_null()
    {
        const exported_folder folder;
        reader(folder.diary).write(u"delete from partners"_s);
        reader(folder.diary).write(unusual_values());
        QCOMPARE(folder.run_export(), status(exit_status::done));
        QCOMPARE(
            content_of(folder.file(u"partners"_s)),
            QByteArray("NAME,SURNAME,AD1,AD2,TEL,MAIL,code\n"
                       "\"O\"\"Brien, Jr.\",\"\",,\" two  blanks \",\"line\nnext\r\n\n\",\"⛳🏌 é\",1\n"
                       "\"\xef\xbb\xbf\",\"\xef\xbb\xbf\xef\xbb\xbfx\",\"\xef\xbf\xbd\",,,,2\n"
                       ",,,,,,\n"
                       "\"\"\"\",\",\",\"\"\"\"\"\",\"a\t\",\"x\xef\xbb\xbf\",\"12\",2147483648\n"));
        QCOMPARE(content_of(folder.file(u"settings"_s)), QByteArray("language\n\n"));
        const QByteArray sticks = content_of(folder.file(u"sticks"_s)).split('\n').at(1);
        QVERIFY2(sticks.startsWith("0.1,0.3333333333333333,1e+300,-1e-07,inf,\"far\",,0,"),
                 sticks.constData());
        const QByteArray games = content_of(folder.file(u"games"_s)).split('\n').at(1);
        QVERIFY2(games.contains(",2.5,"), games.constData());
    }

    void the_output_has_the_rows_of_each_table_in_the_language_of_the_user()
    {
        const exported_folder folder;
        store_run written({u"export"_s, file_argument(folder.diary), folder.files});
        QCOMPARE(written.run(), status(exit_status::done));
        QVERIFY2(written.output().startsWith(u"games: 12 rows\n") &&
                     written.output().contains(u"\nExported: 18 tables, "),
                 qUtf8Printable(written.output()));
        store_run read({u"import"_s, folder.files, file_argument(folder.target)});
        read.set_language(u"fr_FR.UTF-8"_s);
        QCOMPARE(read.run(), status(exit_status::done));
        QVERIFY2(read.output().startsWith(u"games : 12 lignes\n") &&
                     read.output().contains(u"\nImporté et vérifié : 18 tables, "),
                 qUtf8Printable(read.output()));
    }

    void a_diary_is_the_same_after_an_import_on_the_engine_of_the_tests()
    {
        const exported_folder folder;
        const test_store other;
        reader(folder.diary).write(u"update partners set AD1 = char(65279) || 'é'"_s);
        QCOMPARE(folder.run_export(), status(exit_status::done));
        QCOMPARE(folder.run_import(argument_of(other)), status(exit_status::done));
        const QString again = folder.folder.filePath(u"again"_s);
        QCOMPARE(exported_folder::run_export(argument_of(other), again), status(exit_status::done));
        QVERIFY(contents_of(again) == contents_of(folder.files));
        QCOMPARE(folder.run_import(argument_of(other)), status(exit_status::not_empty));
    }

    void a_full_diary_is_imported_unchanged()
    {
        const exported_folder folder;
        QVERIFY(QFile::remove(folder.diary));
        create_diary(folder.diary, rounds_of_full_diary, true);
        QCOMPARE(folder.run_export(), status(exit_status::done));
        QCOMPARE(folder.run_import(), status(exit_status::done));
        QVERIFY(all_rows(folder.target) == all_rows(folder.diary));
    }

    void a_value_of_bytes_is_refused_and_no_file_is_left_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("words");
        const QString english = u"partners, row 2: bytes that are no text\n"_s;
        QTest::newRow("bytes") << u"x'00ff'"_s << 2 << u"en_GB.UTF-8"_s << english;
        QTest::newRow("text that is not UTF-8")
            << u"cast(x'41ff42' as text)"_s << 2 << u"en_GB.UTF-8"_s << english;
        QTest::newRow("in the first row, in French")
            << u"cast(x'41ff42' as text)"_s << 1 << u"fr_FR.UTF-8"_s
            << u"partners, ligne 1 : des octets qui ne sont pas du texte\n"_s;
    }

    void a_value_of_bytes_is_refused_and_no_file_is_left()
    {
        QFETCH(QString, value);
        QFETCH(int, row);
        QFETCH(QString, language);
        QFETCH(QString, words);
        const exported_folder folder;
        reader(folder.diary).write(u"update partners set TEL = %1 where rowid = %2"_s.arg(value).arg(row));
        store_run run({u"export"_s, file_argument(folder.diary), folder.files});
        run.set_language(language);
        QCOMPARE(run.run(), status(exit_status::failed));
        const QString errors = run.errors();
        QVERIFY2(errors.endsWith(words), qUtf8Printable(errors));
        QVERIFY(!QFile::exists(folder.files));
        QCOMPARE(unfinished_in(QFileInfo(folder.files).path()), QStringList());
    }

    void a_folder_with_files_is_refused_and_an_empty_one_is_used()
    {
        const exported_folder folder;
        QVERIFY(QDir().mkpath(folder.files));
        QCOMPARE(folder.run_export(), status(exit_status::done));
        const file_contents before = contents_of(folder.files);
        store_run again({u"export"_s, file_argument(folder.diary), folder.files + u'/'});
        QCOMPARE(again.run(), status(exit_status::not_empty));
        QCOMPARE(again.errors(), u"The folder is not empty: "_s + folder.files + u". Nothing was changed.\n");
        QVERIFY(contents_of(folder.files) == before);
        QCOMPARE(exported_folder::run_export(file_argument(folder.diary), folder.diary),
                 status(exit_status::not_empty));
    }

    void a_store_without_rows_is_refused_and_no_folder_is_created()
    {
        const exported_folder folder;
        Connection1().Open(folder.target);
        for (const QString& store : {folder.target, folder.folder.filePath(u"none.db"_s)})
            QCOMPARE(exported_folder::run_export(file_argument(store), folder.files),
                     status(exit_status::no_diary));
        QVERIFY(!QFile::exists(folder.files));
    }

    void a_store_in_use_is_refused()
    {
        const exported_folder folder;
        QCOMPARE(folder.run_export(), status(exit_status::done));
        Connection1 user;
        user.Open(folder.diary);
        QCOMPARE(exported_folder::run_export(file_argument(folder.diary), folder.files + u"2"),
                 status(exit_status::in_use));
        QVERIFY(!QFile::exists(folder.files + u"2"));
        Connection1 other;
        other.Open(folder.target);
        QCOMPARE(folder.run_import(), status(exit_status::in_use));
    }

    void a_wrong_command_line_is_refused()
    {
        for (const QStringList& arguments :
             {QStringList{u"export"_s, u"file:a"_s}, QStringList{u"export"_s, u"a"_s, u"b"_s},
              QStringList{u"import"_s, u"a"_s}, QStringList{u"import"_s, u"a"_s, u"b"_s}})
            QCOMPARE(store_run(arguments).run(), status(exit_status::usage));
    }
};

QTEST_GUILESS_MAIN(test_export_import)
#include "test_export_import.moc"
