#include <QApplication>
#include <QScreen>
#include <QScrollArea>
#include <QTest>

#include "controls/look.h"
#include "controls/TabStrip.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/languages.h"
#include "tests/support/window_look.h"
#include "tests/windows/every_view.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// What must be in sight on every screen, and the size that a window has where the screen has room.
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
    return windows().value(window.endsWith(u"_en"_s) ? window.chopped(3) : window);
}

/// The part of a control that no widget around it cuts off.
QSize seen_part(const QWidget& control)
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

/// Completely in sight, or filling the view that is smaller than the control.
bool is_in_sight(const QWidget& control)
{
    return control.isVisible() && seen_part(control) == control.size().boundedTo(view_around(control));
}

QStringList missing_buttons(const QWidget& window)
{
    QStringList missing;
    for (const QString& name : parts_of(window.objectName()).buttons) {
        const auto* control = window.findChild<QWidget*>(name);
        if (!control || !control->isVisible() || seen_part(*control) != control->size())
            missing << name + u" is not in sight";
    }
    return missing;
}

QStringList size_faults(const QWidget& window)
{
    QStringList faults;
    const QRect screen = window.screen()->availableGeometry();
    if (!screen.contains(window.frameGeometry()))
        faults << u"stands out of the screen"_s;
    const QSize frame = window.frameGeometry().size() - window.size();
    const QSize wanted = parts_of(window.objectName()).size.boundedTo(screen.size() - frame);
    if (window.size().expandedTo(wanted) != window.size())
        faults << u"%1 x %2 pixels, smaller than specified"_s.arg(window.width()).arg(window.height());
    return faults;
}

/// The tabs that cannot be brought inside the row of tabs.
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

/// Made as small as it can be, the window keeps its buttons in sight.
QStringList lost_when_small(QWidget& window)
{
    const QSize size = window.size();
    window.resize(1, 1);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QStringList faults = missing_buttons(window);
    if (!faults.isEmpty())
        faults.prepend(u"as small as it can be"_s);
    window.resize(size);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return faults;
}

QString described(const QWidget& control)
{
    const auto measure = [](const QSize& size) -> QString {
        return QString::number(size.width()) + u'x' + QString::number(size.height());
    };
    const QString name = control.objectName().isEmpty() ? QLatin1String(control.metaObject()->className())
                                                        : control.objectName();
    return name + u" of " + measure(control.size()) + u", of which " + measure(seen_part(control)) +
           u" is seen in a view of " + measure(view_around(control)) + u',';
}

/// Leads the focus once around the window by the Tab key, and names the controls that had it unseen.
QStringList unseen_with_focus(hand& user)
{
    constexpr int most_keys = 200;
    QStringList faults;
    const QWidget* first = nullptr;
    bool left_first = false;
    for (int keys = 0; keys < most_keys; ++keys) {
        const QWidget* now = nullptr;
        user.look([&] {
            // The view follows the focus when the controls have their places.
            QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            now = QApplication::focusWidget();
            if (now && !is_in_sight(*now))
                faults << described(*now) + u" has the focus out of sight";
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
        faults << size_faults(seen) << missing_buttons(seen) << unreachable_tabs(seen);
        for (const QString& clipped : clipped_controls_of(seen))
            faults << clipped + u" is clipped";
        faults << lost_when_small(seen);
    });
    return faults << unseen_with_focus(user);
}

}  // namespace

/// Runs once for each kind of screen, which the environment sets up.
class test_window_fit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { apply_look(*qApp); }

    void every_window_lies_on_the_screen_with_all_its_controls_in_reach_data() { both_languages(); }
    void every_window_lies_on_the_screen_with_all_its_controls_in_reach()
    {
        QFETCH(bool, french);
        QStringList faults;
        int views = 0;
        visit_every_view(french, [&](hand& user, const QString& view, const QString& window) {
            ++views;
            for (const QString& fault : faults_of(user, window))
                faults << view + u": " + fault;
        });
        QCOMPARE(faults.join(u'\n'), QString());
        QVERIFY(views >= 23);
    }
};

QTEST_MAIN(test_window_fit)
#include "test_window_fit.moc"
