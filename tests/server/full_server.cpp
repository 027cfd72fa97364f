#include "tests/server/full_server.h"

#include <QFileInfo>

#include <algorithm>

#include "tests/server/own_server.h"
#include "tests/support/engine_of_tests.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

/// The tables are in one file, which grows in steps of 1 MB instead of 64.
const QStringList one_file{u"--innodb-file-per-table=0"_s, u"--innodb-autoextend-increment=1"_s};

/// Adds rows of a size and changes another row to that size until all of it is refused (1114: the table is
/// full) many times in a row. A transaction takes the next of 128 segments for its undo records, and each may
/// have space left. With three statements in a pass, each of them uses every segment.
void fill(int size)
{
    const QString add = u"insert into mysql.filler (content) values (repeat('x', %1)); "_s.arg(size);
    const QString change = u"insert into mysql.filler values (1, '') on duplicate key update content = "
                           "if(content like 'a%', repeat('b', %1), repeat('a', %1)); "_s.arg(size);
    administer(u"begin not atomic "
               "declare refused, before_pass int default 0; "
               "declare continue handler for 1114 set refused = refused + 1; "
               "while refused < 1200 do "
               "set before_pass = refused; " +
               add + change + change +
               u"if refused < before_pass + 3 then set refused = 0; end if; "
               "end while; end");
}

QStringList small_table_space()
{
    constexpr qint64 mb = 1024 * 1024;
    constexpr qint64 free_at_first = 16;
    constexpr qint64 least_free = 2;
    const qint64 present = QFileInfo(file_of_tables()).size() / mb;
    static const qint64 limit = present + free_at_first;
    return one_file + QStringList{u"--innodb-data-file-path=ibdata1:12M:autoextend:max:%1M"_s.arg(
                          std::max(limit, present + least_free))};
}

}  // namespace

void start_with_small_table_space()
{
    start_server(small_table_space());
}

full_server::full_server() : snapshot_(store_location::source(administrator_source()))
{
    administer(
        u"create table mysql.filler (id int auto_increment primary key, content text) engine=innodb"_s);
    administer(u"insert into mysql.filler values (1, '')"_s);
    snapshot_.run_unchanged(u"set transaction isolation level repeatable read"_s);
    snapshot_.run_unchanged(u"start transaction with consistent snapshot"_s);
    // The small rows use what the large ones have left.
    for (const int size : {7000, 1000, 1})
        fill(size);
}

full_server::~full_server()
{
    stop_server();
    start_server(one_file);
    administer(u"drop table mysql.filler"_s);
    stop_server();
}

}  // namespace verdane::testing
