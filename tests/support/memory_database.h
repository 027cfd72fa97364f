#pragma once

#include <QSqlQuery>
#include <QString>

namespace verdane::testing {

/// An in-memory database of SQLite. A statement that fails ends the test with the engine's message. To be
/// used in one thread.
class memory_database {
public:
    memory_database();
    ~memory_database();
    memory_database(const memory_database&) = delete;
    memory_database& operator=(const memory_database&) = delete;

    QSqlQuery prepared(const QString& statement) const;
    static void run(QSqlQuery& query);
    void run(const QString& statement) const;

private:
    QString name_;
};

}  // namespace verdane::testing
