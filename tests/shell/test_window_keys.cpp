#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>

#include <algorithm>

#include "base/language.h"
#include "controls/Form.h"
#include "shell/start_up.h"
#include "tests/shell/every_window.h"
#include "tests/shell/main_windows.h"
#include "tests/support/hand_widgets.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const reachable_window& window_of_row(int window)
{
    return every_window()[static_cast<std::size_t>(window)];
}

int index_of(const char* family)
{
    const auto& windows = every_window();
    const auto found = std::find_if(windows.begin(), windows.end(), [family](const reachable_window& window) {
        return qstrcmp(window.family, family) == 0;
    });
    return static_cast<int>(found - windows.begin());
}

/// The lines for the window itself in the list of F1.
QStringList own_lines(const QString& family)
{
    if (family == u"report_preview")
        return {in_language(u"Ctrl+P : Imprimer…", u"Ctrl+P: Print…"),
                in_language(u"Ctrl+S : Enregistrer en PDF…", u"Ctrl+S: Save as PDF…"),
                in_language(u"Page suiv. : Page suivante", u"Page Down: Next page"),
                in_language(u"Échap : Fermer la fenêtre", u"Esc: Close the window")};
    if (family == u"f_new_round")
        return {
            in_language(u"Ctrl+N : Coup suivant", u"Ctrl+N: Next shot"),
            in_language(u"Ctrl+Suppr : Supprimer le coup", u"Ctrl+Del: Remove the shot"),
            in_language(u"F5 : Fin du trou, carte rafraîchie", u"F5: End of the hole, scorecard refreshed"),
            in_language(u"Ctrl+P : Rapport sur les coups roulés de la ronde",
                        u"Ctrl+P: Report on the putts of the round"),
            in_language(u"Page suiv. : Trou suivant", u"Page Down: Next hole"),
            in_language(u"Page préc. : Trou précédent", u"Page Up: Previous hole"),
            in_language(u"Ctrl+1 : Entrée rapide", u"Ctrl+1: Quick entry"),
            in_language(u"Ctrl+2 : Entrée détaillée", u"Ctrl+2: Detailed Entry")};
    if (family == u"f_courses")
        return {in_language(u"Ctrl+S : Enregistrer", u"Ctrl+S: Save"),
                in_language(u"Ctrl+W : Fermer", u"Ctrl+W: Close")};
    if (family == u"f_games")
        return {in_language(u"Entrée : Ouvrir la ronde choisie", u"Enter: Open the selected round")};
    if (family == u"f_c_list")
        return {in_language(u"Entrée : Ouvrir le terrain choisi", u"Enter: Open the selected course")};
    return {};
}

/// The lines of the list that every window has.
QStringList common_lines(const QString& family)
{
    QStringList lines{in_language(u"F1 : Montrer cette liste", u"F1: Show this list")};
    if (family != u"MainForm" && family != u"report_preview")
        lines << in_language(u"Échap : Annuler ou fermer la fenêtre", u"Esc: Cancel or close the window");
    return lines;
}

/// Letters that act together, each with the captions that have it.
using mnemonic_group = QMap<QString, QStringList>;

void take(mnemonic_group& group, const QString& caption)
{
    const QKeySequence keys = QKeySequence::mnemonic(caption);
    if (!keys.isEmpty())
        group[keys.toString()] << caption;
}

/// The letters of a window, and those of each of its menus, which act while the menu is open.
QList<mnemonic_group> mnemonics_of(const QWidget& window)
{
    QList<mnemonic_group> groups(1);
    for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
        for (const QAction* top : bar->actions()) {
            take(groups.front(), top->text());
            mnemonic_group entries;
            for (const QAction* entry : top->menu() ? top->menu()->actions() : QList<QAction*>()) {
                if (entry->isVisible())
                    take(entries, entry->text());
            }
            groups << entries;
        }
    }
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        take(groups.front(), button->text());
    for (const QGroupBox* box : window.findChildren<QGroupBox*>())
        take(groups.front(), box->title());
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->buddy())
            take(groups.front(), label->text());
    }
    return groups;
}

