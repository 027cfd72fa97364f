#include "shell/system_information.h"

#include <QFileInfo>
#include <QProcess>
#include <QSettings>

#include "controls/boxes.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

#ifdef Q_OS_WIN
QString registry_value(const QString& key, const QString& value)
{
    const QSettings registry(u"HKEY_LOCAL_MACHINE\\"_s + key, QSettings::NativeFormat);
    return registry.value(value).toString();
}
#else
QString registry_value(const QString&, const QString&)
{
    return {};
}
#endif

}  // namespace

QString system_information_tool()
{
    const QString tool = registry_value(u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"_s, u"PATH"_s);
    if (!tool.isEmpty())
        return tool;
    const QString folder = registry_value(u"SOFTWARE\\Microsoft\\Shared Tools Location"_s, u"MSINFO"_s);
    const QString in_folder = folder + u"\\MSINFO32.EXE"_s;
    return !folder.isEmpty() && QFileInfo::exists(in_folder) ? in_folder : QString();
}

void show_system_information()
{
    const QString tool = system_information_tool();
    if (tool.isEmpty() || !QProcess::startDetached(tool, {}))
        show_information(u"System Information Is Unavailable At This Time"_s);
}

}  // namespace verdane
