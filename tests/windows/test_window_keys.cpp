#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>

#include "base/language.h"
#include "controls/Form.h"
#include "shell/start_up.h"
#include "tests/support/hand_widgets.h"
#include "tests/windows/every_window.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// The lines of the list of Ctrl+F1 that only this window has.
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

/// The lines that every window has.
QStringList common_lines(const QString& family)
{
    QStringList lines{in_language(u"F1 : Ouvrir le guide", u"F1: Open the guide"),
                      in_language(u"Ctrl+F1 : Montrer cette liste", u"Ctrl+F1: Show this list")};
    if (family != u"MainForm" && family != u"report_preview")
        lines << in_language(u"Échap : Annuler ou fermer la fenêtre", u"Esc: Cancel or close the window");
    return lines;
}

/// Letters that are active at the same time, each with its captions.
using mnemonic_group = QMap<QString, QStringList>;

void add_caption(mnemonic_group& group, const QString& caption)
{
    const QKeySequence keys = QKeySequence::mnemonic(caption);
    if (!keys.isEmpty())
        group[keys.toString()] << caption;
}

/// The letters of a window, and those of each of its menus, which are active while the menu is open.
QList<mnemonic_group> mnemonics_of(const QWidget& window)
{
    QList<mnemonic_group> groups(1);
    for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
        for (const QAction* top : bar->actions()) {
            add_caption(groups.front(), top->text());
            mnemonic_group entries;
            for (const QAction* entry : top->menu() ? top->menu()->actions() : QList<QAction*>()) {
                if (entry->isVisible())
                    add_caption(entries, entry->text());
            }
            groups << entries;
        }
    }
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        add_caption(groups.front(), button->text());
    for (const QGroupBox* box : window.findChildren<QGroupBox*>())
        add_caption(groups.front(), box->title());
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->buddy())
            add_caption(groups.front(), label->text());
    }
    return groups;
}

/// The captions that share a letter. The two of the English menu bar are captions of the program.
QStringList collisions(const mnemonic_group& group)
{
    QStringList shared;
    for (const QStringList& captions : group) {
        if (captions.size() > 1 && captions != QStringList{u"&Golf Courses"_s, u"&Golf Clubs"_s})
            shared << captions;
    }
    return shared;
}

QStringList shared_mnemonics(const QWidget& window)
{
    QStringList shared;
    for (const mnemonic_group& group : mnemonics_of(window))
        shared << collisions(group);
    return shared;
}

/// Presses Ctrl+F1, closes the list of shortcuts and returns the faults of the list.
QStringList faults_of_list(hand& user, const program_window& window)
{
    const QString name = window.name(is_french);
    const QString title = in_language(u"Raccourcis clavier", u"Keyboard shortcuts");
    user.look([&] { visible_window(name)->activateWindow(); });
    user.key(Qt::Key_F1, Qt::ControlModifier);
    user.wait_for_window(u"message_box"_s);
    QString lines;
    user.look([&] { lines = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget()).text(); });
    QStringList faults;
    for (const QString& line : own_lines(window.family) + common_lines(window.family)) {
        if (!lines.split(u'\n').contains(line))
            faults << u"missing: "_s + line + u" in "_s + lines;
    }
    user.answer({lines, QMessageBox::NoIcon, title, QMessageBox::Ok});
    user.look([&] {
        if (QApplication::activeWindow() != visible_window(name))
            faults << u"the window is not active afterwards"_s;
    });
    return faults;
}

/// Presses Escape. Returns a fault unless that clicked the cancel button exactly once.
QStringList faults_of_escape(hand& user, const program_window& window)
{
    int clicks = 0;
    user.look([&] {
        auto* button =
            visible_window(window.name(is_french))->findChild<QAbstractButton*>(window.cancel_button);
        QVERIFY(button && button->isVisible());
        // Before the routine of the click, which may wait for an answer.
        QObject::connect(button, &QAbstractButton::pressed, button, [&clicks] { ++clicks; });
    });
    user.key(Qt::Key_Escape);
    QStringList faults;
    user.look([&] {
        if (clicks != 1)
            faults << u"%1 clicks"_s.arg(clicks);
    });
    return faults;
}

QStringList faults_of_tool_tips(const QWidget& window)
{
    const QHash<QString, QString> tips{
        {u"CommandSuiv"_s, in_language(u"Coup suivant (Ctrl+N)", u"Next shot (Ctrl+N)")},
        {u"CommandSup"_s, in_language(u"Supprimer le coup (Ctrl+Suppr)", u"Remove the shot (Ctrl+Del)")},
        {u"b_carte"_s,
         in_language(u"Fin du trou, carte rafraîchie (F5)", u"End of the hole, scorecard refreshed (F5)")},
        {u"b_putts"_s, in_language(u"Rapport sur les coups roulés de la ronde (Ctrl+P)",
                                   u"Report on the putts of the round (Ctrl+P)")}};
    QStringList faults;
    for (auto tip = tips.begin(); tip != tips.end(); ++tip) {
        const QString seen = window.findChild<QAbstractButton*>(tip.key())->toolTip();
        if (seen != tip.value())
            faults << tip.key() + u": " + seen;
    }
    return faults;
}

bool has_cancel_button(const program_window& window)
{
    return !window.cancel_button.isEmpty();
}

/// True for one of the windows of a round; testing one of them is enough.
bool is_round_window(const program_window& window)
{
    return window.view == u"f_new_round"_s;
}

/// The language window is shown before a language is chosen, and lists no shortcuts.
bool has_shortcuts(const program_window& window)
{
    return window.family != u"f_lang"_s;
}

}  // namespace

/// Keys that mean the same in every window.
class test_window_keys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        prepare_application(*qApp);
        for (const bool french : {true, false})
            visit_every_window(french, [&](hand& user, const program_window& window) {
                user.look([&] {
                    const QWidget& seen = *visible_window(window.name(french));
                    shared_mnemonics_.add(window, french, shared_mnemonics(seen));
                    if (is_round_window(window))
                        tool_tips_.add(window, french, faults_of_tool_tips(seen));
                });
                if (has_shortcuts(window))
                    list_.add(window, french, faults_of_list(user, window));
                if (has_cancel_button(window))
                    escape_.add(window, french, faults_of_escape(user, window));
            });
    }

    void ctrl_f1_lists_the_shortcuts_of_the_window_data() { every_window_in_both_languages(has_shortcuts); }
    void ctrl_f1_lists_the_shortcuts_of_the_window() { list_.verify_nothing_found(); }

    void tool_tips_in_the_round_window_name_the_keys_data()
    {
        every_window_in_both_languages(is_round_window);
    }
    void tool_tips_in_the_round_window_name_the_keys() { tool_tips_.verify_nothing_found(); }

    void every_mnemonic_of_a_window_is_unique_data() { every_window_in_both_languages(); }
    void every_mnemonic_of_a_window_is_unique() { shared_mnemonics_.verify_nothing_found(); }

    void escape_clicks_the_cancel_button_data() { every_window_in_both_languages(has_cancel_button); }
    void escape_clicks_the_cancel_button() { escape_.verify_nothing_found(); }

private:
    window_findings list_;
    window_findings tool_tips_;
    window_findings shared_mnemonics_;
    window_findings escape_;
};

QTEST_MAIN(test_window_keys)
#include "test_window_keys.moc"
