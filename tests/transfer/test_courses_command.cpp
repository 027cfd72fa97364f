#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

#include "scoring/limits.h"
#include "store/Connection1.h"
#include "tests/support/reader.h"
#include "tests/transfer/course_csv.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString count_courses = u"select count(*) from vrd_fields"_s;

/// A store without rows, and a file with scorecards.
struct course_import {
    course_import() { Connection1().Open(place.location()); }

    QStringList arguments(const QString& file) const { return {u"courses"_s, file, argument_of(place)}; }
    QString write(const QStringList& courses) const
    {
        return write_lines(path, QStringList{course_heads()} + courses);
    }
    std::optional<int> import(const QStringList& courses) const
    {
        return store_run(arguments(write(courses))).run();
    }
    int courses() const { return store.number(count_courses); }

    QTemporaryDir folder;
    QString path = folder.filePath(u"cards \"%1\".csv"_s);
    test_store place;
    reader store{place.location()};
};

/// The rows of the courses as lines of a CSV file.
QStringList stored_lines(const reader& store)
{
    QStringList columns{u"f.name"_s, u"f.tee"_s, u"f.rating"_s, u"f.slope"_s};
    for (const QString& prefix : {u"yards_"_s, u"par_"_s, u"hcp_"_s}) {
        for (int hole = 1; hole <= hole_count; ++hole)
            columns << u"i."_s + prefix + QString::number(hole);
    }
    QStringList lines;
    for (const auto& row : store.rows(u"select "_s + columns.join(u',') +
                                      u" from vrd_fields f join field_info i on i.FIELD_CODE = f.code "
                                      "order by f.code")) {
        QStringList values;
        for (const QVariant& value : row)
            values << value.toString();
        lines << values.join(u',');
    }
    return lines;
}

/// The lines of a CSV file after the first, with the tee in capitals.
QStringList lines_in_file(const QString& path)
{
    QStringList lines = QString::fromUtf8(content_of(path)).split(u'\n', Qt::SkipEmptyParts);
    lines.removeFirst();
    for (QString& line : lines) {
        QStringList values = line.split(u',');
        values[1] = values[1].toUpper();
        line = values.join(u',');
    }
    return lines;
}

}  // namespace

