#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QStyledItemDelegate>
#include <QTest>

#include "controls/failure_guard.h"
#include "round/course_box.h"
#include "round/f_new_round.h"
#include "round/Round_records.h"
#include "round/temperature_box.h"
#include "store/DataEnvironment1.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;

namespace {

const QString conditions = QStringLiteral("conditions");
const QString partners = QStringLiteral("pList");

QString temperature_text(hand& user)
{
    return user.text(QStringLiteral("Text1"));
}

void focus_temperature(hand& user)
{
    with_round(user, [](f_new_round& window) { window.UpDown1->setFocus(Qt::TabFocusReason); });
}

void add_three_partners(const round_store& store)
{
    store.add_partner(QStringLiteral("Gagnon"), QStringLiteral("Luc"), 5);
    store.add_partner(QStringLiteral("Roy"), QStringLiteral("Anne"), 12);
    store.add_partner(QStringLiteral("Tremblay"), QStringLiteral("Marie"), 7);
}

QStringList selected_lines(hand& user)
{
    QStringList lines;
    with_round(user, [&](f_new_round& window) {
        for (const QListWidgetItem* line : window.pList->selectedItems())
            lines << line->text();
    });
    lines.sort();
    return lines;
}

}  // namespace

class test_round_parameters : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void without_a_course_there_is_no_round_data() { both_languages(); }
    void without_a_course_there_is_no_round()
    {
        QFETCH(bool, french);
        const round_store store(french);
        in_new_round([&](hand& user) {
            const expected_box in_french{
                QStringLiteral(
                    "Verdane n'a trouvé aucun terrain. Pour créer une ronde il faut definir au moin "
                    "un terrain"),
                QMessageBox::Critical, QStringLiteral("Verdane"), QMessageBox::Ok};
            const expected_box in_english{
                QStringLiteral("Verdane could not find any course. To create a round, you need to define at "
                               "least one course."),
                QMessageBox::NoIcon, QStringLiteral("Verdane"), QMessageBox::Ok};
            user.answer(french ? in_french : in_english);
        });
        QVERIFY(!data_environment().rsvrd_fields.is_open());
        QVERIFY(!data_environment().rsgames.is_open());
    }

    void the_weather_has_four_kinds_data() { both_languages(); }
    void the_weather_has_four_kinds()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add_two_courses();
        in_keyed_round([&](hand& user) {
            const QStringList in_french{QStringLiteral("Ensoleillé"), QStringLiteral("Ciel variable"),
                                        QStringLiteral("Pluie"), QStringLiteral("Vent")};
            const QStringList in_english{QStringLiteral("Sunny"), QStringLiteral("Variable cloudiness"),
                                         QStringLiteral("Rainy"), QStringLiteral("Windy")};
            user.same(user.entries(conditions).join(u','), (french ? in_french : in_english).join(u','),
                      conditions);
            user.same(user.selected(conditions), 0, conditions);
            user.choose(conditions, 3);
            accept(user);
        });
        QCOMPARE(store.at(QStringLiteral("games2"), 1), QStringLiteral("3"));
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(user.selected(conditions), 3, conditions);
            discard(user);
        });
    }

    void an_untouched_temperature_shows_two_blanks_and_is_stored_as_0()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            user.same(temperature_text(user), QStringLiteral("  "), QStringLiteral("temperature"));
            focus_temperature(user);
            user.click(QStringLiteral("text_vrd_0"));
            user.same(temperature_text(user), QStringLiteral("  "), QStringLiteral("temperature"));
            accept(user);
        });
        QCOMPARE(store.at(QStringLiteral("games2"), 201), QStringLiteral("0"));
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(temperature_text(user), QStringLiteral("0 C"), QStringLiteral("temperature"));
            discard(user);
        });
    }

    void the_temperature_goes_by_degrees_between_its_limits()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            focus_temperature(user);
            user.key(Qt::Key_Up);
            user.same(temperature_text(user), QStringLiteral("1 C"), QStringLiteral("one up"));
            user.key(Qt::Key_Down);
            user.key(Qt::Key_Down);
            user.same(temperature_text(user), QStringLiteral("-1 C"), QStringLiteral("two down"));
            with_round(user, [](f_new_round& window) { window.UpDown1->setValue(50); });
            user.key(Qt::Key_Up);
            user.same(temperature_text(user), QStringLiteral("50 C"), QStringLiteral("upper limit"));
            with_round(user, [](f_new_round& window) { window.UpDown1->setValue(-30); });
            user.key(Qt::Key_Down);
            user.same(temperature_text(user), QStringLiteral("-30 C"), QStringLiteral("lower limit"));
            accept(user);
        });
        QCOMPARE(store.at(QStringLiteral("games2"), 201), QStringLiteral("-30"));
    }

    void a_typed_temperature_counts_too()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            focus_temperature(user);
            user.key(Qt::Key_A, Qt::ControlModifier);
            user.type(QStringLiteral("-12"));
            user.click(QStringLiteral("text_vrd_0"));
            user.same(temperature_text(user), QStringLiteral("-12 C"), QStringLiteral("temperature"));
            accept(user);
        });
        QCOMPARE(store.at(QStringLiteral("games2"), 201), QStringLiteral("-12"));
    }

    void a_value_set_by_the_program_shows_at_once()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            with_round(user, [](f_new_round& window) { window.UpDown1->setValue(21); });
            user.same(temperature_text(user), QStringLiteral("21 C"), QStringLiteral("temperature"));
            discard(user);
        });
    }

    void a_partner_shows_as_first_and_last_name()
    {
        const round_store store;
        store.add_two_courses();
        store.add_partner(QStringLiteral("Gagnon"), QStringLiteral("Luc"), 5);
        store.add_partner(QString(), QStringLiteral("Anne"), 12);
        store.add_partner(QStringLiteral("Zed"), QString(), 7);
        store.add_partner(QStringLiteral("Young"), QStringLiteral(""), 8);
        in_keyed_round([](hand& user) {
            user.same(user.entries(partners).join(u'|'), QStringLiteral("Anne,|Luc,Gagnon|,Young|,Zed"),
                      QStringLiteral("partners"));
            user.same(selected_lines(user).join(u'|'), QString(), QStringLiteral("selected partners"));
            discard(user);
        });
    }

    void partners_that_their_window_had_to_leave_open_are_read_anew()
    {
        const round_store store;
        store.add_two_courses();
        data_environment().rspartners.Open();
        store.add_partner(QStringLiteral("Gagnon"), QStringLiteral("Luc"), 5);
        in_keyed_round([](hand& user) {
            user.same(user.entries(partners).join(u'|'), QStringLiteral("Luc,Gagnon"),
                      QStringLiteral("partners"));
            discard(user);
        });
        QVERIFY(!data_environment().rspartners.is_open());
    }

    void no_partner_is_cut_on_the_detailed_page()
    {
        const round_store store;
        store.add_two_courses();
        for (int code = 1; code <= 9; ++code)
            store.add_partner(QStringLiteral("Gagnon"), QStringLiteral("Luc"), code);
        in_keyed_round([](hand& user) {
            user.click_tab(QStringLiteral("TabStrip2"), 2);
            user.picture(round_window());
            with_round(user, [](f_new_round& window) {
                const QListWidget& list = *window.pList;
                const int height = list.viewport()->height();
                const QListWidgetItem* lowest = list.itemAt(5, height - 1 - list.spacing());
                QVERIFY(lowest);
                QVERIFY(list.visualItemRect(lowest).bottom() < height);
                QCOMPARE(list.row(lowest), 3);
            });
            user.click_tab(QStringLiteral("TabStrip2"), 1);
            discard(user);
        });
    }

    void the_partners_of_a_round_are_stored_by_number_and_come_back()
    {
        const round_store store;
        store.add_two_courses();
        add_three_partners(store);
        in_keyed_round([&](hand& user) {
            for (const int row : {2, 0, 1})
                user.click_row(partners, row);
            user.click_tab(QStringLiteral("TabStrip1"), 2);
            user.same(store.at(QStringLiteral("games2"), 2), QStringLiteral("5-12-7-"),
                      QStringLiteral("partners"));
            user.click_tab(QStringLiteral("TabStrip1"), 3);
            user.same(store.at(QStringLiteral("games2"), 2), QStringLiteral("5-12-7-"),
                      QStringLiteral("partners of a second save"));
            user.click_row(partners, 0);
            accept(user);
        });
        QCOMPARE(store.at(QStringLiteral("games2"), 2), QStringLiteral("12-7-"));
        store.add_partner(QStringLiteral("Zola"), QStringLiteral("Emile"), 1);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            // "1" stands inside "12-7-": the search is a plain one.
            user.same(selected_lines(user).join(u'|'), QStringLiteral("Anne,Roy|Emile,Zola|Marie,Tremblay"),
                      QStringLiteral("selected partners"));
            discard(user);
        });
    }

    void a_round_without_partners_stores_the_empty_text()
    {
        const round_store store;
        store.add_two_courses();
        add_three_partners(store);
        in_keyed_round([](hand& user) { accept(user); });
        QCOMPARE(store.at(QStringLiteral("games2"), 2), QString());
    }

    void a_course_is_its_padded_name_and_its_tee_data() { both_languages(); }
    void a_course_is_its_padded_name_and_its_tee()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add({QStringLiteral("ZED-6"), QStringLiteral(" Zed ")});
        store.add({QStringLiteral("ALPHA-1"), QStringLiteral("Alpha")});
        store.add({QStringLiteral("ODD-9"), QStringLiteral("Odd")});
        in_keyed_round([&](hand& user) {
            const auto line = [](const QString& name, const QString& tee) {
                return QString(name.leftJustified(195) + u", " + tee);
            };
            const QStringList expected{
                line(QStringLiteral("Zed"), french ? QStringLiteral("VERT") : QStringLiteral("GREEN")),
                line(QStringLiteral("Alpha"), french ? QStringLiteral("BLEU") : QStringLiteral("BLUE")),
                line(QStringLiteral("Odd"), QString())};
            user.same(user.entries(QStringLiteral("cmb_courses")).join(u'|'), expected.join(u'|'),
                      QStringLiteral("courses"));
            user.same(user.selected(QStringLiteral("cmb_courses")), 0, QStringLiteral("course"));
            user.choose(QStringLiteral("cmb_courses"), 2);
            accept(user);
        });
        QCOMPARE(store.of_round(QStringLiteral("games"), QStringLiteral("CODEF")), QStringLiteral("ODD-9"));
    }

    void the_open_list_of_courses_leaves_the_padding_out()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            with_round(user, [](f_new_round& window) {
                auto* lines = qobject_cast<QStyledItemDelegate*>(window.cmb_courses->itemDelegate());
                QCOMPARE(lines->displayText(window.cmb_courses->itemText(1), QLocale()),
                         QStringLiteral("Beta, VERT"));
                window.cmb_courses->showPopup();
                QCOMPARE(window.cmb_courses->view()->window()->width(), window.cmb_courses->width());
                window.cmb_courses->hidePopup();
            });
            discard(user);
        });
    }

    void the_costs_of_a_round_are_added_up()
    {
        const round_store store;
        store.add_two_courses();
        store.add_round(key_of_keyed_round());
        store.store.write(QStringLiteral("update cost set fg = 40, cm = 5, au = 7"));
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(user.text(QStringLiteral("text_7")), QStringLiteral("52"), QStringLiteral("costs"));
            discard(user);
        });
    }

    void a_stored_round_without_costs_gets_a_row_of_noughts()
    {
        const round_store store;
        store.add_two_courses();
        store.add_round(QStringLiteral("20230101120000"));
        store.add_round(key_of_keyed_round());
        store.store.write(QStringLiteral("delete from cost where date = '20240614093000'"));
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(user.text(QStringLiteral("text_7")), QStringLiteral("0"), QStringLiteral("costs"));
            discard(user);
        });
        QCOMPARE(store.number(QStringLiteral("select fg + au from cost where date = '20240614093000'")), 0);
        QCOMPARE(store.number(QStringLiteral("select count(*) from cost")), 2);
    }

    void the_header_adds_the_row_of_costs_when_the_table_is_empty()
    {
        const round_store store;
        store.add_two_courses();
        store.add_round(key_of_keyed_round());
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            with_round(user, [](f_new_round& window) {
                data_environment().rscost.Delete();
                load_round_header(window);
            });
            user.same(user.text(QStringLiteral("text_7")), QStringLiteral("0"), QStringLiteral("costs"));
            user.same(store.at(QStringLiteral("cost"), 0), key_of_keyed_round(), QStringLiteral("key"));
            discard(user);
        });
    }
};

QTEST_MAIN(test_round_parameters)

#include "test_round_parameters.moc"
