#include "tests/shell/every_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "base/language.h"
#include "controls/Form.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"
#include "tests/support/hand_widgets.h"

namespace verdane::testing {

namespace {

using namespace Qt::StringLiterals;

using steps = std::function<void(hand&)>;

steps choose(const char* entry)
{
    return [entry](hand& user) { user.menu(QString::fromLatin1(entry)); };
}

/// Opens a window by the button of another one.
steps choose(const char* entry, const char* family, const char* button)
{
    return [=](hand& user) {
        user.menu(QString::fromLatin1(entry));
        user.wait_until(QString::fromLatin1(family),
                        [family] { return open_form(QString::fromLatin1(family)) != nullptr; });
        user.click(QString::fromLatin1(button));
    };
}

void open_costs(hand& user)
{
    choose("mnOPenr", "f_games", "Command1_0")(user);
    user.click(u"Command2"_s);
}

bool has_no_twin(const QString& family)
{
    return family == u"MainForm" || family == u"f_get_date" || family == u"report_preview";
}

void answer_box(hand& user)
{
    user.look([] {
        auto& box = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
        QAbstractButton* no = box.button(QMessageBox::No);
        QMetaObject::invokeMethod(no ? no : box.button(QMessageBox::Ok), &QAbstractButton::click,
                                  Qt::QueuedConnection);
    });
}

}  // namespace

const std::vector<reachable_window>& every_window()
{
    static const std::vector<reachable_window> windows{
        {"MainForm", nullptr, [](hand&) {}},
        {"f_c_list", nullptr, choose("mManagF")},
        {"f_courses", "cmdan", choose("mManagF", "f_c_list", "Command1_0")},
        {"f_carte", "Command1_1", choose("mCarte")},
        {"report_preview", nullptr, choose("mCarte", "f_carte", "Command1_0")},
        {"f_sticks", "Fer", choose("mnBat")},
        {"f_partners", "cmdAn", choose("mpartners")},
        {"f_games", nullptr, choose("mnOPenr")},
        {"f_new_round", "Command1_2", choose("mnOPenr", "f_games", "Command1_0")},
        {"f_cost", nullptr, open_costs},
        {"f_get_date", "Command1", choose("mOpen")},
        {"f_date_range", "CancelButton", choose("mnStatcr")},
        {"f_about", nullptr, choose("maprop")},
    };
    return windows;
}

QString name_of_twin(const reachable_window& window)
{
    const QString family = QString::fromLatin1(window.family);
    return is_french || has_no_twin(family) ? family : family + u"_en";
}

void every_window_in_both_languages(const window_filter& filter)
{
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("window");
    for (const int language : {1, 2}) {
        for (std::size_t index = 0; index < every_window().size(); ++index) {
            const reachable_window& window = every_window()[index];
            if (filter(window))
                QTest::addRow("%s %s", window.family, language == 1 ? "French" : "English")
                    << language << static_cast<int>(index);
        }
    }
}

void in_window(int language, int window, const std::function<void(hand&)>& script)
{
    in_main_window(language, one_course() + one_round(), [&](hand& user) {
        const reachable_window& chosen = every_window()[static_cast<std::size_t>(window)];
        chosen.open(user);
        user.wait_for_window(name_of_twin(chosen));
        script(user);
        back_to_main_window(user);
    });
}

void back_to_main_window(hand& user)
{
    for (;;) {
        QString name;
        user.look([&] {
            const QWidget* modal = QApplication::activeModalWidget();
            name = modal ? modal->objectName() : QString();
        });
        if (user.is_open(u"report_preview"_s)) {
            user.close_window(u"report_preview"_s);
            user.wait_until_gone(u"report_preview"_s);
            user.look([] { QApplication::activeModalWidget()->activateWindow(); });
        } else if (name == u"message_box") {
            answer_box(user);
            user.look([] {});
        } else if (name.isEmpty()) {
            return;
        } else {
            user.key(Qt::Key_Escape);
        }
    }
}

}  // namespace verdane::testing
