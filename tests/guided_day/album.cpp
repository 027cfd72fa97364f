#include "tests/guided_day/album.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QWidget>

#include "tests/support/hand_widgets.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

/// A window with its menu, which may extend beyond the window.
QImage picture_of_both(QWidget& window, QWidget& menu)
{
    const QRect menu_in_window(window.mapFromGlobal(menu.mapToGlobal(QPoint())), menu.size());
    const QRect all = window.rect().united(menu_in_window);
    QImage picture(all.size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.drawPixmap(window.rect().topLeft() - all.topLeft(), window.grab());
    painter.drawPixmap(menu_in_window.topLeft() - all.topLeft(), menu.grab());
    return picture;
}

}  // namespace

void album::save_picture(testing::hand& user, const QString& window, const QString& name)
{
    save(user, user.picture(window), name);
}

void album::save_picture_with_menu(testing::hand& user, const QString& window, const QString& name)
{
    QImage picture;
    user.look([&] {
        QWidget* menu = QApplication::activePopupWidget();
        QWidget* below = testing::visible_window(window);
        if (menu && below)
            picture = picture_of_both(*below, *menu);
    });
    save(user, picture, name);
}

void album::save(testing::hand& user, const QImage& picture, const QString& name)
{
    const QString path = path_for(user, name + u".png");
    user.check(!picture.isNull() && picture.save(path), u"the picture %1 cannot be saved"_s.arg(name));
}

QString album::path_for(testing::hand& user, const QString& file)
{
    user.check(!files_.contains(file), u"a file named %1 exists already"_s.arg(file));
    files_ << file;
    const QString path = folder_.filePath(file);
    QFile::remove(path);
    return path;
}

QStringList album::missing_files() const
{
    QStringList lost;
    for (const QString& file : files_) {
        if (QFileInfo(folder_.filePath(file)).size() == 0)
            lost << file;
    }
    return lost;
}

}  // namespace verdane::guided_day
