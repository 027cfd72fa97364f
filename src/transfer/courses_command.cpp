#include "transfer/command.h"

#include <algorithm>

#include "records/course_rows.h"
#include "store/commits.h"
#include "store/DataEnvironment1.h"
#include "store/recovery/sole_use.h"
#include "transfer/console.h"
#include "transfer/course_lines.h"
#include "transfer/store_argument.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

using course_lines = std::vector<course_line>;

/// Removes the courses that are stored already. Returns their names.
QStringList take_stored(course_lines& courses)
{
    QStringList names;
    std::erase_if(courses, [&](const course_line& each) {
        const bool stored = find_known_course(each.course).duplicate;
        if (stored)
            names << each.course.name + u", " + each.course.tee_text;
        return stored;
    });
    return names;
}

/// All courses are one commit.
void add_all(const course_lines& courses)
{
    single_commit together(data_environment().connection);
    for (const course_line& each : courses)
        add_course(each.course);
    together.finish();
}

QString counted_courses(std::size_t number)
{
    return counted(static_cast<int>(number), {u"terrain", u"course"}, {u"terrains", u"courses"});
}

void print_result(const course_lines& added, const QStringList& stored)
{
    for (const course_line& each : added)
        print(in_language(u"Ajouté : %1, %2", u"Added: %1, %2").arg(each.course.name, each.course.tee_text));
    for (const QString& name : stored)
        print(in_language(u"Déjà dans le journal, pas modifié : %1", u"In the diary already, not changed: %1")
                  .arg(name));
    print(in_language(u"Terrains ajoutés : %1.", u"Courses added: %1.").arg(added.size()));
}

/// The fault of the first course beyond the limit of the diary.
bad_line no_place(const QString& file, const course_line& course)
{
    return {file, course.line,
            in_language(u"le journal n'a pas de place pour plus de %1",
                        u"the diary has no place for more than %1")
                .arg(counted_courses(most_courses))};
}

exit_status add_courses(const QString& file, course_lines courses)
{
    Round_functions::open_courses();
    Recordset& present = data_environment().rsvrd_fields;
    rebuild_course_keys(present);
    const QStringList stored = take_stored(courses);
    const auto places = static_cast<std::size_t>(std::max(0, most_courses - present.RecordCount()));
    if (courses.size() > places)
        return refuse_lines({no_place(file, courses[places])});
    add_all(courses);
    print_result(courses, stored);
    return exit_status::done;
}

exit_status import_courses(const QString& file, const store_location& location)
{
    bad_lines faults;
    const course_lines courses = read_courses(file, faults);
    if (!faults.empty())
        return refuse_lines(faults);
    if (!open_alone(data_environment().connection, location))
        return refuse_without_diary(location);
    return add_courses(file, courses);
}

exit_status run_courses(const QStringList& arguments, int)
{
    const auto store = arguments.size() == 2 ? store_of_argument(arguments[1]) : std::nullopt;
    if (!store)
        return refuse_usage();
    if (is_empty_file(*store))
        return refuse_without_diary(*store);
    return reported([&] {
        const exit_status status = import_courses(arguments[0], *store);
        data_environment().abandon();
        return status;
    });
}

}  // namespace

const command courses_command{u"courses",
                              {u"FICHIER.csv JOURNAL", u"FILE.csv STORE"},
                              {u"ajoute les terrains d'un fichier CSV, avec les contrôles de Verdane",
                               u"adds the courses of a CSV file, with the checks of Verdane"},
                              {},
                              run_courses};

}  // namespace verdane
