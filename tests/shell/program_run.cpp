#include "tests/shell/program_run.h"

#include <QApplication>
#include <QFile>

#include "shell/start_up.h"
#include "store/Connection1.h"
#include "store/DataEnvironment1.h"
#include "tests/support/diary.h"
#include "tests/support/engine_of_tests.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

store_location new_store_in(const QTemporaryDir& home)
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    QCoreApplication::setApplicationName(u"Verdane"_s);
    const store_location place = new_program_store();
    Connection1().Open(place);
    return place;
}

void close_the_store()
{
    for (Recordset& recordset : data_environment().recordsets()) {
        if (recordset.is_open())
            recordset.Close();
        recordset.set_Source(recordset.settings().source);
    }
    data_environment().connection.Close();
}

const diary_course links{.code = u"LINKS-0"_s,
                         .name = u"Links"_s,
                         .name_tee = u"Links-0"_s,
                         .tee = u"WHITE"_s,
                         .rating = u"71.2"_s,
                         .slope = u"128"_s,
                         .yards = all_holes(380),
                         .address_1 = {}};

}  // namespace

program_run::program_run(int language, const QStringList& statements) : store_(new_store_in(home_))
{
    store_.write(u"update settings set language = %1"_s.arg(language));
    store_.write(statements);
}

program_run::~program_run()
{
    close_the_store();
    remove_store_place(store_place());
}

store_location program_run::store_place()
{
    return default_store();
}

QString program_run::store_path()
{
    return Connection1::default_path();
}

int program_run::play_through(const std::function<void(hand&)>& script)
{
    hand user;
    return play_through(script, user);
}

int program_run::play_through(const std::function<void(hand&)>& script, hand& user)
{
    int status = -1;
    play([&] { status = run_verdane(*qApp); }, script, user);
    close_the_store();
    return status;
}

QStringList one_course()
{
    return statements_of(links);
}

QStringList one_round(const QString& key)
{
    return statements_of(blank_round{key, links.code, links.name, round_conditions{}});
}

QStringList rounds(int count)
{
    QStringList statements = one_course();
    for (int i = 0; i < count; ++i)
        statements << one_round(QString::number(20250101000000LL + i));
    return statements;
}

}  // namespace verdane::testing
