#include "transfer/command.h"

#include "store/commits.h"
#include "store/DataEnvironment1.h"
#include "store/recovery/diary_copy.h"
#include "store/recovery/diary_problems.h"
#include "store/recovery/diary_snapshot.h"
#include "transfer/console.h"
#include "transfer/empty_store.h"
#include "transfer/problem_report.h"
#include "transfer/store_argument.h"
#include "transfer/table_reader.h"

namespace verdane {

namespace {

using all_tables = std::vector<table_rows>;

/// The rows of every table of `schema`, in its order. `edited` gets the names of changed files.
all_tables read_tables(const QString& folder, bad_lines& faults, QStringList& edited)
{
    const table_list list = read_list(folder, faults);
    all_tables tables;
    for (const table& each : schema())
        tables.push_back(read_table(each, folder, list, faults, edited));
    return tables;
}

/// All tables are one commit. Returns the number of rows.
int write_tables(Connection1& store, const all_tables& tables)
{
    single_commit together(store);
    need_empty(store);
    int rows = 0;
    for (std::size_t place = 0; place < tables.size(); ++place) {
        const table& written = schema()[place];
        const int of_table = static_cast<int>(tables[place].size());
        print(in_language(u"%1 : %2", u"%1: %2").arg(written.name, counted_rows(of_table)));
        fill_table(store, written, tables[place]);
        rows += of_table;
    }
    together.finish();
    return rows;
}

/// A diary can have problems that are imported with it.
exit_status print_result(const all_tables& tables, int rows, const problem_list& problems)
{
    print(in_language(u"Importé et vérifié : %1 tables, %2.", u"Imported and checked: %1 tables, %2.")
              .arg(QString::number(tables.size()), counted_rows(rows)));
    print_problems(problems);
    if (problems.empty())
        return exit_status::done;
    print(in_language(u"Problèmes : %1.", u"Problems: %1.").arg(problems.size()));
    return exit_status::problems;
}

/// A changed file is no fault: it may have been edited. A digit that was changed by a damaged disk, or a file
/// of another export, is not found otherwise.
void report_edited(const QStringList& files)
{
    for (const QString& file : files)
        print_warning(
            in_language(u"%1 a été modifié après l'exportation.", u"%1 was changed after the export.")
                .arg(file));
}

exit_status import_tables(const store_location& to, const all_tables& tables)
{
    Connection1& store = data_environment().connection;
    int rows = 0;
    problem_list problems;
    const exit_status status = fill_empty_store(store, to, [&] {
        rows = write_tables(store, tables);
        problems = find_problems(store, diary_snapshot(store.location()));
    });
    return status == exit_status::done ? print_result(tables, rows, problems) : status;
}

exit_status run_import(const QStringList& arguments, int)
{
    const auto to = arguments.size() == 2 ? store_of_argument(arguments[1]) : std::nullopt;
    if (!to || arguments[0].isEmpty())
        return refuse_usage();
    bad_lines faults;
    QStringList edited;
    const all_tables tables = read_tables(arguments[0], faults, edited);
    if (!faults.empty())
        return refuse_lines(faults);
    report_edited(edited);
    return reported([&] { return import_tables(*to, tables); });
}

}  // namespace

const command import_command{u"import",
                             {u"DOSSIER JOURNAL", u"FOLDER STORE"},
                             {u"lit les fichiers de export dans un journal vide ou nouveau",
                              u"reads the files of export into an empty or new diary"},
                             {},
                             run_import};

}  // namespace verdane
