#include "base/program.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <csignal>

#include "base/language.h"

namespace verdane {

using namespace Qt::StringLiterals;

QString program_version()
{
    return QString::fromUtf8(VERDANE_VERSION);
}

void let_oversized_writes_fail()
{
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

void load_toolkit_texts()
{
    static QTranslator texts;
    QCoreApplication::removeTranslator(&texts);
    QLocale::setDefault(is_french ? QLocale(QLocale::French) : QLocale(QLocale::English));
    if (texts.load(QLocale(), u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&texts);
}

}  // namespace verdane
