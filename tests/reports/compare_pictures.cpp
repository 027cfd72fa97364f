// Compares each picture of a folder with the picture of the same name in the folder of the stored ones, as
// the tests compare the pages of reports. Prints the names of those that differ; then the exit status is 1.
//
//   compare_pictures STORED_FOLDER FOLDER

#include <QDir>
#include <QGuiApplication>
#include <QTextStream>

#include <optional>

#include "tests/reports/page_pictures.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

/// How the pictures differ, in words; nothing if they look the same.
std::optional<QString> difference(const QString& stored_path, const QString& path)
{
    const QImage stored = QImage(stored_path).convertToFormat(QImage::Format_RGB32);
    const QImage seen = QImage(path).convertToFormat(QImage::Format_RGB32);
    if (seen.isNull())
        return u"no picture"_s;
    if (stored.isNull())
        return u"not stored"_s;
    if (seen.size() != stored.size())
        return u"another size"_s;
    const double shades = testing::largest_difference(stored, seen, seen.rect());
    if (shades < testing::noticed_shades)
        return std::nullopt;
    return u"differs by %1 shades"_s.arg(shades, 0, 'f', 1);
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream out(stdout);
    const QStringList names =
        arguments.size() == 3 ? QDir(arguments[2]).entryList({u"*.png"_s}, QDir::Files) : QStringList();
    if (names.isEmpty()) {
        out << "There are no pictures to compare.\n";
        return 2;
    }
    int status = 0;
    for (const QString& name : names) {
        if (const auto words =
                difference(QDir(arguments[1]).filePath(name), QDir(arguments[2]).filePath(name))) {
            out << name << ": " << *words << '\n';
            status = 1;
        }
    }
    return status;
}
