#include "tests/windows/window_controls.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QTabBar>
#include <QTableView>

#include <algorithm>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

/// Parts that the toolkit creates for its controls.
bool is_part_of_control(const QWidget& control)
{
    return control.objectName().startsWith(u"qt_") || qobject_cast<const QTabBar*>(control.parentWidget());
}

/// The captions of a window, collected one after the other.
class caption_list {
public:
    void add(const QString& name, const QString& caption)
    {
        const auto has = [&caption](bool (QChar::*kind)() const) {
            return std::any_of(caption.begin(), caption.end(), [kind](QChar each) { return (each.*kind)(); });
        };
        const bool is_figure = has(&QChar::isDigit) && !has(&QChar::isLetter);
        if (!is_figure && !caption.trimmed().isEmpty() && !name.startsWith(u"qt_"))
            lines_ << name + u'=' + caption;
    }
    void add_tabs(const QTabBar& tabs)
    {
        QStringList captions;
        for (int tab = 0; tab < tabs.count(); ++tab)
            captions << tabs.tabText(tab);
        add(tabs.objectName(), captions.join(u'|'));
    }
    void add_columns(const QTableView& grid)
    {
        QStringList captions;
        for (int column = 0; column < grid.model()->columnCount(); ++column)
            captions << grid.model()->headerData(column, Qt::Horizontal).toString();
        add(grid.objectName(), captions.join(u'|'));
    }
    void add_menu(const QAction& entry)
    {
        add(entry.objectName(), entry.text());
        for (const QAction* below : entry.menu() ? entry.menu()->actions() : QList<QAction*>())
            add_menu(*below);
    }
    const QStringList& lines() const { return lines_; }

private:
    QStringList lines_;
};

}  // namespace

QStringList controls_of(const QWidget& window)
{
    QStringList lines;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (control->objectName().isEmpty() || is_part_of_control(*control))
            continue;
        // The main window has a picture for each language and shows one of them.
        const bool depends_on_language = control->objectName().startsWith(u"Picture");
        const bool visible = !depends_on_language && control->isVisibleTo(&window);
        lines << control->objectName() + u' ' + QString::fromLatin1(control->metaObject()->className()) +
                     (visible ? u" visible" : u"");
    }
    lines.sort();
    return lines;
}

QStringList unnamed_controls_of(const QWidget& window)
{
    QStringList unnamed;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (control->objectName().isEmpty() && control->focusPolicy() != Qt::NoFocus &&
            control->window() == &window)
            unnamed << QString::fromLatin1(control->metaObject()->className());
    }
    return unnamed;
}

QStringList captions_of(const QWidget& window)
{
    caption_list captions;
    captions.add(u"title"_s, window.windowTitle());
    for (const QLabel* label : window.findChildren<QLabel*>())
        captions.add(label->objectName(), label->text());
    for (const QGroupBox* frame : window.findChildren<QGroupBox*>())
        captions.add(frame->objectName(), frame->title());
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        captions.add(button->objectName(), button->text());
    for (const QTabBar* tabs : window.findChildren<QTabBar*>())
        captions.add_tabs(*tabs);
    for (const QTableView* grid : window.findChildren<QTableView*>())
        captions.add_columns(*grid);
    for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
        for (const QAction* entry : bar->actions())
            captions.add_menu(*entry);
    }
    return captions.lines();
}

}  // namespace verdane::testing
