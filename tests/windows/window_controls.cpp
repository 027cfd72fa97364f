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

/// Parts that the toolkit makes for its own controls.
bool is_part_of_control(const QWidget& control)
{
    return control.objectName().startsWith(u"qt_") || !control.parentWidget();
}

/// The captions of a window, collected one after the other.
class caption_list {
public:
    void add(const QString& name, const QString& caption)
    {
        if (std::any_of(caption.begin(), caption.end(), [](QChar character) { return character.isLetter(); }))
            lines_ << name + u'=' + caption;
    }
    void add_tabs(const QTabBar& tabs)
    {
        for (int tab = 0; tab < tabs.count(); ++tab)
            add(tabs.objectName(), tabs.tabText(tab));
    }
    void add_columns(const QTableView& grid)
    {
        for (int column = 0; column < grid.model()->columnCount(); ++column)
            add(grid.objectName(), grid.model()->headerData(column, Qt::Horizontal).toString());
    }
    void add_menu(const QAction& entry)
    {
        add(entry.objectName(), entry.text());
        for (const QAction* below : entry.menu() ? entry.menu()->actions() : QList<QAction*>())
            add_menu(*below);
    }
    QStringList sorted() const
    {
        QStringList lines = lines_;
        lines.sort();
        return lines;
    }

private:
    QStringList lines_;
};

}  // namespace

QStringList controls_of(const QWidget& window)
{
    QStringList lines;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (!control->objectName().isEmpty() && !is_part_of_control(*control))
            lines << control->objectName() + u' ' + QLatin1StringView(control->metaObject()->className()) +
                         (control->isVisibleTo(&window) ? u" visible" : u"");
    }
    lines.sort();
    return lines;
}

QStringList unnamed_controls_of(const QWidget& window)
{
    QStringList unnamed;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(control);
        if (control->objectName().isEmpty() &&
            (control->focusPolicy() != Qt::NoFocus || (label && label->buddy())))
            unnamed << QString::fromLatin1(control->metaObject()->className()) +
                           (label ? u' ' + label->text() : QString());
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
    return captions.sorted();
}

}  // namespace verdane::testing
