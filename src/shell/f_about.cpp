#include "shell/f_about.h"

#include <QHBoxLayout>
#include <QSvgWidget>
#include <QVBoxLayout>

#include "controls/events.h"
#include "controls/look.h"
#include "controls/main_frame.h"
#include "controls/scrolled_content.h"
#include "shell/system_information.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int emblem_pixels = 80;
constexpr int text_pixels = 320;

QLabel* make_text(const QString& text, double size = 1.0)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(text_pixels);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setBold(size > 1.0);
    label->setFont(font);
    return label;
}

QFrame* make_line()
{
    auto* line = new QFrame;
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    return line;
}

}  // namespace

f_about::f_about() : Form(u"f_about")
{
    setWindowTitle(caption(u"À propos de VERDANE", u"About VERDANE"));
    make_controls();
    lay_out();
    on_click(*cmdOK, [this] { unload(); });
    on_click(*cmdSysInfo, [] { show_system_information(); });
}

void f_about::make_controls()
{
    lblTitle = named(make_text(caption(u"VERDANE pour PC", u"VERDANE for PC"), 1.6), u"lblTitle");
    lblVersion = named(make_text(u"Version 1.4"_s), u"lblVersion");
    lblDescription = named(make_text(caption(u"Le journal et les statistiques de vos rondes de golf.",
                                             u"The diary and the statistics of your rounds of golf.")),
                           u"lblDescription");
    lblDisclaimer = named(make_text(caption(u"Vos rondes restent sur cet ordinateur : Verdane n'envoie rien.",
                                            u"Your rounds stay on this computer: Verdane sends nothing.")),
                          u"lblDisclaimer");
    Label1 = named(make_text(u"Verdane International Inc."_s), u"Label1");
    Line1.add(0, make_line());
    Line1.add(1, make_line());
    // French in both twins.
    cmdSysInfo = named(make_button(u"&Infos système"_s), u"cmdSysInfo");
    cmdOK = named(make_button(u"OK"_s), u"cmdOK");
}

void f_about::lay_out()
{
    auto* emblem = new QSvgWidget(u":/art/verdane.svg"_s);
    emblem->setFixedSize(emblem_pixels, emblem_pixels);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(rhythm);
    for (QWidget* widget : {static_cast<QWidget*>(lblTitle), static_cast<QWidget*>(lblVersion),
                            static_cast<QWidget*>(&Line1(0)), static_cast<QWidget*>(lblDescription),
                            static_cast<QWidget*>(lblDisclaimer), static_cast<QWidget*>(&Line1(1)),
                            static_cast<QWidget*>(Label1)})
        texts->addWidget(widget);

    auto* top = new QHBoxLayout;
    top->setSpacing(3 * rhythm);
    top->addWidget(emblem, 0, Qt::AlignTop);
    top->addLayout(texts);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(rhythm);
    buttons->addStretch();
    buttons->addWidget(cmdSysInfo);
    buttons->addWidget(cmdOK);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(3 * rhythm, 3 * rhythm, 3 * rhythm, 2 * rhythm);
    layout->setSpacing(3 * rhythm);
    layout->addWidget(scrolled(top), 1);
    layout->addLayout(buttons);
    take_size(sizeHint());
}

void f_about::activated()
{
    cmdOK->setFocus();
}

void f_about::unloading()
{
    Unlock_menu();
}

}  // namespace verdane
