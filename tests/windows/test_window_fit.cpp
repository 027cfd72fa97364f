#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTest>

#include "base/failure_words.h"
#include "base/program.h"
#include "controls/boxes.h"
#include "controls/lock_box.h"
#include "controls/look.h"
#include "controls/TabStrip.h"
#include "shell/f_lang.h"
#include "tests/shell/program_run.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/window_look.h"
#include "tests/windows/every_window.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The controls that must be completely visible on every screen, and the size of the window on a screen that
/// is large enough.
struct fixed_parts {
    QStringList buttons;
    QSize size{0, 0};
};

const QHash<QString, fixed_parts>& windows()
{
    static const QHash<QString, fixed_parts> all{
        {u"MainForm"_s, {{u"Toolbar1"_s}}},
        {u"f_lang"_s, {{u"Command1_1"_s, u"Command1_0"_s, u"Command2"_s}}},
        {u"f_about"_s, {{u"cmdSysInfo"_s, u"cmdOK"_s}}},
        {u"f_c_list"_s, {{u"Command1_0"_s, u"Command1_1"_s, u"Command1_2"_s, u"Command1_3"_s}}},
        {u"f_courses"_s, {{u"TabStrip1"_s, u"smdsave"_s, u"cmdan"_s}, {694, 580}}},
        {u"f_partners"_s, {{u"add"_s, u"Del"_s, u"cmdSave"_s, u"cmdAn"_s}}},
        {u"f_sticks"_s, {{u"Command1"_s, u"enr"_s, u"Fer"_s}, {466, 0}}},
        {u"f_get_date"_s, {{u"OKbut"_s, u"Command1"_s}}},
        {u"f_new_round"_s, {{u"TabStrip1"_s, u"Command1_4"_s, u"Command1_2"_s}, {1024, 668}}},
        {u"f_cost"_s, {{u"OKButton"_s}}},
        {u"f_games"_s, {{u"Command1_0"_s, u"Command1_1"_s, u"Command1_2"_s, u"Command1_3"_s}}},
        {u"f_date_range"_s, {{u"CancelButton"_s}}},
        {u"f_carte"_s, {{u"Command1_0"_s, u"Command1_1"_s}}},
        {u"report_preview"_s, {{u"print"_s}}},
    };
    return all;
}

fixed_parts parts_of(const QString& window)
{
    const QString family = window.endsWith(u"_en"_s) ? window.chopped(3) : window;
    Q_ASSERT(windows().contains(family));
    return windows().value(family);
}

/// The size of the part of a control that the widgets around it leave visible.
QSize visible_part(const QWidget& control)
{
    QRect seen = control.rect();
    for (const QWidget* inner = &control; !inner->isWindow(); inner = inner->parentWidget())
        seen = seen.translated(inner->pos()) & inner->parentWidget()->rect();
    return seen.size();
}

QSize view_around(const QWidget& control)
{
    for (const QWidget* outer = control.parentWidget(); outer; outer = outer->parentWidget()) {
        if (const auto* area = qobject_cast<const QScrollArea*>(outer))
            return area->viewport()->size();
    }
    return control.window()->size();
}

/// Completely visible, or filling a view that is smaller than the control.
bool is_visible(const QWidget& control)
{
    return control.isVisible() && visible_part(control) == control.size().boundedTo(view_around(control));
}

QStringList missing_buttons(const QWidget& window)
{
    QStringList missing;
    for (const QString& name : parts_of(window.objectName()).buttons) {
        const auto* control = window.findChild<QWidget*>(name);
        if (!control || !control->isVisible() || visible_part(*control) != control->size())
            missing << name + u" is not completely visible";
    }
    return missing;
}

/// The labels, buttons, frames and boxes that are not completely visible in a window that does not scroll.
QStringList cut_off_controls(const QWidget& window)
{
    QStringList cut_off;
    for (const QWidget* control : scrolls(window) ? QList<QWidget*>() : window.findChildren<QWidget*>()) {
        const bool has_text =
            qobject_cast<const QLabel*>(control) || qobject_cast<const QPushButton*>(control) ||
            qobject_cast<const QGroupBox*>(control) || qobject_cast<const QLineEdit*>(control);
        if (has_text && control->isVisible() && visible_part(*control) != control->size())
            cut_off << control->objectName() + u" is cut off";
    }
    return cut_off;
}

QStringList size_faults(const QWidget& window)
{
    QStringList faults;
    const QRect screen = window.screen()->availableGeometry();
    if (!screen.contains(window.frameGeometry()))
        faults << u"extends beyond the screen"_s;
    const QSize frame = window.frameGeometry().size() - window.size();
    const QSize wanted = parts_of(window.objectName()).size.boundedTo(screen.size() - frame);
    if (window.size().expandedTo(wanted) != window.size())
        faults << u"%1 x %2 pixels, smaller than required"_s.arg(window.width()).arg(window.height());
    return faults;
}

/// The tabs that cannot be scrolled into the row of tabs.
QStringList unreachable_tabs(const QWidget& window)
{
    QStringList faults;
    for (auto* tabs : window.findChildren<QTabBar*>()) {
        auto& strip = dynamic_cast<TabStrip&>(*tabs);
        const int chosen = strip.selected();
        for (int tab = 1; tab <= strip.count(); ++tab) {
            strip.select(tab);
            if (!strip.rect().contains(strip.tabRect(tab - 1)))
                faults << u"tab %1 of %2 cannot be reached"_s.arg(tab).arg(strip.objectName());
        }
        strip.select(chosen);
    }
    return faults;
}

