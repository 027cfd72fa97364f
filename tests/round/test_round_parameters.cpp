#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QStyledItemDelegate>
#include <QTest>

#include "controls/failure_guard.h"
#include "round/f_new_round.h"
#include "round/parameter_boxes.h"
#include "store/DataEnvironment1.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString conditions = u"conditions"_s;
const QString partners = u"pList"_s;

QString temperature_text(hand& user)
{
    return user.text(u"Text1"_s);
}

void focus_temperature(hand& user)
{
    with_round(user, [](f_new_round& window) {
        find_control<temperature_box>(window, u"UpDown1"_s).setFocus(Qt::TabFocusReason);
    });
}

void add_three_partners(const round_store& store)
{
    store.add_partner(u"Gagnon"_s, u"Luc"_s, 5);
    store.add_partner(u"Roy"_s, u"Anne"_s, 12);
    store.add_partner(u"Tremblay"_s, u"Marie"_s, 7);
}

QStringList selected_lines(hand& user)
{
    QStringList lines;
    with_round(user, [&](f_new_round& window) {
        for (const QListWidgetItem* line : find_control<QListWidget>(window, partners).selectedItems())
            lines << line->text();
    });
    lines.sort();
    return lines;
}

}  // namespace

class test_round_parameters : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void without_a_course_no_round_is_started_data() { both_languages(); }
    void without_a_course_no_round_is_started()
    {
        QFETCH(bool, french);
        const round_store store(french);
        in_new_round([&](hand& user) {
            const expected_box in_french{
                u"Verdane n'a trouvé aucun terrain. Pour créer une ronde il faut definir au moin "
                u"un terrain"_s,
                QMessageBox::Critical, u"Verdane"_s, QMessageBox::Ok};
            const expected_box in_english{
                u"Verdane could not find any course. To create a round, you need to define at "
                u"least one course."_s,
                QMessageBox::NoIcon, u"Verdane"_s, QMessageBox::Ok};
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
            const QStringList in_french{u"Ensoleillé"_s, u"Ciel variable"_s, u"Pluie"_s, u"Vent"_s};
            const QStringList in_english{u"Sunny"_s, u"Variable cloudiness"_s, u"Rainy"_s, u"Windy"_s};
            user.same(user.entries(conditions).join(u','), (french ? in_french : in_english).join(u','),
                      conditions);
            user.same(user.selected(conditions), 0, conditions);
            user.choose(conditions, 3);
            accept(user);
        });
        QCOMPARE(store.at(u"games2"_s, 1), u"3"_s);
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
            user.same(temperature_text(user), u"  "_s, u"temperature"_s);
            focus_temperature(user);
            user.click(u"text_vrd_0"_s);
            user.same(temperature_text(user), u"  "_s, u"temperature"_s);
            accept(user);
        });
        QCOMPARE(store.at(u"games2"_s, 201), u"0"_s);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(temperature_text(user), u"0 C"_s, u"temperature"_s);
            discard(user);
        });
    }

    void the_temperature_changes_by_degrees_within_its_limits()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            focus_temperature(user);
            user.key(Qt::Key_Up);
            user.same(temperature_text(user), u"1 C"_s, u"one up"_s);
            user.key(Qt::Key_Down);
            user.key(Qt::Key_Down);
            user.same(temperature_text(user), u"-1 C"_s, u"two down"_s);
            with_round(user, [](f_new_round& window) {
                find_control<temperature_box>(window, u"UpDown1"_s).setValue(50);
            });
            user.key(Qt::Key_Up);
            user.same(temperature_text(user), u"50 C"_s, u"upper limit"_s);
            with_round(user, [](f_new_round& window) {
                find_control<temperature_box>(window, u"UpDown1"_s).setValue(-30);
            });
            user.key(Qt::Key_Down);
            user.same(temperature_text(user), u"-30 C"_s, u"lower limit"_s);
            accept(user);
        });
        QCOMPARE(store.at(u"games2"_s, 201), u"-30"_s);
    }

    void a_typed_temperature_is_stored()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            focus_temperature(user);
            user.key(Qt::Key_A, Qt::ControlModifier);
            user.type(u"-12"_s);
            user.click(u"text_vrd_0"_s);
            user.same(temperature_text(user), u"-12 C"_s, u"temperature"_s);
            accept(user);
        });
        QCOMPARE(store.at(u"games2"_s, 201), u"-12"_s);
    }

    void a_value_set_by_the_program_is_shown_at_once()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            with_round(user, [](f_new_round& window) {
                find_control<temperature_box>(window, u"UpDown1"_s).setValue(21);
            });
            user.same(temperature_text(user), u"21 C"_s, u"temperature"_s);
            discard(user);
        });
    }

    void a_partner_is_listed_by_first_and_last_name()
    {
        const round_store store;
        store.add_two_courses();
        store.add_partner(u"Gagnon"_s, u"Luc"_s, 5);
        store.add_partner(QString(), u"Anne"_s, 12);
        store.add_partner(u"Zed"_s, QString(), 7);
        store.add_partner(u"Young"_s, u""_s, 8);
        in_keyed_round([](hand& user) {
            user.same(user.entries(partners).join(u'|'), u"Anne,|Luc,Gagnon|,Young|,Zed"_s, u"partners"_s);
            user.same(selected_lines(user).join(u'|'), QString(), u"selected partners"_s);
            discard(user);
        });
    }

    void an_open_recordset_of_partners_is_read_again()
    {
        const round_store store;
        store.add_two_courses();
        data_environment().rspartners.Open();
        store.add_partner(u"Gagnon"_s, u"Luc"_s, 5);
        in_keyed_round([](hand& user) {
            user.same(user.entries(partners).join(u'|'), u"Luc,Gagnon"_s, u"partners"_s);
            discard(user);
        });
        QVERIFY(!data_environment().rspartners.is_open());
    }

    void no_partner_is_cut_on_the_detailed_page()
    {
        const round_store store;
        store.add_two_courses();
        for (int code = 1; code <= 9; ++code)
            store.add_partner(u"Gagnon"_s, u"Luc"_s, code);
        in_keyed_round([](hand& user) {
            user.click_tab(u"TabStrip2"_s, 2);
            user.picture(round_window());
            with_round(user, [](f_new_round& window) {
                const QListWidget& list = find_control<QListWidget>(window, partners);
                const int height = list.viewport()->height();
                const QListWidgetItem* lowest = list.itemAt(5, height - 1 - list.spacing());
                QVERIFY(lowest);
                QVERIFY(list.visualItemRect(lowest).bottom() < height);
                QCOMPARE(list.row(lowest), 3);
            });
            user.click_tab(u"TabStrip2"_s, 1);
            discard(user);
        });
    }

    void the_partners_of_a_round_are_stored_by_number_and_selected_again()
    {
        const round_store store;
        store.add_two_courses();
        add_three_partners(store);
        in_keyed_round([&](hand& user) {
            for (const int row : {2, 0, 1})
                user.click_row(partners, row);
            user.click_tab(u"TabStrip1"_s, 2);
            user.same(store.at(u"games2"_s, 2), u"5-12-7-"_s, u"partners"_s);
            user.click_tab(u"TabStrip1"_s, 3);
            user.same(store.at(u"games2"_s, 2), u"5-12-7-"_s, u"partners of a second save"_s);
            user.click_row(partners, 0);
            accept(user);
        });
        QCOMPARE(store.at(u"games2"_s, 2), u"12-7-"_s);
        store.add_partner(u"Zola"_s, u"Emile"_s, 1);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            // "1" is found in "12-7-": it is a plain text search.
            user.same(selected_lines(user).join(u'|'), u"Anne,Roy|Emile,Zola|Marie,Tremblay"_s,
                      u"selected partners"_s);
            discard(user);
        });
    }

    void a_round_without_partners_stores_the_empty_text()
    {
        const round_store store;
        store.add_two_courses();
        add_three_partners(store);
        in_keyed_round([](hand& user) { accept(user); });
        QCOMPARE(store.at(u"games2"_s, 2), QString());
    }

    void a_course_is_listed_by_its_padded_name_and_its_tee_data() { both_languages(); }
    void a_course_is_listed_by_its_padded_name_and_its_tee()
    {
        QFETCH(bool, french);
        const round_store store(french);
        store.add({u"ZED-6"_s, u" Zed "_s});
        store.add({u"ALPHA-1"_s, u"Alpha"_s});
        store.add({u"ODD-9"_s, u"Odd"_s});
        in_keyed_round([&](hand& user) {
            const auto line = [](const QString& name, const QString& tee) {
                return QString(name.leftJustified(195) + u", " + tee);
            };
            const QStringList expected{line(u"Zed"_s, french ? u"VERT"_s : u"GREEN"_s),
                                       line(u"Alpha"_s, french ? u"BLEU"_s : u"BLUE"_s),
                                       line(u"Odd"_s, QString())};
            user.same(user.entries(u"cmb_courses"_s).join(u'|'), expected.join(u'|'), u"courses"_s);
            user.same(user.selected(u"cmb_courses"_s), 0, u"course"_s);
            user.choose(u"cmb_courses"_s, 2);
            accept(user);
        });
        QCOMPARE(store.of_round(u"games"_s, u"CODEF"_s), u"ODD-9"_s);
    }

    void the_open_list_of_courses_omits_the_padding()
    {
        const round_store store;
        store.add_two_courses();
        in_keyed_round([](hand& user) {
            with_round(user, [](f_new_round& window) {
                auto& courses = find_control<course_box>(window, u"cmb_courses"_s);
                auto* lines = qobject_cast<QStyledItemDelegate*>(courses.itemDelegate());
                QCOMPARE(lines->displayText(courses.itemText(1), QLocale()), u"Beta, VERT"_s);
                courses.showPopup();
                QCOMPARE(courses.view()->window()->width(), courses.width());
                courses.hidePopup();
            });
            discard(user);
        });
    }

    void the_costs_of_a_round_are_added_up()
    {
        const round_store store;
        store.add_two_courses();
        store.add_round(key_of_keyed_round());
        store.store.write(u"update cost set fg = 40, cm = 5, au = 7"_s);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(user.text(u"text_7"_s), u"52"_s, u"costs"_s);
            discard(user);
        });
    }

    void a_stored_round_without_costs_gets_a_row_of_zeros()
    {
        const round_store store;
        store.add_two_courses();
        store.add_round(u"20230101120000"_s);
        store.add_round(key_of_keyed_round());
        store.store.write(u"delete from cost where date = '20240614093000'"_s);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            user.same(user.text(u"text_7"_s), u"0"_s, u"costs"_s);
            discard(user);
        });
        QCOMPARE(store.number(u"select fg + au from cost where date = '20240614093000'"_s), 0);
        QCOMPARE(store.number(u"select count(*) from cost"_s), 2);
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
            user.same(user.text(u"text_7"_s), u"0"_s, u"costs"_s);
            user.same(store.at(u"cost"_s, 0), key_of_keyed_round(), u"key"_s);
            discard(user);
        });
    }
};

QTEST_MAIN(test_round_parameters)

#include "test_round_parameters.moc"