/// `verdane-store courses` as a child process.
class test_courses_command : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_published_examples_of_the_guide_are_imported()
    {
        const course_import diary;
        store_run run(diary.arguments(published_examples()));
        QCOMPARE(run.run(), status(exit_status::done));
        QStringList expected = lines_in_file(published_examples());
        QStringList stored = stored_lines(diary.store);
        expected.sort();
        stored.sort();
        QVERIFY(expected.size() > 1);
        QCOMPARE(stored, expected);
        QVERIFY2(run.output().endsWith(u"Courses added: %1.\n"_s.arg(expected.size())),
                 qUtf8Printable(run.output()));
        QCOMPARE(store_run({u"check"_s, argument_of(diary.place)}).run(), status(exit_status::done));
    }

    void a_course_that_is_stored_is_not_changed()
    {
        const course_import diary;
        QCOMPARE(diary.import({course_line_with({})}), status(exit_status::done));
        const QString file = diary.write(
            {course_line_with({{u"rating"_s, u"60"_s}}), course_line_with({{u"tee"_s, u"Blue"_s}})});
        store_run again(diary.arguments(file));
        QCOMPARE(again.run(), status(exit_status::done));
        QCOMPARE(again.output(), u"Added: Golf du Lac, Blue\nIn the diary already, not changed: Golf du Lac, "
                                 "White\nCourses added: 1.\n"_s);
        QCOMPARE(diary.courses(), 2);
        QCOMPARE(diary.store.text(u"select rating from vrd_fields where code = 'GOLF DU LAC-0'"_s),
                 u"70.5"_s);
    }

    void another_tee_gets_the_code_of_the_stored_name()
    {
        const course_import diary;
        diary.store.write(
            u"insert into vrd_fields (code, name, name_tee) values ('OLD NAME-0', 'x', 'Golf Du LAC-0')"_s);
        QCOMPARE(diary.import(
                     {course_line_with({{u"tee"_s, u"noir"_s}}), course_line_with({{u"tee"_s, u"Or"_s}})}),
                 status(exit_status::done));
        QCOMPARE(
            diary.store.text(u"select group_concat(code) from (select code from vrd_fields order by code)"_s),
            u"OLD NAME-0,OLD NAME-3,OLD NAME-7"_s);
        QCOMPARE(diary.store.text(u"select name_tee from vrd_fields where code = 'OLD NAME-7'"_s),
                 u"Golf du Lac-7"_s);
        QCOMPARE(diary.store.text(u"select tee from vrd_fields where code = 'OLD NAME-7'"_s), u"BLACK"_s);
    }

    void columns_may_have_any_order_and_values_may_have_blanks_and_quotes()
    {
        const course_import diary;
        QStringList heads = course_heads().split(u',');
        QStringList values = course_line_with({}).split(u',');
        std::reverse(heads.begin(), heads.end());
        std::reverse(values.begin(), values.end());
        values.last() = u"\" Golf du Lac \" "_s.trimmed();
        values[0] = u" 18 "_s;
        const QString file = write_lines(
            diary.path, {u"\ufeff"_s + heads.join(u" , "_s) + u'\r', values.join(u',') + u'\r', u"\r"_s});
        QCOMPARE(store_run(diary.arguments(file)).run(), status(exit_status::done));
        QCOMPARE(stored_lines(diary.store), QStringList{course_line_with({{u"tee"_s, u"WHITE"_s}})});
    }

    void a_wrong_line_is_reported_and_nothing_is_imported_data()
    {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("reason");
        const QString needed = u"name, rating and slope are needed"_s;
        const QString figure = u": only digits and a point, 6 characters at most"_s;
        const auto add = [](const QString& column, const QString& value, const QString& reason) {
            QTest::newRow(qUtf8Printable(column + u" is <"_s + value.left(10) + u'>'))
                << column << value << reason;
        };
        add(u"name"_s, u"  "_s, needed);
        add(u"name"_s, u"Golf 2"_s, u"name: only letters without accents, and blanks"_s);
        add(u"name"_s, u"Forêt"_s, u"name: only letters without accents, and blanks"_s);
        add(u"name"_s, QString(196, u'a'), u"name: 195 characters at most"_s);
        add(u"tee"_s, u"Pink"_s,
            u"tee: Pink is none of the colours White, Blue, Red, Gold, Bronze, Yellow, Green, Black"_s);
        add(u"rating"_s, u""_s, needed);
        add(u"rating"_s, u"\"70,5\""_s, u"rating"_s + figure);
        add(u"rating"_s, u"70.5123"_s, u"rating"_s + figure);
        add(u"slope"_s, u""_s, needed);
        add(u"slope"_s, u"-121"_s, u"slope"_s + figure);
        add(u"yards_3"_s, u""_s, u"yards_3: not a number"_s);
        add(u"yards_3"_s, u"long"_s, u"yards_3: not a number"_s);
        add(u"yards_3"_s, u"32768"_s, u"yards_3: the number is too long"_s);
        add(u"yards_3"_s, u"350.00"_s, u"yards_3: the number is too long"_s);
        add(u"yards_3"_s, u"30000"_s, u"the lengths add up to too much"_s);
        add(u"par_18"_s, u"2"_s, u"par_18: the par must be 3 to 5, or 0 if it is not known"_s);
        add(u"par_18"_s, u"4.x"_s, u"par_18: not a number"_s);
        add(u"hcp_1"_s, u"19"_s, u"hcp_1: the handicap must be under 19"_s);
        add(u"hcp_1"_s, u"18"_s, u"hcp_1: another hole has this handicap"_s);
        add(u"hcp_1"_s, u"99999"_s, u"hcp_1: the number is too long"_s);
    }

    void a_wrong_line_is_reported_and_nothing_is_imported()
    {
        QFETCH(QString, column);
        QFETCH(QString, value);
        QFETCH(QString, reason);
        const course_import diary;
        const QString file =
            diary.write({course_line_with({{u"name"_s, u"Alpha"_s}}), course_line_with({{column, value}}),
                         course_line_with({{u"name"_s, u"Beta"_s}})});
        store_run run(diary.arguments(file));
        QCOMPARE(run.run(), status(exit_status::bad_file));
        QCOMPARE(run.errors(), diary.path + u", line 3: " + reason + u"\nNothing was changed.\n");
        QCOMPARE(diary.courses(), 0);
    }

    void figures_that_are_not_known_are_accepted_as_0()
    {
        const course_import diary;
        QCOMPARE(diary.import(
                     {course_line_with({{u"hcp_1"_s, u"0"_s}, {u"hcp_2"_s, u"0"_s}, {u"par_1"_s, u"0"_s}})}),
                 status(exit_status::done));
        QCOMPARE(diary.courses(), 1);
    }

    void every_wrong_line_is_reported_in_the_language_of_the_user()
    {
        const course_import diary;
        const QString file =
            diary.write({course_line_with({}), course_line_with({{u"par_1"_s, u"6"_s}}),
                         course_line_with({{u"name"_s, u"golf du LAC"_s}}), course_line_with({}) + u",1"_s});
        store_run run(diary.arguments(file));
        run.set_language(u"fr_CA.UTF-8"_s);
        QCOMPARE(run.run(), status(exit_status::bad_file));
        QCOMPARE(
            run.errors(),
            QStringList({u"%1, ligne 3 : par_1 : la normale doit être de 3 à 5, ou 0 si elle est inconnue"_s,
                         u"%1, ligne 4 : ce terrain est déjà sur une ligne précédente"_s,
                         u"%1, ligne 5 : 59 valeurs au lieu de 58"_s})
                    .join(u'\n')
                    .replace(u"%1"_s, diary.path) +
                u"\nRien n'a été modifié.\n");
        QCOMPARE(diary.courses(), 0);
    }

    void a_wrong_file_is_refused_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("fault");
        const QByteArray heads = course_heads().toUtf8();
        QTest::newRow("empty") << QByteArray()
                               << u", line 1: the first line does not name the column name;"_s;
        QTest::newRow("semicolons") << QByteArray(heads).replace(',', ';')
                                    << u", line 1: the first line does not name the column name;"_s;
        QTest::newRow("column missing") << QByteArray(heads).replace(",hcp_18", "")
                                        << u", line 1: the first line does not name the column hcp_18;"_s;
        QTest::newRow("unknown column") << heads + ",city" << u", line 1: the column city is unknown"_s;
        QTest::newRow("column twice") << heads + ",tee" << u", line 1: the column tee is named twice"_s;
        QTest::newRow("other encoding") << heads + "\nFor\xeat" << u", line 2: the text is not in UTF-8"_s;
        QTest::newRow("open quote") << heads + "\n\"Golf\n" << u", line 2: a quotation mark is not closed"_s;
    }

    void a_wrong_file_is_refused()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, fault);
        const course_import diary;
        QFile file(diary.path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        store_run run(diary.arguments(diary.path));
        QCOMPARE(run.run(), status(exit_status::bad_file));
        const QString errors = run.errors();
        QVERIFY2(errors.startsWith(diary.path + fault), qUtf8Printable(errors));
    }

    void a_file_that_does_not_exist_is_refused()
    {
        const course_import diary;
        store_run run(diary.arguments(diary.path));
        QCOMPARE(run.run(), status(exit_status::bad_file));
        QVERIFY(run.errors().startsWith(diary.path + u": "));
    }

    void a_course_beyond_the_limit_is_reported_and_none_is_imported()
    {
        const course_import diary;
        QStringList lines;
        for (int course = 0; course <= most_courses; ++course)
            lines << course_line_with(
                {{u"name"_s, u"Course "_s + QChar(u'A' + course / 26) + QChar(u'A' + course % 26)}});
        store_run run(diary.arguments(diary.write(lines)));
        QCOMPARE(run.run(), status(exit_status::bad_file));
        QCOMPARE(run.errors(), diary.path + u", line 53: the diary has no place for more than 51 courses\n"
                                            "Nothing was changed.\n");
        QCOMPARE(diary.courses(), 0);
        lines.removeLast();
        QCOMPARE(diary.import(lines), status(exit_status::done));
        QCOMPARE(diary.courses(), most_courses);
    }

    void a_store_in_use_is_refused()
    {
        const course_import diary;
        Connection1 user;
        user.Open(diary.place.location());
        QCOMPARE(diary.import({course_line_with({})}), status(exit_status::in_use));
        QCOMPARE(diary.courses(), 0);
    }

    void a_wrong_command_line_is_refused()
    {
        QCOMPARE(store_run({u"courses"_s, u"a.csv"_s}).run(), status(exit_status::usage));
        QCOMPARE(store_run({u"courses"_s, u"a.csv"_s, u"b.db"_s}).run(), status(exit_status::usage));
    }
};

QTEST_GUILESS_MAIN(test_courses_command)
#include "test_courses_command.moc"
