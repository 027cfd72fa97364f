#include "controls/toolkit_language.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "base/language.h"

namespace verdane {

using namespace Qt::StringLiterals;

void apply_toolkit_language()
{
    static QTranslator words;
    QCoreApplication::removeTranslator(&words);
    QLocale::setDefault(is_french ? QLocale(QLocale::French) : QLocale(QLocale::English));
    if (words.load(QLocale(), u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&words);
}

}  // namespace verdane