/// The captions that share a letter. The two of the English menu bar are the program's own captions.
QStringList collisions(const mnemonic_group& group)
{
    QStringList shared;
    for (const QStringList& captions : group) {
        if (captions.size() > 1 && captions != QStringList{u"&Golf Courses"_s, u"&Golf Clubs"_s})
            shared << captions;
    }
    return shared;
}

}  // namespace

/// Keys that mean the same in every window.
class test_window_keys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }

    void f1_lists_the_shortcuts_of_the_window_data() { every_window_in_both_languages(); }
    void f1_lists_the_shortcuts_of_the_window()
    {
        QFETCH(int, language);
        QFETCH(int, window);
        in_window(language, window, [&](hand& user) {
            const QString name = name_of_twin(window_of_row(window));
            user.look([&] { visible_window(name)->activateWindow(); });
            user.key(Qt::Key_F1);
            user.wait_for_window(u"message_box"_s);
            user.same(user.title(u"message_box"_s), in_language(u"Raccourcis clavier", u"Keyboard shortcuts"),
                      u"title"_s);
            QString lines;
            user.look([&] { lines = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget()).text(); });
            const QString family = QString::fromLatin1(window_of_row(window).family);
            for (const QString& line : own_lines(family) + common_lines(family))
                user.check(lines.split(u'\n').contains(line), u"missing: "_s + line + u" in "_s + lines);
            user.answer({lines, QMessageBox::NoIcon, user.title(u"message_box"_s), QMessageBox::Ok});
            user.look([&] { QCOMPARE(QApplication::activeWindow(), visible_window(name)); });
        });
    }

    void tool_tips_in_the_round_window_name_the_keys_data() { both_stored_languages(); }
    void tool_tips_in_the_round_window_name_the_keys()
    {
        QFETCH(int, language);
        in_window(language, index_of("f_new_round"), [](hand& user) {
            user.look([] {
                const auto tip = [](const QString& button) {
                    return form_at_work()->findChild<QAbstractButton*>(button)->toolTip();
                };
                QCOMPARE(tip(u"CommandSuiv"_s), in_language(u"Coup suivant (Ctrl+N)", u"Next shot (Ctrl+N)"));
                QCOMPARE(tip(u"CommandSup"_s),
                         in_language(u"Supprimer le coup (Ctrl+Suppr)", u"Remove the shot (Ctrl+Del)"));
                QCOMPARE(tip(u"b_carte"_s), in_language(u"Fin du trou, carte rafraîchie (F5)",
                                                        u"End of the hole, scorecard refreshed (F5)"));
                QCOMPARE(tip(u"b_putts"_s), in_language(u"Rapport sur les coups roulés de la ronde (Ctrl+P)",
                                                        u"Report on the putts of the round (Ctrl+P)"));
            });
        });
    }

    void every_mnemonic_of_a_window_is_its_own_data() { every_window_in_both_languages(); }
    void every_mnemonic_of_a_window_is_its_own()
    {
        QFETCH(int, language);
        QFETCH(int, window);
        in_window(language, window, [&](hand& user) {
            user.look([&] {
                for (const mnemonic_group& group :
                     mnemonics_of(*visible_window(name_of_twin(window_of_row(window)))))
                    QCOMPARE(collisions(group), QStringList());
            });
        });
    }

    void escape_clicks_the_cancel_button_data()
    {
        every_window_in_both_languages([](const reachable_window& window) { return window.cancel_button; });
    }
    void escape_clicks_the_cancel_button()
    {
        QFETCH(int, language);
        QFETCH(int, window);
        const reachable_window& chosen = window_of_row(window);
        int clicks = 0;
        in_window(language, window, [&](hand& user) {
            user.look([&] {
                auto* button = visible_window(name_of_twin(chosen))
                                   ->findChild<QAbstractButton*>(QString::fromLatin1(chosen.cancel_button));
                QVERIFY(button && button->isVisible());
                // Ahead of the routine of the click, which may wait for an answer.
                QObject::connect(button, &QAbstractButton::pressed, button, [&clicks] { ++clicks; });
            });
            user.key(Qt::Key_Escape);
            user.look([&] { QCOMPARE(clicks, 1); });
        });
    }
};

QTEST_MAIN(test_window_keys)
#include "test_window_keys.moc"
