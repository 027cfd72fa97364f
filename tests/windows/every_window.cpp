#include "tests/windows/every_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QWidget>

#include "base/language.h"
#include "tests/shell/program_run.h"
#include "tests/support/full_diary.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/stored_diary.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int not_chosen = 0;
constexpr int rounds_of_diary = 20;

using steps = std::function<void(hand&)>;

bool has_twin(const QString& family)
{
    static const QStringList without{u"f_lang"_s, u"MainForm"_s, u"f_get_date"_s, u"report_preview"_s};
    return !without.contains(family);
}

QString name_in(bool french, const QString& family)
{
    return french || !has_twin(family) ? family : family + u"_en";
}

steps choose(const QString& entry)
{
    return [entry](hand& user) { user.menu(entry); };
}

void open_below(hand& user, const QString& entry, const QString& family)
{
    user.menu(entry);
    user.wait_for_window(name_in(is_french, family));
}

/// The course with the longest name and the longest total is the last one of the list.
steps choose_course_page(int page)
{
    return [page](hand& user) {
        open_below(user, u"mManagF"_s, u"f_c_list"_s);
        user.click_row(u"List1"_s, static_cast<int>(user.entries(u"List1"_s).size()) - 1);
        user.click(u"Command1_0"_s);
        user.wait_for_window(name_in(is_french, u"f_courses"_s));
        user.same(user.text(u"lbl_total"_s), u"-32760"_s, u"the longest total"_s);
        user.click_tab(u"TabStrip1"_s, page);
    };
}

/// The last round, on a page (1 quick, 2 shot by shot) and a hole.
void open_round(hand& user, int page, int hole)
{
    open_below(user, u"mnOPenr"_s, u"f_games"_s);
    user.double_click_row(u"List1"_s, rounds_of_diary - 1);
    user.wait_for_window(name_in(is_french, u"f_new_round"_s));
    if (page != 1)
        user.click_tab(u"TabStrip2"_s, page);
    if (hole != 1)
        user.click_tab(u"TabStrip1"_s, hole);
}

steps choose_round(int page, int hole)
{
    return [=](hand& user) { open_round(user, page, hole); };
}

void open_costs(hand& user)
{
    open_round(user, 1, 1);
    user.click(u"Command2"_s);
}

void open_bag_with_filters(hand& user)
{
    open_below(user, u"mnBat"_s, u"f_sticks"_s);
    user.click(u"Command1"_s);
}

void open_preview(hand& user)
{
    open_below(user, u"mCarte"_s, u"f_carte"_s);
    user.click(u"Command1_0"_s);
}

/// Names and figures that need much space.
void add_widest_texts(const reader& store)
{
    const diary book(store);
    book.add(diary_course{.code = u"CLUB DES PINS DU GRAND LAC-7"_s,
                          .name = u"Club des Pins du Grand Lac"_s,
                          .name_tee = u"Club des Pins du Grand Lac-7"_s,
                          .yards = all_holes(-1820)});
    book.add_partner(u"Marie-Josée"_s, u"Tremblay-Gagnon"_s, 1729);
    store.write(u"update cost set fg = 9999, cm = 9999, vt = 9999 where date = '%1'"_s.arg(
        key_in_diary(rounds_of_diary - 1)));
}

bool close_message_box(hand& user)
{
    bool closed = false;
    user.look([&closed] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        QAbstractButton* no = box->button(QMessageBox::No);
        QMetaObject::invokeMethod(no ? no : box->button(QMessageBox::Ok), &QAbstractButton::click,
                                  Qt::QueuedConnection);
        closed = true;
    });
    user.look([] {});
    return closed;
}

void close_preview(hand& user)
{
    user.close_window(u"report_preview"_s);
    user.wait_until_closed(u"report_preview"_s);
    // Without a window manager the window below does not get the keyboard focus again.
    user.look([] { windows_taking_input().constLast()->activateWindow(); });
}

bool is_window_open(hand& user)
{
    bool open = false;
    user.look([&open] { open = QApplication::activeModalWidget() != nullptr; });
    return open;
}

/// Closes windows by Escape, and answers questions with No, down to the main window.
void back_to_main_window(hand& user)
{
    for (;;) {
        if (user.is_open(u"report_preview"_s))
            close_preview(user);
        else if (!is_window_open(user))
            return;
        else if (!close_message_box(user))
            user.key(Qt::Key_Escape);
    }
}

