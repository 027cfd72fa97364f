#include "controls/Form.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>

#include <algorithm>
#include <vector>

#include "base/language.h"
#include "controls/box_focus.h"
#include "controls/failure_guard.h"
#include "controls/look.h"
#include "controls/main_frame.h"
#include "controls/screen_limits.h"
#include "controls/scrolled_content.h"
#include "controls/shortcuts.h"

namespace verdane {

namespace {

constexpr int top_twips = 40;

/// The windows that are shown, in the order in which they were opened.
std::vector<Form*>& open_forms()
{
    static std::vector<Form*> forms;
    return forms;
}

QWidget* parent_of_a_new_form()
{
    if (Form* opener = active_form())
        return opener;
    return main_frame() ? main_frame()->frame_widget() : nullptr;
}

}  // namespace

QPointer<Form> current_form;

Form::Form(QStringView family, twins kind)
    : french_(is_french), shortcuts_(new window_shortcuts(*this, french_))
{
    const bool english_twin = kind == twins::two && !french_;
    setObjectName(english_twin ? family.toString() + u"_en" : family.toString());
    setWindowModality(Qt::ApplicationModal);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    shortcuts_->mention(shortcut_table::cancel);
}

Form::~Form()
{
    std::erase(open_forms(), this);
}

QString Form::caption(QStringView french, QStringView english) const
{
    return text_pair{french, english}.in(french_);
}

scrolled_content* Form::scrolled(QLayout* content)
{
    return scrolled_.emplace_back(new scrolled_content(content));
}

void Form::resize_now(QSize size)
{
    layout()->activate();
    resize(size);
    // The layout of a window that is not shown is updated only on request.
    layout()->invalidate();
    layout()->activate();
}

void Form::take_size(QSize wanted)
{
    resize_now(wanted);
    // A wider paragraph can be less high, so the second pass measures the height again.
    for (int pass = 0; pass < 2; ++pass) {
        for (scrolled_content* content : scrolled_)
            resize_now(size() + content->missing());
    }
    keep_on_screen(*this);
}

void Form::show_modal()
{
    if (!loaded_)
        return;
    Form* opener = active_form();
    setParent(parent_of_a_new_form(), windowFlags());
    open_forms().push_back(this);
    keep_on_screen(*this);
    show();
    keep_on_screen(*this);
    raise();
    activateWindow();
    activated();
    run_until_unloaded();
    std::erase(open_forms(), this);
    activate_opener(opener);
}

void Form::activate_opener(Form* opener)
{
    if (opener && opener->is_loaded()) {
        opener->activateWindow();
        opener->activated();
    } else if (!opener && main_frame()) {
        main_frame()->frame_widget()->activateWindow();
        main_frame()->activated();
    }
}

void Form::run_until_unloaded()
{
    if (loaded_)
        loop_.exec();
}

void Form::unload()
{
    if (!loaded_)
        return;
    loaded_ = false;
    unloading();
    hide();
    loop_.quit();
}

void Form::paint_now()
{
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
}

void Form::closeEvent(QCloseEvent* event)
{
    event->ignore();
    run_event([this] { close_requested(); });
}

void Form::reject()
{
    run_event([this] {
        if (!cancel_button_)
            close_requested();
        else if (leave_focused_box(*this))
            cancel_button_->click();
    });
}

void Form::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
        return;
    }
    if (auto* button = qobject_cast<QAbstractButton*>(focusWidget()))
        button->click();
}

Form* active_form()
{
    auto& forms = open_forms();
    const auto last =
        std::find_if(forms.rbegin(), forms.rend(), [](Form* form) { return form->is_loaded(); });
    return last == forms.rend() ? nullptr : *last;
}

Form* open_form(QStringView family)
{
    const auto of_family = [family](Form* form) {
        const QString name = form->objectName();
        return form->is_loaded() && (name == family || name == family.toString() + u"_en");
    };
    auto& forms = open_forms();
    const auto found = std::find_if(forms.begin(), forms.end(), of_family);
    return found == forms.end() ? nullptr : *found;
}

void Place_and_lock(Form& form)
{
    if (main_frame()) {
        const QRect frame = main_frame()->frame_widget()->geometry();
        const int left = (frame.width() - form.width()) / 2;
        form.move(frame.topLeft() + QPoint(left, pixels(top_twips)));
        keep_on_screen(form);
    }
    Lock_menu();
}

QPushButton* make_button(const QString& caption)
{
    auto* button = new QPushButton(caption);
    button->setAutoDefault(false);
    return button;
}

QPushButton* make_end_button(const QString& caption)
{
    auto* button = make_button(caption);
    button->setMinimumWidth(12 * rhythm);
    return button;
}

}  // namespace verdane
