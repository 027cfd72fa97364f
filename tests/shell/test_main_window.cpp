#include <QAction>
#include <QTest>

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/Form.h"
#include "controls/main_frame.h"
#include "shell/MainForm.h"
#include "shell/start_up.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using verdane::testing::both_stored_languages;
using verdane::testing::entry;
using verdane::testing::expected_box;
using verdane::testing::hand;
using verdane::testing::in_main_window;
using verdane::testing::one_course;
using verdane::testing::program_run;
using verdane::testing::tool;

namespace {

expected_box notice(QStringView french, QStringView english)
{
    return {in_language(french, english), QMessageBox::Information, default_title()};
}

/// The upper edge of the sign is brown, unlike its surroundings.
bool is_of_wood(picture_pane& pane, const QRectF& sign)
{
    const QImage picture = pane.grab().toImage();
    const QPoint edge(qRound(sign.center().x()), qRound(sign.top() + sign.height() * 0.12));
    const int hue = picture.pixelColor(edge * picture.devicePixelRatio()).hslHue();
    return hue > 15 && hue < 45;
}

}  // namespace

class test_main_window : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }

    void save_close_and_clean_up_are_hidden_and_disabled_in_the_menu()
    {
        in_main_window(1, {}, [](hand& user) {
            user.look([] {
                for (const QString& name : {u"mnSave"_s, u"mClose"_s, u"mcoh"_s}) {
                    QVERIFY(!entry(name)->isVisible());
                    QVERIFY(!entry(name)->isEnabled());
                }
            });
        });
    }

    void an_open_window_locks_the_menu()
    {
        in_main_window(1, one_course(), [](hand& user) {
            const auto locked = [&](bool expected) {
                user.look([&] {
                    for (const char* name : {"mCarte", "mnBat", "mnOPenr", "mOpen", "mpartners", "mQuit",
                                             "maprop", "mManagF", "mnstat", "mCourses"})
                        QCOMPARE(entry(QString::fromLatin1(name))->isEnabled(), !expected);
                    for (const char* key : {"B1", "B2", "B3", "B6", "B7", "B8"})
                        QCOMPARE(tool(QString::fromLatin1(key))->isEnabled(), !expected);
                    for (const char* name : {"mEn", "mfr", "mfile", "Rondes", "batons", "partenaires"})
                        QVERIFY2(entry(QString::fromLatin1(name))->isEnabled(), name);
                    for (const char* key : {"B4", "B5"})
                        QVERIFY2(tool(QString::fromLatin1(key))->isEnabled(), key);
                });
            };
            locked(false);
            user.menu(u"mManagF"_s);
            user.wait_for_window(u"f_c_list"_s);
            locked(true);
            user.click(u"Command1_2"_s);
            user.wait_until_closed(u"f_c_list"_s);
            locked(false);
        });
    }

    void locking_twice_and_unlocking_twice_has_no_further_effect()
    {
        in_main_window(1, {}, [](hand& user) {
            user.look([] {
                Lock_menu();
                Lock_menu();
                Unlock_menu();
                QVERIFY(entry(u"mOpen"_s)->isEnabled());
                Unlock_menu();
                QVERIFY(entry(u"mQuit"_s)->isEnabled());
            });
        });
    }

    void a_window_is_placed_near_the_top_and_centred()
    {
        in_main_window(1, one_course(), [](hand& user) {
            user.click(u"B3"_s);
            user.wait_for_window(u"f_c_list"_s);
            user.look([] {
                const QRect frame = MainForm::of_run()->geometry();
                Form* list = open_form(u"f_c_list");
                QCOMPARE(list->pos().x() - frame.x(), (frame.width() - list->width()) / 2);
                QCOMPARE(list->pos().y() - frame.y(), 40 / 15);
            });
            user.click(u"Command1_2"_s);
        });
    }

    void save_and_close_without_a_window_show_a_notice_data() { both_stored_languages(); }
    void save_and_close_without_a_window_show_a_notice()
    {
        QFETCH(int, language);
        in_main_window(language, one_course(), [](hand& user) {
            const auto save_and_close = [&user] {
                user.click(u"B4"_s);
                user.answer(notice(u"Il n'y a rien à enregistrer.", u"There is nothing to save."));
                user.look([] { Lock_menu(); });
                user.click(u"B5"_s);
                user.answer(notice(u"Il n'y a rien à fermer.", u"There is nothing to close."));
                user.check(user.enabled(u"mOpen"_s), u"Close unlocks the menu"_s);
            };
            save_and_close();
            user.menu(u"mManagF"_s);
            user.click(u"Command1_2"_s);
            user.wait_until_closed(in_language(u"f_c_list", u"f_c_list_en"));
            save_and_close();
        });
    }

    void the_sign_in_the_picture_is_visible_at_every_size_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QSize>("size");
        for (const int language : {1, 2}) {
            for (const QSize size : {QSize(800, 600), QSize(640, 400), QSize(800, 780), QSize(1366, 768),
                                     QSize(1920, 500), QSize(640, 1000)})
                QTest::addRow("%s %d x %d", language == 1 ? "French" : "English", size.width(), size.height())
                    << language << size;
        }
    }
    void the_sign_in_the_picture_is_visible_at_every_size()
    {
        QFETCH(int, language);
        QFETCH(QSize, size);
        in_main_window(language, {}, [&](hand& user) {
            user.look([&] { MainForm::of_run()->resize(size); });
            const auto pane = [] {
                return dynamic_cast<picture_pane*>(
                    MainForm::of_run()->findChild<QWidget*>(is_french ? u"Picture1"_s : u"Picture2"_s));
            };
            user.wait_until(u"the picture"_s, [&] { return !pane()->place_of_sign().isEmpty(); });
            user.look([&] {
                QVERIFY(pane()->isVisible());
                QVERIFY(QRectF(pane()->rect()).contains(pane()->place_of_sign()));
                QVERIFY(is_of_wood(*pane(), pane()->place_of_sign()));
            });
        });
    }

    void closing_the_main_window_ends_the_program()
    {
        program_run run(1);
        const int status = run.play_through([](hand& user) { user.close_window(u"MainForm"_s); });
        QCOMPARE(status, 0);
    }
};

QTEST_MAIN(test_main_window)
#include "test_main_window.moc"
