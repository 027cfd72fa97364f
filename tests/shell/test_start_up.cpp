#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <cstdio>
#include <unistd.h>

#include "boxes.h"
#include "Connection1.h"
#include "DataEnvironment1.h"
#include "language.h"
#include "Main_module.h"
#include "program_run.h"
#include "start_up.h"

using namespace verdane;
using verdane::testing::expected_box;
using verdane::testing::hand;
using verdane::testing::one_course;
using verdane::testing::one_round;
using verdane::testing::play;
using verdane::testing::program_run;

namespace {

QStringList rounds(int count)
{
    QStringList statements = one_course();
    for (int i = 0; i < count; ++i)
        statements << one_round(QString::number(20250101000000LL + i));
    return statements;
}

void quit(hand& user)
{
    user.wait_for_window(QStringLiteral("MainForm"));
    user.menu(QStringLiteral("mQuit"));
}

/// The child process: starts on the data folder of its parent, says what it shows and leaves.
int start_and_leave()
{
    int status = -1;
    play([&] { status = run_verdane(*qApp); },
         [](hand& user) {
             user.wait_until(QStringLiteral("a window"),
                             [&user] { return QApplication::activeWindow() != nullptr; });
             if (user.is_open(QStringLiteral("failure_box"))) {
                 std::printf("failure: %s\n", qUtf8Printable(user.text(QStringLiteral("qt_msgbox_label"))));
                 std::fflush(stdout);
                 user.key(Qt::Key_Return);
                 return;
             }
             quit(user);
         });
    return status;
}

struct ended {
    int status;
    QString said;
};

ended child_start(const char* way = "--start")
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(way)});
    child.waitForFinished(120000);
    return {child.exitStatus() == QProcess::NormalExit ? child.exitCode() : -1,
            QString::fromUtf8(child.readAllStandardOutput())};
}

constexpr QFile::Permissions owner_only = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

/// As root no permission would ever be missing.
bool give_up_rights()
{
    return geteuid() != 0 || (setgid(65534) == 0 && setuid(65534) == 0);
}

/// The folder of the store can be entered and read by everyone, and written by nobody.
void let_everyone_read_only(const QString& path)
{
    const QString folder = QFileInfo(path).path();
    const QFile::Permissions everyone = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                                        QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    QFile::setPermissions(QFileInfo(folder).path(), everyone | QFile::WriteOwner);
    QFile::setPermissions(folder, everyone);
}

void damage(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(100));
    QCOMPARE(file.write(QByteArray(3000, '\xee')), 3000);
}

QByteArray content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

