#include "shell/MainForm.h"

#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

#include <memory>

#include "base/language.h"
#include "base/program.h"
#include "controls/control_array.h"
#include "controls/events.h"
#include "controls/failure_guard.h"
#include "controls/Form.h"
#include "controls/screen_limits.h"
#include "shell/main_commands.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize wanted_size(1200, 780);
constexpr QSize least_size(640, 400);
constexpr QSize tool_icon_size(28, 28);

std::unique_ptr<MainForm> the_main_form;

QString caption_of(const text_pair& caption)
{
    return caption.english.isEmpty() ? caption.french.toString() : caption.in(is_french);
}

QAction* make_action(QStringView name, void (*command)(), QObject* owner)
{
    auto* action = named(new QAction(owner), name);
    if (command)
        QObject::connect(action, &QAction::triggered, action, [command] { run_event(command); });
    return action;
}

}  // namespace

MainForm::MainForm()
{
    setObjectName(u"MainForm"_s);
    const QSize largest = largest_size_on_screen(*this);
    setMinimumSize(least_size.boundedTo(largest));
    // The default context menu hides the toolbar, and no command would show it again.
    setContextMenuPolicy(Qt::NoContextMenu);
    resize(wanted_size.boundedTo(largest));
    for (const top_menu& menu : main_menu())
        add_menu(menu);
    add_toolbar();
    add_pictures();
    set_main_frame(this);
    load();
}

MainForm::~MainForm()
{
    set_main_frame(nullptr);
}

MainForm* MainForm::of_run()
{
    return the_main_form.get();
}

void MainForm::show_first()
{
    the_main_form = std::make_unique<MainForm>();
    the_main_form->show();
    the_main_form->activated();
    // The size of its frame is known only after the window is shown.
    after_first_paint(*the_main_form, [] { keep_on_screen(*the_main_form); });
}

void MainForm::end_of_run()
{
    the_main_form.reset();
}

QAction* MainForm::add_entry(const menu_entry& entry)
{
    QAction* action = make_action(entry.name, entry.command, this);
    action->setVisible(!entry.hidden);
    action->setEnabled(!entry.hidden);
    actions_[entry.name.toString()] = action;
    return action;
}

void MainForm::add_menu(const top_menu& top)
{
    if (top.command) {
        menuBar()->addAction(
            add_entry({top.name, top.caption, top.command, top.locked_while_a_window_is_open}));
        return;
    }
    QMenu* menu = menuBar()->addMenu(QString());
    named(menu->menuAction(), top.name);
    actions_[top.name.toString()] = menu->menuAction();
    for (const menu_entry& entry : top.entries)
        menu->addAction(add_entry(entry));
}

void MainForm::add_toolbar()
{
    auto* toolbar = named(new QToolBar, u"Toolbar1");
    toolbar->setMovable(false);
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    toolbar->setIconSize(tool_icon_size);
    for (const tool_button& button : main_toolbar()) {
        auto* action = make_action(u"", button.command, this);
        action->setIcon(QIcon(u":/art/%1.svg"_s.arg(button.key)));
        action->setToolTip(button.tool_tip.toString());
        toolbar->addAction(action);
        named(toolbar->widgetForAction(action), button.key);
        tool_actions_[button.key.toString()] = action;
    }
    addToolBar(toolbar);
}

void MainForm::add_pictures()
{
    auto* background = new QWidget;
    Picture1_ = named(new picture_pane(u":/art/landscape_fr.svg"_s, background), u"Picture1");
    Picture2_ = named(new picture_pane(u":/art/landscape_en.svg"_s, background), u"Picture2");
    setCentralWidget(background);
    notes_ = std::make_unique<pane_notes>(*background, is_french);
}

void MainForm::load()
{
    for (const top_menu& menu : main_menu()) {
        actions_.at(menu.name.toString())->setText(caption_of(menu.caption));
        for (const menu_entry& entry : menu.entries)
            actions_.at(entry.name.toString())->setText(caption_of(entry.caption));
    }
    name_tool_buttons();
    tick_language();
    shortcuts_.set_language(is_french);
    notes_->set_language(is_french);
}

void MainForm::name_tool_buttons()
{
    for (const tool_button& button : main_toolbar()) {
        auto* control = findChild<QToolButton*>(button.key.toString());
        const QString name = in_language(button.tool_tip, button.english_name);
        control->setAccessibleName(name);
        // Without one a screen reader reads the tool tip, which is French in both languages.
        control->setAccessibleDescription(name);
    }
}

void MainForm::unload()
{
    if (Form* f_games = open_form(u"f_games"))
        f_games->unload();
}

void MainForm::reload()
{
    unload();
    load();
    show();
    activated();
}

void MainForm::tick_language()
{
    for (const QString& name : {u"mfr"_s, u"mEn"_s})
        actions_.at(name)->setCheckable(true);
    actions_.at(u"mfr"_s)->setChecked(is_french);
    actions_.at(u"mEn"_s)->setChecked(!is_french);
}

void MainForm::set_locked(bool locked)
{
    for (const top_menu& menu : main_menu()) {
        if (menu.locked_while_a_window_is_open)
            actions_.at(menu.name.toString())->setEnabled(!locked);
        for (const menu_entry& entry : menu.entries) {
            if (entry.locked_while_a_window_is_open)
                actions_.at(entry.name.toString())->setEnabled(!locked);
        }
    }
    for (const tool_button& button : main_toolbar()) {
        if (button.locked_while_a_window_is_open)
            enable_tool_button(button.key, !locked);
    }
}

void MainForm::enable_tool_button(QStringView key, bool enabled)
{
    const auto found = tool_actions_.find(key.toString());
    if (found != tool_actions_.end())
        found->second->setEnabled(enabled);
}

void MainForm::activated()
{
    setWindowTitle(in_language(u"Verdane pour PC version ", u"Verdane for PC version ") + program_version());
    if (first_steps_known_)
        update_first_steps();
    fit_pictures();
    Picture1_->setVisible(is_french);
    Picture2_->setVisible(!is_french);
}

void MainForm::fit_pictures()
{
    const QRect place = notes_->lay_out();
    for (picture_pane* picture : {Picture1_, Picture2_})
        picture->setGeometry(place);
}

void MainForm::show_problem(const text_pair& line, const QString& details)
{
    notes_->show_problem(line, details);
    fit_pictures();
}

void MainForm::update_first_steps()
{
    first_steps_known_ = true;
    notes_->show_first_steps(!a_course_is_stored());
    fit_pictures();
}

void MainForm::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    fit_pictures();
}

void MainForm::closeEvent(QCloseEvent* event)
{
    run_event([this] { unload(); });
    event->accept();
}

}  // namespace verdane
