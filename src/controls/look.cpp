#include "controls/look.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>

#include "controls/accessible_controls.h"

namespace verdane {

namespace {

void set_digits(QLineEdit& box, int digits)
{
    box.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int text_width = box.fontMetrics().horizontalAdvance(QString(digits, u'0'));
    box.setFixedWidth(text_width + 3 * rhythm);
}

QColor blended(const QColor& background, const QColor& text, double share)
{
    const auto mix = [share](int from, int to) { return qRound(from + (to - from) * share); };
    return {mix(background.red(), text.red()), mix(background.green(), text.green()),
            mix(background.blue(), text.blue())};
}

/// A read-only box. Its background has a colour between those of the window and of the text: in a dark
/// palette the frame of a box is hardly visible, and only the background distinguishes it from the window.
class figure_box : public QLineEdit {
public:
    figure_box()
    {
        setReadOnly(true);
        setFocusPolicy(Qt::NoFocus);
        set_background();
    }

protected:
    void changeEvent(QEvent* event) override
    {
        QLineEdit::changeEvent(event);
        if (event->type() == QEvent::PaletteChange)
            set_background();
    }

private:
    void set_background()
    {
        constexpr double share_of_text = 0.07;
        QPalette own = palette();
        const QColor background =
            blended(own.color(QPalette::Window), own.color(QPalette::WindowText), share_of_text);
        // setPalette sends another PaletteChange event.
        if (own.color(QPalette::Base) == background)
            return;
        own.setColor(QPalette::Base, background);
        setPalette(own);
    }
};

}  // namespace

QColor accent_green()
{
    return {0x2e, 0x7d, 0x4f};
}

void apply_look(QApplication& application)
{
    QPalette palette = application.palette();
    palette.setColor(QPalette::Highlight, accent_green());
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, accent_green());
    application.setPalette(palette);
}

QLineEdit* make_number_box(int digits)
{
    auto* box = new QLineEdit;
    set_digits(*box, digits);
    return box;
}

QLineEdit* make_figure(int digits)
{
    auto* box = new figure_box;
    set_digits(*box, digits);
    return box;
}

QLabel* make_label(const QString& caption, QWidget* buddy)
{
    auto* label = new QLabel(caption);
    label->setTextFormat(Qt::PlainText);
    if (buddy)
        label_control(*label, *buddy);
    return label;
}

}  // namespace verdane
