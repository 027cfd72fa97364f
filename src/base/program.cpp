#include "base/program.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>

#include <csignal>

#include "base/language.h"

namespace verdane {

using namespace Qt::StringLiterals;

QString program_version()
{
    return QString::fromUtf8(VERDANE_VERSION);
}

QString command_of_store_program()
{
    const QString name = u"verdane-store"_s;
    if (!QStandardPaths::findExecutable(name).isEmpty())
        return name;
    return in_shell_quotes(QDir(QCoreApplication::applicationDirPath()).filePath(name));
}

QString in_shell_quotes(QString text)
{
    return u'\'' + text.replace(u"'"_s, u"'\\''"_s) + u'\'';
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
