#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QPalette>
#include <QStyleFactory>

#include <cstdlib>

#include "shell/start_up.h"
#include "tests/windows/every_window.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

/// The palette of a dark desktop.
QPalette dark_palette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x2d, 0x2d, 0x2d));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    palette.setColor(QPalette::AlternateBase, QColor(0x28, 0x28, 0x28));
    return palette;
}

bool draw_all(const QDir& folder, bool french)
{
    bool complete = true;
    testing::visit_every_window(french, [&](testing::hand& user, const testing::program_window& window) {
        const QString name = window.view + (french ? u" fr.png"_s : u" en.png"_s);
        complete &=
            user.picture(window.name(french)).save(folder.filePath(QString(name).replace(u' ', u'_')));
    });
    return complete;
}

}  // namespace

/// Saves a picture of every window in both languages to a folder. The scale and the font size come from the
/// environment (QT_SCALE_FACTOR, QT_FONT_DPI), the screen from the platform plugin.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QCommandLineParser options;
    options.addOptions(
        {{u"to"_s, u"folder of the pictures"_s, u"folder"_s, u"."_s}, {u"dark"_s, u"a dark palette"_s}});
    options.process(application);
    if (options.isSet(u"dark"_s))
        QApplication::setPalette(dark_palette());
    prepare_application(application);
    const QDir folder(options.value(u"to"_s));
    folder.mkpath(u"."_s);
    const bool complete = draw_all(folder, true) && draw_all(folder, false);
    return complete ? EXIT_SUCCESS : EXIT_FAILURE;
}