class test_start_up : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_fresh_store_asks_for_the_language_and_keeps_the_answer_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("stored");
        QTest::addColumn<bool>("french");
        QTest::newRow("French") << "Command1_1" << 1 << true;
        QTest::newRow("English") << "Command1_0" << 2 << false;
    }

    void a_fresh_store_asks_for_the_language_and_keeps_the_answer()
    {
        QFETCH(QString, button);
        QFETCH(int, stored);
        QFETCH(bool, french);
        program_run run;
        const int status = run.play_through([&](hand& user) {
            user.wait_for_window(QStringLiteral("f_lang"));
            user.click(button);
            quit(user);
        });
        QCOMPARE(status, 0);
        QCOMPARE(run.store().number(QStringLiteral("select language from settings")), stored);
        QCOMPARE(is_french, french);

        run.play_through([&](hand& user) {
            user.wait_for_window(QStringLiteral("MainForm"));
            user.check(!user.is_open(QStringLiteral("f_lang")), QStringLiteral("asked again"));
            quit(user);
        });
        QCOMPARE(is_french, french);
    }

    void the_language_window_has_its_captions()
    {
        program_run run;
        run.play_through([](hand& user) {
            user.same(user.title(QStringLiteral("f_lang")), QStringLiteral("Verdane International Inc."),
                      QStringLiteral("title"));
            user.same(user.text(QStringLiteral("Command1_1")), QStringLiteral("Continuer en Français"),
                      QStringLiteral("caption"));
            user.same(user.text(QStringLiteral("Command1_0")), QStringLiteral("Continue in English"),
                      QStringLiteral("caption"));
            user.same(user.text(QStringLiteral("Command2")), QStringLiteral("Exit / Quitter"),
                      QStringLiteral("caption"));
            user.click(QStringLiteral("Command2"));
        });
    }

    void leaving_the_language_window_ends_the_program_and_asks_again_next_time_data()
    {
        QTest::addColumn<bool>("by_title_bar");
        QTest::newRow("Exit / Quitter") << false;
        QTest::newRow("title bar") << true;
    }

    void leaving_the_language_window_ends_the_program_and_asks_again_next_time()
    {
        QFETCH(bool, by_title_bar);
        program_run run;
        for (int start = 0; start < 2; ++start) {
            const int status = run.play_through([&](hand& user) {
                user.wait_for_window(QStringLiteral("f_lang"));
                if (by_title_bar)
                    user.close_window(QStringLiteral("f_lang"));
                else
                    user.click(QStringLiteral("Command2"));
            });
            QCOMPARE(status, 0);
            QCOMPARE(run.store().number(QStringLiteral("select language from settings")), 0);
        }
    }

    void the_club_names_are_loaded_also_when_the_user_left()
    {
        program_run run(0, {QStringLiteral("update sticknames set club_1 = 'Big', club_14 = 'Roller'")});
        Main_module::club_names.clear();
        run.play_through([](hand& user) { user.click(QStringLiteral("Command2")); });
        QCOMPARE(Main_module::club_names[0], QStringLiteral("Big"));
        QCOMPARE(Main_module::club_names[13], QStringLiteral("Roller"));
    }

    void a_null_language_is_a_damaged_store()
    {
        program_run run(0, {QStringLiteral("update sticknames set club_1 = 'Big'"),
                            QStringLiteral("update settings set language = null")});
        Main_module::club_names.clear();
        const int status = run.play_through([](hand& user) {
            user.answer({QStringLiteral("Fatal Error - Unexpected Language Value - 1014"),
                         QMessageBox::Critical, default_title(), QMessageBox::Ok});
        });
        QCOMPARE(status, 1);
        QCOMPARE(Main_module::club_names[0], QStringLiteral("Big"));
    }

    void any_other_language_value_asks()
    {
        program_run run(7);
        run.play_through([](hand& user) {
            user.wait_for_window(QStringLiteral("f_lang"));
            user.click(QStringLiteral("Command1_0"));
            quit(user);
        });
        QCOMPARE(run.store().number(QStringLiteral("select language from settings")), 2);
    }

    void the_stored_language_opens_the_program_in_it_data()
    {
        QTest::addColumn<int>("stored");
        QTest::addColumn<QString>("title");
        QTest::newRow("French") << 1 << "Verdane pour PC version 1.4";
        QTest::newRow("English") << 2 << "Verdane for PC version 1.4";
    }

    void the_stored_language_opens_the_program_in_it()
    {
        QFETCH(int, stored);
        QFETCH(QString, title);
        program_run run(stored);
        run.play_through([&](hand& user) {
            user.same(user.title(QStringLiteral("MainForm")), title, QStringLiteral("title"));
            quit(user);
        });
    }

    void the_round_keys_are_loaded_trimmed_and_in_time_order()
    {
        QStringList statements = one_course();
        for (const char* key : {"20260101120000", " 20251231235959 ", "20260101115959"})
            statements << one_round(QString::fromLatin1(key));
        program_run run(1, statements);
        run.play_through(quit);
        QCOMPARE(plain(Main_module::round_key_count), 3);
        QCOMPARE(Main_module::round_keys[0], QStringLiteral("20251231235959"));
        QCOMPARE(Main_module::round_keys[2], QStringLiteral("20260101120000"));
    }

    void an_empty_diary_leaves_no_keys()
    {
        program_run run(1);
        run.play_through(quit);
        QCOMPARE(plain(Main_module::round_key_count), 0);
    }

    void nothing_is_left_open_while_the_main_window_waits()
    {
        program_run run(1, rounds(2));
        run.play_through([](hand& user) {
            user.wait_for_window(QStringLiteral("MainForm"));
            user.look([] {
                for (Recordset& recordset : data_environment().recordsets())
                    QVERIFY2(!recordset.is_open(), qPrintable(recordset.name()));
            });
            quit(user);
        });
    }

    void a_diary_of_366_rounds_starts()
    {
        program_run run(2, rounds(366));
        const ended child = child_start();
        QCOMPARE(child.status, 0);
    }

    void a_diary_of_367_rounds_does_not_start_and_says_so()
    {
        program_run run(2, rounds(367));
        const ended child = child_start();
        QCOMPARE(child.status, 1);
        QVERIFY2(child.said.contains(failure_words(failure_kind::subscript).english), qPrintable(child.said));
    }

    void a_second_program_on_the_same_diary_says_so_and_stops()
    {
        program_run run(2);
        run.play_through([](hand& user) {
            user.wait_for_window(QStringLiteral("MainForm"));
            const ended child = child_start();
            user.same(child.status, 1, QStringLiteral("exit status of the second program"));
            const text_pair words = failure_words(failure_kind::store_locked);
            user.check(child.said.contains(words.french) && child.said.contains(words.english), child.said);
            quit(user);
        });
    }

    void a_store_that_cannot_be_used_is_told_in_both_languages_and_left_as_it_is_data()
    {
        QTest::addColumn<QString>("harm");
        QTest::addColumn<int>("kind");
        QTest::newRow("damaged file") << "damage" << static_cast<int>(failure_kind::store_damaged);
        QTest::newRow("settings without a row") << "no row" << static_cast<int>(failure_kind::misuse);
        QTest::newRow("read-only folder") << "no rights" << static_cast<int>(failure_kind::store_read_only);
    }

    void a_store_that_cannot_be_used_is_told_in_both_languages_and_left_as_it_is()
    {
        QFETCH(QString, harm);
        QFETCH(int, kind);
        program_run run(2);
        const QString path = program_run::store_path();
        if (harm == u"damage")
            damage(path);
        else if (harm == u"no row")
            run.store().write(QStringLiteral("delete from settings"));
        const bool no_rights = harm == u"no rights";
        if (no_rights)
            let_everyone_read_only(path);
        const QByteArray before = content(path);
        const ended child = child_start(no_rights ? "--start-without-rights" : "--start");
        if (no_rights)
            QFile::setPermissions(QFileInfo(path).path(), owner_only);
        QCOMPARE(child.status, 1);
        const text_pair words = failure_words(static_cast<failure_kind>(kind));
        QVERIFY2(child.said.contains(words.french) && child.said.contains(words.english),
                 qPrintable(child.said));
        QCOMPARE(content(path), before);
    }

    void a_missing_table_is_told_and_ends_the_program()
    {
        program_run run(1, {QStringLiteral("drop table sticknames")});
        const ended child = child_start();
        QCOMPARE(child.status, 1);
        QVERIFY2(child.said.contains(failure_words(failure_kind::missing_table).french),
                 qPrintable(child.said));
    }
};

int main(int argc, char** argv)
{
    const QByteArray way(argc == 2 ? argv[1] : "");
    if (way == "--start-without-rights" && !give_up_rights())
        return 2;
    QApplication application(argc, argv);
    prepare_application(application);
    if (way.startsWith("--start"))
        return start_and_leave();
    test_start_up test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_start_up.moc"
