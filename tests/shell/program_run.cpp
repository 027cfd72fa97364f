#include "tests/shell/program_run.h"

#include <QApplication>
#include <QFile>

#include "shell/start_up.h"
#include "store/Connection1.h"
#include "store/DataEnvironment1.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

QTemporaryDir& with_new_store(QTemporaryDir& home)
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    QCoreApplication::setApplicationName(u"Verdane"_s);
    Connection1 first_start;
    first_start.Open();
    first_start.Close();
    return home;
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

QString columns(const QString& name, const QString& value)
{
    QStringList pieces;
    for (int hole = 1; hole <= 18; ++hole)
        pieces << name.arg(hole) + u" = " + value;
    return pieces.join(u", ");
}

}  // namespace

program_run::program_run(int language, const QStringList& statements)
    : store_((with_new_store(home_), store_path()))
{
    store_.write(u"update settings set language = %1"_s.arg(language));
    store_.write(statements);
}

program_run::~program_run()
{
    close_the_store();
}

QString program_run::store_path()
{
    return Connection1::default_path();
}

int program_run::play_through(const std::function<void(hand&)>& script)
{
    int status = -1;
    play([&] { status = run_verdane(*qApp); }, script);
    close_the_store();
    return status;
}

QStringList one_course()
{
    return {u"insert into vrd_fields (code, name, name_tee, rating, slope, tee) values "
            u"('LINKS-0', 'Links', 'Links-0', '71.2', '128', 'WHITE')"_s,
            u"insert into field_info (FIELD_CODE) values ('LINKS-0')"_s,
            u"update field_info set " + columns(u"par_%1"_s, u"4"_s) + u", " +
                columns(u"yards_%1"_s, u"380"_s)};
}

QStringList one_round(const QString& key)
{
    return {u"insert into games (date, field, CODEF) values ('%1', 'Links', 'LINKS-0')"_s.arg(key),
            u"insert into games2 (date, conditionM, PARTNERS, temperature, FC) values ('%1', 0, '', "
            u"20, 'LINKS-0')"_s.arg(key),
            u"insert into cost (date) values ('%1')"_s.arg(key)};
}

QStringList rounds(int count)
{
    QStringList statements = one_course();
    for (int i = 0; i < count; ++i)
        statements << one_round(QString::number(20250101000000LL + i));
    return statements;
}

}  // namespace verdane::testing
