#include "shell/system_information.h"

#include <QFileInfo>
#include <QProcess>
#include <QSettings>

#include "controls/boxes.h"

namespace verdane {

namespace {

#ifdef Q_OS_WIN
QString registry_value(const QString& key, const QString& value)
{
    const QSettings registry(QStringLiteral("HKEY_LOCAL_MACHINE\\") + key, QSettings::NativeFormat);
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
    const QString tool =
        registry_value(QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"), QStringLiteral("PATH"));
    if (!tool.isEmpty())
        return tool;
    const QString folder = registry_value(QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"),
                                          QStringLiteral("MSINFO"));
    const QString in_folder = folder + QStringLiteral("\\MSINFO32.EXE");
    return !folder.isEmpty() && QFileInfo::exists(in_folder) ? in_folder : QString();
}

void show_system_information()
{
    const QString tool = system_information_tool();
    if (tool.isEmpty() || !QProcess::startDetached(tool, {}))
        tell(QStringLiteral("System Information Is Unavailable At This Time"));
}

}  // namespace verdane
