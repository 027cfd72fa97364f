#include "controls/accessible_controls.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace verdane {

namespace {

/// The selected entry as it is read, without padding if the entry has a text for screen readers.
QString selected_entry(const QComboBox& box)
{
    const QString to_read = box.currentData(Qt::AccessibleTextRole).toString();
    return to_read.isEmpty() ? box.currentText() : to_read;
}

/// Reports each change of the selected entry as one of the text.
void report_changes(QComboBox& box)
{
    QObject::connect(&box, &QComboBox::currentIndexChanged, &box,
                     [&box, before = selected_entry(box)](int) mutable {
                         const QString now = selected_entry(box);
                         QAccessibleTextUpdateEvent event(&box, 0, before, now);
                         QAccessible::updateAccessibility(&event);
                         before = now;
                     });
}

/// A combo box. On some desktops the toolkit uses the selected entry as its name. The bus of screen readers
/// has no value that is a text, so the entry is also the text of the box, which cannot be edited or selected.
class accessible_choice : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit accessible_choice(QComboBox& box) : QAccessibleWidget(&box, QAccessible::ComboBox), box_(box)
    {
        report_changes(box);
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? selected_entry(box_) : QAccessibleWidget::text(kind);
    }

    QString text(int from, int to) const override { return selected_entry(box_).mid(from, to - from); }
    int characterCount() const override { return static_cast<int>(selected_entry(box_).size()); }
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    int selectionCount() const override { return 0; }
    void selection(int, int* from, int* to) const override { *from = *to = 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return 0; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int, int* from, int* to) const override
    {
        *from = 0;
        *to = characterCount();
        return {};
    }

    int childCount() const override { return 1; }

    QAccessibleInterface* child(int index) const override
    {
        if (index != 0)
            return nullptr;
        box_.view()->setAccessibleName(text(QAccessible::Name));
        return QAccessible::queryAccessibleInterface(box_.view());
    }

    int indexOfChild(const QAccessibleInterface* entries) const override
    {
        return entries && entries->object() == box_.view() ? 0 : -1;
    }

    QStringList actionNames() const override { return {pressAction(), showMenuAction()}; }

    void doAction(const QString& action) override
    {
        if (action == pressAction() || action == showMenuAction())
            box_.showPopup();
    }

private:
    QComboBox& box_;
};

QAccessibleInterface* describe(const QString& kind, QObject* object)
{
    if (auto* box = qobject_cast<QComboBox*>(object); box && kind == u"QComboBox")
        return new accessible_choice(*box);
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget && kind == u"QWidget" && widget->windowType() == Qt::Window && widget->isWindow())
        return new QAccessibleWidget(widget, QAccessible::Window);
    return nullptr;
}

/// The caption without the mark of a mnemonic and without a colon: "&Normale :" is read as "Normale".
QString caption_to_read(QString caption)
{
    caption = caption.remove(u'&').trimmed();
    if (caption.endsWith(u':'))
        caption.chop(1);
    return caption.trimmed();
}

}  // namespace

void describe_controls()
{
    static const bool once = [] {
        QAccessible::installFactory(describe);
        return true;
    }();
    static_cast<void>(once);
}

void name_control(QWidget& control, const QString& caption)
{
    control.setAccessibleName(caption_to_read(caption));
    // The focus is in the line edit of a spin box.
    if (qobject_cast<QAbstractSpinBox*>(&control))
        control.findChild<QLineEdit*>()->setAccessibleName(control.accessibleName());
}

void label_control(QLabel& label, QWidget& control)
{
    label.setBuddy(&control);
    // A label that shows a figure is read by its text; naming it would replace that text.
    if (!qobject_cast<QLabel*>(&control))
        name_control(control, label.text());
}

}  // namespace verdane
