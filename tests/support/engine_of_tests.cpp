#include "tests/support/engine_of_tests.h"

#include <QCoreApplication>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include "store/Connection1.h"
#include "tests/support/outside_connection.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

using source_settings = QMap<QString, QString>;
using source_map = QMap<QString, source_settings>;

const QString program_source = u"Verdbase"_s;
const QString server_source = u"VerdbaseServer"_s;

QString read_text(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

source_map read_sources(const QString& path)
{
    source_map all;
    QString name;
    for (const QString& line : read_text(path).split(u'\n')) {
        if (line.startsWith(u'['))
            name = line.mid(1, line.indexOf(u']') - 1);
        else if (line.contains(u'='))
            all[name][line.section(u'=', 0, 0)] = line.section(u'=', 1);
    }
    return all;
}

QString text_of(const source_map& all)
{
    QString text;
    for (auto source = all.begin(); source != all.end(); ++source) {
        text += u'[' + source.key() + u"]\n";
        for (auto setting = source->begin(); setting != source->end(); ++setting)
            text += setting.key() + u'=' + setting.value() + u'\n';
    }
    return text;
}

/// The data sources of this process, in an `odbc.ini` of its own. Its child processes start with the same.
class registered_sources {
public:
    registered_sources() : all_(read_sources(qEnvironmentVariable("ODBCINI")))
    {
        if (engine_of_tests() == test_engine::embedded)
            all_.clear();
        else if (!all_.contains(program_source))
            qFatal("VERDANE_TEST_ENGINE needs the sources that tools/with_engine registers");
        else if (!qEnvironmentVariableIsSet(child_mark))
            all_[program_source][place_key()] = place_called(name_of_store(0));
        save();
        qputenv("ODBCINI", QFile::encodeName(path()));
        qputenv("ODBCSYSINI", QFile::encodeName(folder_.path()));
        qputenv(child_mark, "1");
    }

    /// A new source with that name, equal to the program's except for the place of the data.
    void add(const QString& name, const QString& place)
    {
        all_[name] = all_[program_source];
        all_[name][place_key()] = place;
        save();
    }

    void remove(const QString& name)
    {
        all_.remove(name);
        save();
    }

    QString place(const QString& source) const { return all_[source][place_key()]; }
    /// A name that no other process uses, for a database or a file.
    static QString name_of_store(int number)
    {
        return u"verdbase_%1_%2"_s.arg(QCoreApplication::applicationPid()).arg(number);
    }
    QString next_name() { return name_of_store(++last_); }

private:
    /// Set in the environment of child processes, whose program uses the same store.
    static constexpr const char* child_mark = "VERDANE_TEST_CHILD";

    static QString place_key()
    {
        return engine_of_tests() == test_engine::mariadb ? u"DATABASE"_s : u"Database"_s;
    }
    QString place_called(const QString& name) const
    {
        return engine_of_tests() == test_engine::mariadb ? name : folder_.filePath(name);
    }
    QString path() const { return folder_.filePath(u"odbc.ini"_s); }

    void save() const
    {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(text_of(all_).toUtf8()) < 0)
            qFatal("cannot write %s", qUtf8Printable(path()));
    }

    QTemporaryDir folder_;
    source_map all_;
    int last_ = 0;
};

registered_sources& own_sources()
{
    static registered_sources sources;
    return sources;
}

void on_server(const QString& statement)
{
    outside_connection(store_location::source(server_source)).run(statement);
}

void create_place(const QString& place)
{
    if (engine_of_tests() == test_engine::mariadb)
        on_server(u"create database "_s + place);
}

void remove_place(const QString& place)
{
    if (engine_of_tests() == test_engine::mariadb) {
        on_server(u"drop database if exists "_s + place);
        return;
    }
    for (const QString& ending : {u""_s, u"-wal"_s, u"-shm"_s, u"-journal"_s})
        QFile::remove(place + ending);
}

}  // namespace

test_engine engine_of_tests()
{
    static const test_engine engine = [] {
        const QString name = qEnvironmentVariable("VERDANE_TEST_ENGINE");
        if (name == u"mariadb")
            return test_engine::mariadb;
        if (name == u"sqlite_odbc")
            return test_engine::sqlite_odbc;
        if (!name.isEmpty() && name != u"embedded")
            qFatal("no engine of that name: %s", qUtf8Printable(name));
        return test_engine::embedded;
    }();
    return engine;
}

store_location new_store_place(const QString& folder)
{
    registered_sources& sources = own_sources();
    if (engine_of_tests() == test_engine::embedded)
        return store_location::file(folder + u"/diary/Verdbase.db");
    const QString name = sources.next_name();
    const QString place = engine_of_tests() == test_engine::mariadb ? name : folder + u"/Verdbase.db";
    create_place(place);
    sources.add(name, place);
    return store_location::source(name);
}

store_location new_program_store()
{
    registered_sources& sources = own_sources();
    if (engine_of_tests() == test_engine::embedded)
        return store_location::file(Connection1::default_path());
    remove_place(sources.place(program_source));
    create_place(sources.place(program_source));
    return store_location::source(program_source);
}

void remove_store_place(const store_location& store)
{
    if (store.where == store_location::place::file)
        return;
    remove_place(own_sources().place(store.name));
    if (store.name != program_source)
        own_sources().remove(store.name);
}

store_location store_called(const QString& name)
{
    return engine_of_tests() == test_engine::embedded ? store_location::file(name)
                                                      : store_location::source(name);
}

QString administrator_source()
{
    own_sources();
    return server_source;
}

failure_kind missing_part_of_engine()
{
    return engine_of_tests() == test_engine::mariadb ? failure_kind::source_part
                                                     : failure_kind::missing_table;
}

QString file_of(const store_location& store)
{
    return store.where == store_location::place::file ? store.name : own_sources().place(store.name);
}

}  // namespace verdane::testing
