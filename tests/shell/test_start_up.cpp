#include <QApplication>
#include <QTest>

#include "base/language.h"
#include "controls/boxes.h"
#include "records/Main_module.h"
#include "shell/start_up.h"
#include "store/DataEnvironment1.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using verdane::testing::both_stored_languages;
using verdane::testing::failure_of;
using verdane::testing::hand;
using verdane::testing::one_course;
using verdane::testing::one_round;
using verdane::testing::program_run;
using verdane::testing::quit;
using verdane::testing::rounds;

class test_start_up : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }

    void the_language_chosen_for_a_new_store_is_stored_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("stored");
        QTest::addColumn<bool>("french");
        QTest::newRow("French") << "Command1_1" << 1 << true;
        QTest::newRow("English") << "Command1_0" << 2 << false;
    }

    void the_language_chosen_for_a_new_store_is_stored()
    {
        QFETCH(QString, button);
        QFETCH(int, stored);
        QFETCH(bool, french);
        program_run run;
        const int status = run.play_through([&](hand& user) {
            user.wait_for_window(u"f_lang"_s);
            user.click(button);
            quit(user);
        });
        QCOMPARE(status, 0);
        QCOMPARE(run.store().number(u"select language from settings"_s), stored);
        QCOMPARE(is_french, french);

        run.play_through([&](hand& user) {
            user.wait_for_window(u"MainForm"_s);
            user.check(!user.is_open(u"f_lang"_s), u"the language window is not opened again"_s);
            quit(user);
        });
        QCOMPARE(is_french, french);
    }

    void closing_the_language_window_ends_the_program_and_stores_no_language_data()
    {
        QTest::addColumn<bool>("by_title_bar");
        QTest::newRow("Exit / Quitter") << false;
        QTest::newRow("title bar") << true;
    }

    void closing_the_language_window_ends_the_program_and_stores_no_language()
    {
        QFETCH(bool, by_title_bar);
        program_run run;
        for (int start = 0; start < 2; ++start) {
            const int status = run.play_through([&](hand& user) {
                user.wait_for_window(u"f_lang"_s);
                if (by_title_bar)
                    user.close_window(u"f_lang"_s);
                else
                    user.click(u"Command2"_s);
            });
            QCOMPARE(status, 0);
            QCOMPARE(run.store().number(u"select language from settings"_s), 0);
        }
    }

    void the_club_names_are_loaded_even_if_no_language_is_chosen()
    {
        program_run run(0, {u"update sticknames set club_1 = 'Big', club_14 = 'Roller'"_s});
        Main_module::club_names.clear();
        run.play_through([](hand& user) { user.click(u"Command2"_s); });
        QCOMPARE(Main_module::club_names[0], u"Big"_s);
        QCOMPARE(Main_module::club_names[13], u"Roller"_s);
    }

    void the_language_is_set_before_the_club_names_are_read_data() { both_stored_languages(); }
    void the_language_is_set_before_the_club_names_are_read()
    {
        QFETCH(int, language);
        // Without a row the club names cannot be read, so the start fails there.
        const program_run run(language, {u"delete from sticknames"_s});
        is_french = language != 1;
        QCOMPARE(failure_of([] { Main(); }), failure_kind::misuse);
        QCOMPARE(is_french, language == 1);
    }

    void a_null_language_is_reported_as_fatal_error()
    {
        program_run run(
            0, {u"update sticknames set club_1 = 'Big'"_s, u"update settings set language = null"_s});
        Main_module::club_names.clear();
        const int status = run.play_through([](hand& user) {
            user.answer({u"Fatal Error - Unexpected Language Value - 1014"_s, QMessageBox::Critical,
                         default_title(), QMessageBox::Ok});
        });
        QCOMPARE(status, 1);
        QCOMPARE(Main_module::club_names[0], u"Big"_s);
    }

    void any_other_language_value_opens_the_language_window()
    {
        program_run run(7);
        run.play_through([](hand& user) {
            user.wait_for_window(u"f_lang"_s);
            user.click(u"Command1_0"_s);
            quit(user);
        });
        QCOMPARE(run.store().number(u"select language from settings"_s), 2);
    }

    void the_program_starts_in_the_stored_language_data()
    {
        QTest::addColumn<int>("stored");
        QTest::addColumn<QString>("title");
        QTest::newRow("French") << 1 << "Verdane pour PC version 1.4";
        QTest::newRow("English") << 2 << "Verdane for PC version 1.4";
    }

    void the_program_starts_in_the_stored_language()
    {
        QFETCH(int, stored);
        QFETCH(QString, title);
        program_run run(stored);
        run.play_through([&](hand& user) {
            user.same(user.title(u"MainForm"_s), title, u"title"_s);
            quit(user);
        });
    }

    void the_round_keys_are_loaded_trimmed_and_in_time_order()
    {
        QStringList statements = one_course();
        // The column of a server stores at most 14 characters.
        for (const char* key : {"20260101120000", " 202512312359 ", "20260101115959"})
            statements << one_round(QString::fromLatin1(key));
        program_run run(1, statements);
        run.play_through(quit);
        QCOMPARE(plain(Main_module::round_key_count), 3);
        QCOMPARE(Main_module::round_keys[0], u"202512312359"_s);
        QCOMPARE(Main_module::round_keys[2], u"20260101120000"_s);
    }

    void an_empty_diary_gives_no_round_keys()
    {
        program_run run(1);
        run.play_through(quit);
        QCOMPARE(plain(Main_module::round_key_count), 0);
    }

    void no_recordset_is_open_after_the_start()
    {
        program_run run(1, rounds(2));
        run.play_through([](hand& user) {
            user.wait_for_window(u"MainForm"_s);
            user.look([] {
                for (Recordset& recordset : data_environment().recordsets())
                    QVERIFY2(!recordset.is_open(), qPrintable(recordset.name()));
            });
            quit(user);
        });
    }
};

QTEST_MAIN(test_start_up)
#include "test_start_up.moc"
