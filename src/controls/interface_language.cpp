#include "controls/interface_language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool language_is_set = false;

void load_toolkit_texts()
{
    static QTranslator texts;
    QCoreApplication::removeTranslator(&texts);
    QLocale::setDefault(is_french ? QLocale(QLocale::French) : QLocale(QLocale::English));
    if (texts.load(QLocale(), u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&texts);
}

}  // namespace

void set_interface_language(bool french)
{
    is_french = french;
    language_is_set = true;
    load_toolkit_texts();
}

void reset_interface_language()
{
    is_french = true;
    language_is_set = false;
}

QString in_known_language(const text_pair& text, QStringView separator)
{
    return language_is_set ? text.in(is_french) : text.in(true) + separator + text.in(false);
}

}  // namespace verdane
