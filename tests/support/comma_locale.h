#pragma once

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <clocale>

namespace verdane::testing {

using namespace Qt::StringLiterals;

/// Sets the French locale, whose decimal separator is a comma, for the functions of the C library during its
/// lifetime. The locale is compiled into a temporary folder, because a computer may not have it. It ends the
/// test if that fails.
class comma_locale {
public:
    comma_locale()
    {
        qputenv("LOCPATH", QFile::encodeName(compiled()));
        if (std::setlocale(LC_ALL, name) == nullptr || *std::localeconv()->decimal_point != ',')
            qFatal("no French locale: tools/install run build test");
    }
    ~comma_locale()
    {
        qunsetenv("LOCPATH");
        std::setlocale(LC_ALL, "C.UTF-8");
    }
    comma_locale(const comma_locale&) = delete;
    comma_locale& operator=(const comma_locale&) = delete;

private:
    static constexpr const char* name = "fr_FR.UTF-8";

    /// The folder with the locale, which is compiled once for each process.
    static QString compiled()
    {
        static const QTemporaryDir folder;
        static const int status =
            QProcess::execute(u"localedef"_s, {u"-i"_s, u"fr_FR"_s, u"-f"_s, u"UTF-8"_s,
                                               folder.filePath(QString::fromLatin1(name))});
        return status < 0 ? QString() : folder.path();
    }
};

}  // namespace verdane::testing
