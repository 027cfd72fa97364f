#include "shell/start_up.h"

#include <QApplication>
#include <QIcon>

#include "base/program.h"
#include "controls/accessible_controls.h"
#include "controls/boxes.h"
#include "controls/events.h"
#include "controls/failure_guard.h"
#include "controls/lock_box.h"
#include "controls/look.h"
#include "records/Main_module.h"
#include "reports/query/report_snapshot.h"
#include "shell/daily_copy.h"
#include "shell/f_lang.h"
#include "shell/MainForm.h"
#include "shell/row_script.h"
#include "store/DataEnvironment1.h"
#include "store/tables/settings.h"

/// The pictures are resources of a static library. The linker would leave them out without this call, which
/// the toolkit allows outside namespaces only.
static void link_pictures()
{
    Q_INIT_RESOURCE(art);
}

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// Sets the language to that of the store. Opens the language window if none has been chosen yet.
start_result load_language(Recordset& rssettings)
{
    if (rssettings.Fields(tables::settings::language).is_null()) {
        show_information(u"Fatal Error - Unexpected Language Value - 1014"_s, QMessageBox::Critical);
        return start_result::damaged;
    }
    if (!is_language_value(plain(rssettings.Fields(tables::settings::language).to_int16()))) {
        // The window writes the language, and a damaged store must not be written to.
        data_environment().connection.check_soundness();
        f_lang window;
        window.show_modal();
    }
    const int language = plain(rssettings.Fields(tables::settings::language).int16_or_zero());
    if (!is_language_value(language))
        return start_result::left;
    set_interface_language(language == french_value);
    return start_result::running;
}

/// The part of the start for which the user need not wait.
void finish_start(daily_copy& copy)
{
    Connection1& connection = data_environment().connection;
    connection.check_soundness();
    MainForm::of_run()->update_first_steps();
    offer_row_script();
    copy.start(connection.location(), [](const run_time_failure& failure) {
        MainForm::of_run()->show_problem(copy_failure_words(failure.kind()), failure.details());
    });
}

}  // namespace

start_result Main()
{
    reset_interface_language();
    // The check of the whole file takes as long as the rest of the start. It can run after the main window is
    // shown (`run_verdane`), because nothing is written before.
    Connection1& connection = data_environment().connection;
    connection.waiting().set_notice_maker(make_lock_box);
    connection.Open(default_store(), soundness_check::later);
    set_report_store(connection.location());
    Recordset& rssettings = data_environment().rssettings;
    rssettings.Open();
    const start_result result = load_language(rssettings);
    Main_module::load_club_names();
    if (result != start_result::running)
        return result;
    rssettings.Close();
    Main_module::load_round_keys();
    MainForm::show_first();
    return result;
}

void prepare_application(QApplication& application)
{
    let_oversized_writes_fail();
    link_pictures();
    QCoreApplication::setApplicationName(u"Verdane"_s);
    QCoreApplication::setApplicationVersion(program_version());
    QGuiApplication::setDesktopFileName(u"io.verdane.Verdane"_s);
    QGuiApplication::setWindowIcon(QIcon(u":/art/verdane.svg"_s));
    apply_look(application);
    describe_controls();
}

int run_verdane(QApplication& application)
{
    start_result result = start_result::left;
    run_event([&] { result = Main(); });
    if (result == start_result::running) {
        daily_copy copy;
        after_first_paint(*MainForm::of_run(), [&copy] { finish_start(copy); });
        const int status = application.exec();
        MainForm::end_of_run();
        return status;
    }
    return result == start_result::damaged ? 1 : 0;
}

}  // namespace verdane
