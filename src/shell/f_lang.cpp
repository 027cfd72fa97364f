#include "shell/f_lang.h"

#include <QPushButton>
#include <QSvgWidget>
#include <QVBoxLayout>

#include "base/language.h"
#include "controls/control_array.h"
#include "controls/events.h"
#include "controls/look.h"
#include "controls/scrolled_content.h"
#include "store/DataEnvironment1.h"
#include "store/tables/settings.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int icon_pixels = 96;

QSvgWidget* make_emblem()
{
    auto* emblem = new QSvgWidget(u":/art/verdane.svg"_s);
    emblem->setFixedSize(icon_pixels, icon_pixels);
    return emblem;
}

}  // namespace

f_lang::f_lang() : Form(u"f_lang", twins::one)
{
    setWindowTitle(u"Verdane International Inc."_s);
    control_array<QPushButton> languages(u"Command1");
    auto* french = languages.add(1, make_button(u"Continuer en Français"_s));
    auto* english = languages.add(0, make_button(u"Continue in English"_s));
    auto* exit = named(make_button(u"Exit / Quitter"_s), u"Command2");

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(5 * rhythm, 4 * rhythm, 5 * rhythm, 4 * rhythm);
    layout->setSpacing(rhythm);
    auto* emblem = new QVBoxLayout;
    emblem->addWidget(make_emblem(), 0, Qt::AlignHCenter);
    layout->addWidget(scrolled(emblem), 1);
    layout->addSpacing(2 * rhythm);
    for (QPushButton* button : {french, english, exit}) {
        button->setMinimumSize(30 * rhythm, 5 * rhythm);
        layout->addWidget(button);
    }
    take_size(sizeHint());

    on_click(*french, [this] { choose(french_value); });
    on_click(*english, [this] { choose(english_value); });
    on_click(*exit, [this] { unload(); });
}

void f_lang::choose(int language)
{
    Recordset& rssettings = data_environment().rssettings;
    rssettings.Fields(tables::settings::language).set(language);
    rssettings.Update();
    is_french = language == french_value;
    unload();
}

}  // namespace verdane
