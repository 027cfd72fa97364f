#include "tests/shell/main_windows.h"

#include <QAction>
#include <QTest>
#include <QToolButton>

#include "shell/MainForm.h"
#include "tests/shell/program_run.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

QAction* entry(const QString& name)
{
    return MainForm::of_run()->findChild<QAction*>(name);
}

QWidget* tool(const QString& key)
{
    return MainForm::of_run()->findChild<QToolButton*>(key);
}

void in_main_window(int language, const QStringList& statements, const std::function<void(hand&)>& script)
{
    program_run run(language, statements);
    run.play_through([&](hand& user) {
        user.wait_for_window(u"MainForm"_s);
        script(user);
        quit(user);
    });
}

void quit(hand& user)
{
    user.wait_for_window(u"MainForm"_s);
    user.menu(u"mQuit"_s);
}

void both_stored_languages()
{
    QTest::addColumn<int>("language");
    QTest::newRow("French") << 1;
    QTest::newRow("English") << 2;
}

}  // namespace verdane::testing
