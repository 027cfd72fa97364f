#include "controls/guide.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QWidget>

#include <algorithm>
#include <iterator>

#include "base/language.h"
#include "controls/boxes.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// A state of a window that has a page of its own: the control is visible.
struct window_state {
    QStringView family;
    QStringView control;
    QStringView page;
};

constexpr window_state states[] = {
    {u"f_courses", u"frm_2", u"f_courses_holes"},
    {u"f_courses", u"frm_3", u"f_courses_holes"},
    {u"f_sticks", u"Frame1", u"f_sticks_averages"},
    {u"f_new_round", u"Framedet", u"f_new_round_shots"},
    {u"f_date_range", u"Command1", u"f_date_range_clubs"},
    {u"f_date_range", u"OKButton", u"f_date_range_putts"},
    {u"f_date_range", u"Command2", u"f_date_range_rounds"},
    {u"f_date_range", u"Command3", u"f_date_range_costs"},
};

bool is_in(const window_state& state, const QString& family, const QWidget& window)
{
    const auto* control = window.findChild<QWidget*>(state.control.toString());
    return state.family == family && control && control->isVisible();
}

/// The page of the window in a language, or the contents; empty if neither exists.
QString page_for(const QWidget& window, bool french)
{
    const QDir folder(guide().folder + (french ? u"/fr" : u"/en"));
    for (const QString& name : {guide_page_of(window), u"index.html"_s}) {
        if (folder.exists(name))
            return folder.filePath(name);
    }
    return {};
}

void report(const text_pair& problem, const QString& path, QWidget& window, bool french)
{
    show_message({problem.in(french) + u'\n' + QDir::toNativeSeparators(path), QMessageBox::Information},
                 &window);
}

}  // namespace

guide_access& guide()
{
    static guide_access access{QCoreApplication::applicationDirPath() + u"/guide", QDesktopServices::openUrl};
    return access;
}

QString guide_page_of(const QWidget& window)
{
    const QString name = window.objectName();
    const QString family = name.endsWith(u"_en") ? name.chopped(3) : name;
    const auto state = std::find_if(std::begin(states), std::end(states),
                                    [&](const window_state& each) { return is_in(each, family, window); });
    return u"windows/" + (state == std::end(states) ? family : state->page.toString()) + u".html";
}

void open_guide(QWidget& window, bool french)
{
    const QString page = page_for(window, french);
    if (page.isEmpty())
        report({u"Le guide est introuvable :", u"The guide was not found:"}, guide().folder, window, french);
    else if (!guide().open(QUrl::fromLocalFile(page)))
        report({u"Aucun navigateur n'a pu ouvrir le guide :", u"No browser could open the guide:"}, page,
               window, french);
}

}  // namespace verdane
