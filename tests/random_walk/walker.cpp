#include "tests/random_walk/walker.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTableView>
#include <QTest>

#include "base/numbers.h"
#include "controls/data_grid.h"
#include "records/Main_module.h"
#include "round/f_new_round.h"
#include "tests/support/hand_widgets.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

const QStringList stored_columns{u"games.long_"_s,      u"games.approach_"_s,  u"games.putt_"_s,
                                 u"games2.fairway_"_s,  u"games2.sand_"_s,     u"games.missed_"_s,
                                 u"games2.recovery_"_s, u"games.pen_water_"_s, u"games.pen_lost_"_s,
                                 u"games.pen_rule_"_s,  u"games.pen_bounds_"_s};

f_new_round* round_window()
{
    return dynamic_cast<f_new_round*>(open_form(u"f_new_round"));
}

QString number_in(const QLineEdit& box)
{
    return QString::number(plain(to_int16(box.text())));
}

/// The number in a box of the round window.
QString number_in_round(const QString& box)
{
    return number_in(dynamic_cast<QLineEdit&>(*round_window()->findChild<QWidget*>(box)));
}

}  // namespace

walker::walker(hand& user, const reader& store, quint32 seed) : user_(user), store_(store), random_(seed) {}

void walker::walk(int steps)
{
    for (int i = 0; i < steps; ++i)
        step();
}

QString walker::window_on_top()
{
    QString name;
    user_.look([&] {
        QWidget* modal = QApplication::activeModalWidget();
        name = modal ? modal->objectName() : u"MainForm"_s;
    });
    return name.endsWith(u"_en") ? name.chopped(3) : name;
}

void walker::step()
{
    reset_round_keys();
    const QString window = window_on_top();
    if (window == u"message_box")
        answer_box();
    else if (window == u"MainForm")
        one_of(4) == 0 ? user_.menu(one_of(2) == 0 ? u"mEn"_s : u"mfr"_s) : user_.menu(u"mnOPenr"_s);
    else if (window == u"f_games")
        user_.double_click_row(u"List1"_s, one_of(2));
    else if (window == u"f_cost")
        one_of(3) == 0 ? user_.click(u"OKButton"_s) : user_.type(QString::number(one_of(10)));
    else if (window == u"f_new_round")
        step_in_round_window();
    else
        user_.fail(u"the walk has no steps for the window " + window);
}

/// Each save uses one of the 366 entries for keys until the program ends, and a walk saves more often.
void walker::reset_round_keys()
{
    user_.look([] {
        if (Main_module::round_key_count > 300)
            Main_module::round_key_count = 2;
    });
}

void walker::answer_box()
{
    ++boxes_answered_;
    const int choice = one_of(12);
    user_.look([choice] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        const QList<QAbstractButton*> buttons = box ? box->buttons() : QList<QAbstractButton*>();
        if (!buttons.isEmpty())
            QTest::mouseClick(static_cast<QWidget*>(buttons.at(choice % buttons.size())), Qt::LeftButton);
    });
}

void walker::step_in_round_window()
{
    switch (one_of(40)) {
    case 0:
        user_.click(u"Command1_4"_s);
        return;
    case 1:
        user_.click(u"Command1_2"_s);
        return;
    case 2:
        user_.click_tab(u"TabStrip2"_s, 1 + one_of(2));
        return;
    case 3:
        user_.key(Qt::Key_Escape);
        return;
    case 4:
        click_if_enabled(u"Command4"_s);
        return;
    case 5:
        click_if_enabled(u"Command2"_s);
        return;
    case 6:
    case 7:
    case 8:
    case 9:
        change_hole();
        return;
    default:
        break;
    }
    if (on_quick_page())
        step_on_quick_page();
    else
        step_on_detailed_page();
}

void walker::step_on_quick_page()
{
    switch (one_of(12)) {
    case 0:
        user_.type(u"x"_s);
        break;
    case 1:
        user_.key(Qt::Key_Tab);
        break;
    case 2:
        user_.key(Qt::Key_Backspace);
        break;
    case 3:
        user_.click(u"text_s_%1"_s.arg(8 + one_of(4)));
        break;
    case 4:
        user_.click(u"text_p_%1"_s.arg(3 + one_of(4)));
        break;
    default:
        press_some_key();
        break;
    }
}

/// Types a digit into a box of the hole. With the focus elsewhere a key could leave the hole unnoticed.
void walker::press_some_key()
{
    if (!user_.focus().startsWith(u"text_"))
        user_.click(u"text_vrd_%1"_s.arg(one_of(3)));
    user_.type(QString::number(one_of(10)));
}