/// The buttons that are not completely visible in the smallest window.
QStringList missing_when_small(QWidget& window)
{
    const QSize size = window.size();
    window.resize(1, 1);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QStringList faults = missing_buttons(window);
    if (!faults.isEmpty())
        faults.prepend(u"in the smallest window:"_s);
    window.resize(size);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return faults;
}

QString described(const QWidget& control)
{
    const auto measure = [](const QSize& size) -> QString {
        return QString::number(size.width()) + u'x' + QString::number(size.height());
    };
    const QString name = control.objectName().isEmpty()
                             ? QString::fromLatin1(control.metaObject()->className())
                             : control.objectName();
    return name + u", size " + measure(control.size()) + u", visible " + measure(visible_part(control)) +
           u", view " + measure(view_around(control)) + u',';
}

/// Moves the focus once around the window by the Tab key; the controls that have it without being visible.
QStringList hidden_with_focus(hand& user)
{
    constexpr int most_keys = 200;
    QStringList faults;
    const QWidget* first = nullptr;
    bool left_first = false;
    for (int keys = 0; keys < most_keys; ++keys) {
        const QWidget* now = nullptr;
        user.look([&] {
            // The view scrolls to the focus after the layout is done.
            QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            now = QApplication::focusWidget();
            if (now && !is_visible(*now))
                faults << described(*now) + u" has the focus and is not visible";
        });
        if (!first)
            first = now;
        left_first |= now != first;
        if (!now || (left_first && now == first))
            break;
        user.key(Qt::Key_Tab);
    }
    faults.removeDuplicates();
    return faults;
}

QStringList faults_of(hand& user, const QString& window)
{
    QStringList faults;
    user.look([&] {
        QWidget& seen = *visible_window(window);
        faults << size_faults(seen) << missing_buttons(seen) << cut_off_controls(seen)
               << unreachable_tabs(seen);
        for (const QString& clipped : clipped_controls_of(seen))
            faults << clipped + u" is clipped";
        faults << missing_when_small(seen);
    });
    return faults << hidden_with_focus(user);
}

/// The faults of a message box that is shown: parts beyond the screen, and texts that are cut off.
QStringList faults_of_box(const QWidget& box)
{
    QStringList faults;
    if (!box.screen()->availableGeometry().contains(box.frameGeometry()))
        faults << u"extends beyond the screen"_s;
    for (const QWidget* part : box.findChildren<QWidget*>()) {
        const bool has_text = qobject_cast<const QLabel*>(part) || qobject_cast<const QPushButton*>(part);
        if (has_text && part->isVisible() &&
            (visible_part(*part) != part->size() || part->height() < part->heightForWidth(part->width())))
            faults << described(*part) + u" is cut off";
    }
    return faults;
}

/// The list of Ctrl+F1 is longest in the round window.
QStringList faults_of_list(hand& user)
{
    QStringList faults;
    user.key(Qt::Key_F1, Qt::ControlModifier);
    user.wait_for_window(u"message_box"_s);
    user.look([&] { faults = faults_of_box(*visible_window(u"message_box"_s)); });
    user.key(Qt::Key_Escape);
    user.wait_until_closed(u"message_box"_s);
    return faults;
}

/// The box of a failure of that kind, with a statement as its details.
QStringList faults_of_failure_box(failure_kind kind)
{
    const run_time_failure failure(kind, u"insert into games "_s.repeated(20));
    const auto box = failure_box(failure, failure_words(kind).in(is_french), nullptr);
    box->show();
    QApplication::processEvents();
    return faults_of_box(*box);
}

QStringList faults_of_lock_box()
{
    const auto notice = make_lock_box();
    QApplication::processEvents();
    return faults_of_box(*visible_window(u"lock_box"_s));
}

/// The main window of a new diary.
QStringList faults_of_first_steps(bool french)
{
    QStringList faults;
    program_run run(french ? french_value : english_value);
    run.play_through([&](hand& user) {
        user.wait_until(u"the first steps"_s, [] { return find_control(u"first_steps"_s) != nullptr; });
        user.look([&] { faults = faults_of_box(*visible_window(u"MainForm"_s)); });
        user.menu(u"mQuit"_s);
    });
    return faults;
}

}  // namespace

/// Runs once for each kind of screen, which the environment sets up.
class test_window_fit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        apply_look(*qApp);
        for (const bool french : {true, false})
            visit_every_window(french, [&](hand& user, const program_window& window) {
                faults_.add(window, french, faults_of(user, window.name(french)));
                if (window.view == u"f_new_round"_s)
                    faults_.add(window, french, faults_of_list(user));
            });
    }

    void every_window_fits_on_its_screen_with_all_its_controls_data() { every_window_in_both_languages(); }
    void every_window_fits_on_its_screen_with_all_its_controls() { faults_.verify_nothing_found(); }

    void every_notice_and_the_first_steps_lie_on_the_screen_with_their_whole_texts_data()
    {
        QTest::addColumn<bool>("french");
        QTest::newRow("French") << true;
        QTest::newRow("English") << false;
    }
    void every_notice_and_the_first_steps_lie_on_the_screen_with_their_whole_texts()
    {
        QFETCH(bool, french);
        set_interface_language(french);
        QStringList faults = faults_of_lock_box() + faults_of_first_steps(french);
        for (int kind = 0; kind <= static_cast<int>(failure_kind::report_output); ++kind)
            faults << faults_of_failure_box(static_cast<failure_kind>(kind));
        QCOMPARE(faults.join(u'\n'), QString());
    }

private:
    window_findings faults_;
};

QTEST_MAIN(test_window_fit)
#include "test_window_fit.moc"