void visit_language_window(hand& user, bool french, const look_at_window& look)
{
    const program_window& first = every_window().front();
    user.wait_for_window(first.family);
    look(user, first);
    while (close_message_box(user)) {
    }
    user.click(french ? u"Command1_1"_s : u"Command1_0"_s);
    user.wait_for_window(u"MainForm"_s);
}

void visit_all(hand& user, bool french, const look_at_window& look)
{
    visit_language_window(user, french, look);
    for (std::size_t i = 1; i < every_window().size(); ++i) {
        const program_window& window = every_window()[i];
        window.open(user);
        user.wait_for_window(window.name(french));
        look(user, window);
        back_to_main_window(user);
    }
    user.menu(u"mQuit"_s);
}

}  // namespace

QString program_window::name(bool french) const
{
    return name_in(french, family);
}

const std::vector<program_window>& every_window()
{
    static const std::vector<program_window> windows{
        {u"f_lang"_s, u"f_lang"_s, {}, {}},
        {u"MainForm"_s, u"MainForm"_s, {}, [](hand&) {}},
        {u"f_about"_s, u"f_about"_s, {}, choose(u"maprop"_s)},
        {u"f_c_list"_s, u"f_c_list"_s, {}, choose(u"mManagF"_s)},
        {u"f_courses page 1"_s, u"f_courses"_s, u"cmdan"_s, choose_course_page(1)},
        {u"f_courses page 2"_s, u"f_courses"_s, u"cmdan"_s, choose_course_page(2)},
        {u"f_courses page 3"_s, u"f_courses"_s, u"cmdan"_s, choose_course_page(3)},
        {u"f_partners"_s, u"f_partners"_s, u"cmdAn"_s, choose(u"mpartners"_s)},
        {u"f_sticks"_s, u"f_sticks"_s, u"Fer"_s, choose(u"mnBat"_s)},
        {u"f_sticks with filters"_s, u"f_sticks"_s, u"Fer"_s, open_bag_with_filters},
        {u"f_get_date"_s, u"f_get_date"_s, u"Command1"_s, choose(u"mOpen"_s)},
        {u"f_games"_s, u"f_games"_s, {}, choose(u"mnOPenr"_s)},
        {u"f_new_round"_s, u"f_new_round"_s, u"Command1_2"_s, choose_round(1, 1)},
        {u"f_new_round on hole 18"_s, u"f_new_round"_s, u"Command1_2"_s, choose_round(1, 18)},
        {u"f_new_round shot by shot"_s, u"f_new_round"_s, u"Command1_2"_s, choose_round(2, 1)},
        {u"f_new_round shot by shot on hole 18"_s, u"f_new_round"_s, u"Command1_2"_s, choose_round(2, 18)},
        {u"f_cost"_s, u"f_cost"_s, {}, open_costs},
        {u"f_date_range for clubs"_s, u"f_date_range"_s, u"CancelButton"_s, choose(u"mnStabat"_s)},
        {u"f_date_range for putts"_s, u"f_date_range"_s, u"CancelButton"_s, choose(u"mnStatcr"_s)},
        {u"f_date_range for rounds"_s, u"f_date_range"_s, u"CancelButton"_s, choose(u"mnstatr"_s)},
        {u"f_date_range for costs"_s, u"f_date_range"_s, u"CancelButton"_s, choose(u"mncouts"_s)},
        {u"f_carte"_s, u"f_carte"_s, u"Command1_1"_s, choose(u"mCarte"_s)},
        {u"report_preview"_s, u"report_preview"_s, {}, open_preview},
    };
    return windows;
}

void visit_every_window(bool french, const look_at_window& look)
{
    program_run run(not_chosen);
    create_diary(run.store_place(), rounds_of_diary, true);
    add_widest_texts(run.store());
    run.play_through([&](hand& user) { visit_all(user, french, look); });
}

void every_window_in_both_languages(const window_filter& filter)
{
    QTest::addColumn<QString>("view");
    QTest::addColumn<bool>("french");
    for (const bool french : {true, false}) {
        for (const program_window& window : every_window()) {
            if (filter(window))
                QTest::addRow("%s %s", qUtf8Printable(window.view), french ? "French" : "English")
                    << window.view << french;
        }
    }
}

void every_window_once()
{
    QTest::addColumn<QString>("view");
    for (const program_window& window : every_window())
        QTest::addRow("%s", qUtf8Printable(window.view)) << window.view;
}

void window_findings::verify_nothing_found() const
{
    QFETCH(QString, view);
    QFETCH(bool, french);
    QVERIFY(has(view, french));
    QCOMPARE(of(view, french).join(u'\n'), QString());
}

}  // namespace verdane::testing