void walker::step_on_detailed_page()
{
    switch (one_of(8)) {
    case 0:
        click_if_enabled(u"CommandSuiv"_s);
        break;
    case 1:
        click_if_enabled(u"CommandSup"_s);
        break;
    case 2:
        click_if_enabled(u"b_carte"_s);
        break;
    case 3:
    case 4:
        type_distance();
        break;
    default:
        choose_from_menu();
        break;
    }
}

void walker::click_if_enabled(const QString& control)
{
    bool enabled = false;
    user_.look([&] {
        QWidget* found = find_control(control);
        enabled = found && found->isVisible() && found->isEnabled();
    });
    if (enabled)
        user_.click(control);
}

void walker::type_distance()
{
    const int rows = user_.grid_rows(u"details"_s);
    if (rows == 0)
        return;
    user_.click_cell(u"details"_s, one_of(rows), 3);
    user_.type(QString::number(one_of(300)));
    user_.key(Qt::Key_Return);
}

void walker::choose_from_menu()
{
    static constexpr int menu_columns[] = {2, 5, 5, 6, 7, 8, 9, 10, 11};
    const int rows = user_.grid_rows(u"details"_s);
    if (rows == 0)
        return;
    user_.click_cell(u"details"_s, one_of(rows), menu_columns[one_of(std::size(menu_columns))]);
    user_.key(Qt::Key_F4);
    for (int down = one_of(4); down >= 0; --down)
        user_.key(Qt::Key_Down);
    user_.key(Qt::Key_Return);
    user_.look([] {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    });
}

void walker::change_hole()
{
    const bool quick = on_quick_page();
    const int left = shown_hole();
    const QString shown = boxes();
    const int wanted = 1 + one_of(18);
    // Choosing the shown hole in the list is no change and saves nothing.
    if (one_of(3) == 0 && quick && wanted != left)
        user_.choose(u"cmb_holes"_s, wanted - 1);
    else
        user_.click_tab(u"TabStrip1"_s, wanted);
    if (!quick || window_on_top() != u"f_new_round")
        return;
    compare_hole(boxes(), shown_hole());
    if (shown_hole() != left)
        compare_hole(shown, left);
}

void walker::compare_hole(const QString& shown, int hole)
{
    user_.same(shown, stored_hole(hole), u"figures of hole %1"_s.arg(hole));
    ++holes_compared_;
}

bool walker::on_quick_page()
{
    return user_.visible(u"Frame5_0"_s);
}

int walker::shown_hole()
{
    int hole = 0;
    user_.look([&] { hole = number_in_round(u"text_40"_s).toInt(); });
    return hole;
}

QString walker::boxes()
{
    QStringList figures;
    user_.look([&] {
        for (int i = 0; i <= 2; ++i)
            figures << number_in_round(u"text_vrd_%1"_s.arg(i));
        for (int i = 3; i <= 6; ++i)
            figures << number_in_round(u"text_p_%1"_s.arg(i));
        for (int i = 8; i <= 11; ++i)
            figures << number_in_round(u"text_s_%1"_s.arg(i));
    });
    return figures.join(u' ');
}

QString walker::stored_hole(int hole)
{
    QString key;
    user_.look([&] { key = round_window()->date_value(); });
    QStringList columns;
    for (const QString& column : stored_columns)
        columns << u"coalesce(%1%2, 0)"_s.arg(column).arg(hole);
    QStringList figures;
    const auto rows =
        store_.rows(u"select " + columns.join(u", ") +
                    u" from games, games2 where games.date = games2.date and games.date = '" + key + u"'");
    for (const QVariant& figure : rows.at(0))
        figures << figure.toString();
    return figures.join(u' ');
}

/// An incomplete shot prevents the window from closing, on both pages; so does the blank row of a hole
/// without shots, until the quick page removes it.
void walker::remove_a_shot()
{
    if (!on_quick_page() && one_of(2) == 0)
        click_if_enabled(u"CommandSup"_s);
    else
        user_.click_tab(u"TabStrip2"_s, on_quick_page() ? 2 : 1);
}

void walker::close_all_windows()
{
    int steps_left = 400;
    for (QString window = window_on_top(); window != u"MainForm"; window = window_on_top()) {
        if (--steps_left == 0)
            user_.fail(u"%1 cannot be closed, the focus is in %2"_s.arg(window, user_.focus()));
        if (window == u"message_box")
            answer_box();
        else if (window == u"f_new_round" && one_of(2) == 0)
            remove_a_shot();
        else
            user_.key(Qt::Key_Escape);
    }
}

}  // namespace verdane::testing
