#include <QFile>

#include "day.h"
#include "report_dialogs.h"

namespace verdane::guided_day {

namespace {

/// The statistic over this day's round alone: it stands last in both lists.
void choose_round(day& today)
{
    const int last = static_cast<int>(today.user.entries(QStringLiteral("List1")).size()) - 1;
    today.user.click_row(QStringLiteral("List1"), last);
    today.user.click_row(QStringLiteral("List2"), last);
}

void keep_pdf(day& today)
{
    const QString path = today.pictures.path(today.words(u"Stat_rounds_fr.pdf", u"Stat_rounds_en.pdf"));
    today.user.look([&] { dialogs_of_reports().choose_file = [path](auto*, const auto&) { return path; }; });
    today.user.click(QStringLiteral("save_pdf"));
    today.user.wait_until(QStringLiteral("the printed report"), [&] { return QFile(path).size() > 0; });
}

}  // namespace

void print_statistic(day& today)
{
    today.user.menu(QStringLiteral("mnstatr"));
    today.user.wait_for_window(today.window(QStringLiteral("f_date_range")));
    choose_round(today);
    today.keep(QStringLiteral("f_date_range"), QStringLiteral("f_date_range"));
    today.user.click(QStringLiteral("Command2"));
    today.answer(u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies. Faite OK pour "
                 u"vérifier si des statistiques sommaires existent.",
                 u"Verdane could not find any detailed rounds with the chosen parameters. Click on OK to "
                 u"calculate summary statistics.");
    today.user.wait_for_window(QStringLiteral("report_preview"));
    today.user.same(today.user.title(QStringLiteral("report_preview")),
                    QStringLiteral("Verdane International Inc."), QStringLiteral("title of the report"));
    today.pictures.keep(QStringLiteral("report_preview"),
                        today.french ? QStringLiteral("report_fr") : QStringLiteral("report_en"));
    keep_pdf(today);
    today.user.close_window(QStringLiteral("report_preview"));
    today.user.click(QStringLiteral("CancelButton"));
    today.user.wait_until_gone(today.window(QStringLiteral("f_date_range")));
}

}  // namespace verdane::guided_day
