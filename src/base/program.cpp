#include "base/program.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>

#include <csignal>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool language_is_set = false;

}  // namespace

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
