#include "look.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>

namespace verdane {

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
    box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int text_width = box->fontMetrics().horizontalAdvance(QString(digits, u'0'));
    box->setFixedWidth(text_width + 3 * rhythm);
    return box;
}

QLineEdit* make_figure(int digits)
{
    QLineEdit* box = make_number_box(digits);
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::NoFocus);
    QPalette palette = box->palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    box->setPalette(palette);
    return box;
}

QLabel* make_label(const QString& caption, QLineEdit* buddy)
{
    auto* label = new QLabel(caption);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy);
    return label;
}

}  // namespace verdane
