#include <QFileInfo>
#include <QTest>
#include <QUrl>
#include <QWidget>

#include "base/language.h"
#include "controls/guide.h"
#include "shell/start_up.h"
#include "tests/guide/guide_pages.h"
#include "tests/support/hand_widgets.h"
#include "tests/windows/every_window.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The place of each row of `every_window`.
QString expected_place(const QString& view)
{
    static const QHash<QString, QString> places{
        {u"f_lang"_s, u"main_window.html#f_lang"_s},
        {u"MainForm"_s, u"main_window.html#MainForm"_s},
        {u"f_about"_s, u"main_window.html#f_about"_s},
        {u"f_c_list"_s, u"courses.html#f_c_list"_s},
        {u"f_courses page 1"_s, u"courses.html#f_courses"_s},
        {u"f_courses page 2"_s, u"courses.html#f_courses_holes"_s},
        {u"f_courses page 3"_s, u"courses.html#f_courses_holes"_s},
        {u"f_partners"_s, u"partners.html#f_partners"_s},
        {u"f_sticks"_s, u"golf_bag.html#f_sticks"_s},
        {u"f_sticks with filters"_s, u"golf_bag.html#f_sticks_averages"_s},
        {u"f_get_date"_s, u"round.html#f_get_date"_s},
        {u"f_games"_s, u"round_list.html#f_games"_s},
        {u"f_new_round"_s, u"round.html#f_new_round"_s},
        {u"f_new_round on hole 18"_s, u"round.html#f_new_round"_s},
        {u"f_new_round shot by shot"_s, u"shots.html#f_new_round_shots"_s},
        {u"f_new_round shot by shot on hole 18"_s, u"shots.html#f_new_round_shots"_s},
        {u"f_cost"_s, u"costs.html#f_cost"_s},
        {u"f_date_range for clubs"_s, u"selection.html#f_date_range_clubs"_s},
        {u"f_date_range for putts"_s, u"selection.html#f_date_range_putts"_s},
        {u"f_date_range for rounds"_s, u"selection.html#f_date_range_rounds"_s},
        {u"f_date_range for costs"_s, u"selection.html#f_date_range_costs"_s},
        {u"f_carte"_s, u"scorecard.html#f_carte"_s},
        {u"report_preview"_s, u"preview.html#report_preview"_s},
    };
    return places.value(view);
}

/// The language window is shown before a language is chosen, and its page has both languages.
bool page_is_french(const program_window& window, bool french)
{
    return french || window.family == u"f_lang";
}

}  // namespace

/// F1 in every window.
class test_window_guide : public QObject {
    Q_OBJECT

    QList<QUrl> opened_;
    window_findings places_;

    /// Presses F1 and returns the faults of the page that it opens.
    QStringList faults_of_f1(hand& user, const program_window& window, bool french)
    {
        user.look([&] {
            visible_window(window.name(french))->activateWindow();
            opened_.clear();
        });
        const QString focus = user.focus();
        user.key(Qt::Key_F1);
        user.wait_until(u"the page of the guide"_s, [&] { return !opened_.isEmpty(); });
        user.same(user.focus(), focus, u"focus"_s);
        const bool is_french_page = page_is_french(window, french);
        const QString path = opened_.constFirst().toLocalFile();
        const QString folder = guide().folder + (is_french_page ? u"/fr/" : u"/en/");
        QStringList faults;
        if (opened_.size() != 1)
            faults << u"%1 pages"_s.arg(opened_.size());
        if (!path.startsWith(folder) || !QFileInfo(path).isFile())
            return faults << path;
        const QString place = target_of(read_page(is_french_page, path.sliced(folder.size())));
        if (place != expected_place(window.view))
            return faults << path + u" leads to "_s + place;
        if (!read_page(is_french_page, place.section(u'#', 0, 0)).has_anchor(place.section(u'#', 1)))
            faults << u"no anchor "_s + place;
        return faults;
    }

private Q_SLOTS:
    void initTestCase()
    {
        prepare_application(*qApp);
        guide().open = [this](const QUrl& page) {
            opened_ << page;
            return true;
        };
        for (const bool french : {true, false})
            visit_every_window(french, [&](hand& user, const program_window& window) {
                places_.add(window, french, faults_of_f1(user, window, french));
            });
    }

    void f1_opens_the_page_of_the_window_data() { every_window_in_both_languages(); }
    void f1_opens_the_page_of_the_window() { places_.verify_nothing_found(); }
};

QTEST_MAIN(test_window_guide)
#include "test_window_guide.moc"
