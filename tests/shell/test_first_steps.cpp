#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

#include "base/program.h"
#include "shell/MainForm.h"
#include "shell/start_up.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QLabel* first_steps()
{
    return MainForm::of_run()->findChild<QLabel*>(u"first_steps"_s);
}

bool are_visible()
{
    return first_steps() != nullptr && first_steps()->isVisible();
}

void wait_for_first_steps(hand& user)
{
    user.wait_until(u"what to do first"_s, [] { return are_visible(); });
}

/// The argument of `verdane-store` for the store of the run.
QString argument_of_run()
{
    return program_run::store_place().where == store_location::place::source ? u"source"_s : u"file"_s;
}

}  // namespace

/// The text in the main window while no course is stored.
class test_first_steps : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void without_a_course_the_window_shows_what_to_do_first_data() { both_stored_languages(); }
    void without_a_course_the_window_shows_what_to_do_first()
    {
        QFETCH(int, language);
        in_main_window(language, {}, [&](hand& user) {
            wait_for_first_steps(user);
            const auto shows = [&](bool french) {
                user.look([=] {
                    const QString text = first_steps()->text();
                    QVERIFY(text.startsWith(french ? u"Il n'y a encore aucun terrain."_s
                                                   : u"There is no golf course yet."_s));
                    QVERIFY(text.contains(french ? u"Terrains, Gestion des terrains"_s
                                                 : u"Golf Courses, Golf Course Management"_s));
                    QVERIFY(text.contains(french ? u"Rondes, Nouvelle ronde"_s : u"Rounds, New Round"_s));
                    QVERIFY(text.contains(french ? u"une saison inventée, fermez-le"_s
                                                 : u"an invented season, close it"_s));
                    QVERIFY(text.contains(u":\n" + command_of_store_program() + u" sample " +
                                          argument_of_run() + u'\n'));
                });
            };
            shows(language == 1);
            user.menu(language == 1 ? u"mEn"_s : u"mfr"_s);
            shows(language != 1);
        });
    }

    void the_text_names_the_command_as_a_shell_finds_it_data()
    {
        QTest::addColumn<bool>("is_in_path");
        QTest::newRow("in the path") << true;
        QTest::newRow("next to the program") << false;
    }
    void the_text_names_the_command_as_a_shell_finds_it()
    {
        QFETCH(bool, is_in_path);
        const QTemporaryDir folder;
        if (is_in_path) {
            QFile program(folder.filePath(u"verdane-store"_s));
            QVERIFY(program.open(QFile::WriteOnly));
            QVERIFY(program.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        }
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(folder.path()));
        const auto restore_path = qScopeGuard([&] { qputenv("PATH", path); });
        const QString next_to_program = u"'" + QCoreApplication::applicationDirPath() + u"/verdane-store'";
        const QString command = is_in_path ? u"verdane-store"_s : next_to_program;
        in_main_window(2, {}, [&](hand& user) {
            wait_for_first_steps(user);
            user.look([&] {
                const QString line = first_steps()->text().section(u"terminal:\n"_s, 1).section(u'\n', 0, 0);
                QCOMPARE(line, command + u" sample " + argument_of_run());
            });
        });
    }

    void with_a_course_the_window_has_no_text()
    {
        in_main_window(1, one_course(), [](hand& user) {
            user.menu(u"mManagF"_s);
            user.click(u"Command1_2"_s);
            user.wait_until_closed(u"f_c_list"_s);
            user.look([] { QVERIFY(!are_visible()); });
        });
    }

    void the_text_follows_the_stored_courses_when_a_window_is_closed()
    {
        program_run run(1);
        run.play_through([&](hand& user) {
            user.wait_for_window(u"MainForm"_s);
            wait_for_first_steps(user);
            const auto open_and_close_courses = [&] {
                user.menu(u"mManagF"_s);
                user.click(u"Command1_2"_s);
                user.wait_until_closed(u"f_c_list"_s);
            };
            run.store().write(one_course());
            open_and_close_courses();
            user.look([] { QVERIFY(!are_visible()); });
            run.store().write({u"delete from vrd_fields"_s, u"delete from field_info"_s});
            open_and_close_courses();
            user.look([] { QVERIFY(are_visible()); });
            quit(user);
        });
    }

    void the_text_is_complete_at_every_size_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QSize>("size");
        for (const int language : {1, 2}) {
            for (const QSize size : {QSize(640, 400), QSize(800, 780), QSize(1366, 700)})
                QTest::addRow("%s %d x %d", language == 1 ? "French" : "English", size.width(), size.height())
                    << language << size;
        }
    }
    void the_text_is_complete_at_every_size()
    {
        QFETCH(int, language);
        QFETCH(QSize, size);
        in_main_window(language, {}, [&](hand& user) {
            wait_for_first_steps(user);
            user.look([&] { MainForm::of_run()->resize(size); });
            user.look([] {
                QVERIFY(first_steps()->parentWidget()->rect().contains(first_steps()->geometry()));
                QVERIFY(first_steps()->height() >= first_steps()->heightForWidth(first_steps()->width()));
            });
        });
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    test_first_steps test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_first_steps.moc"
