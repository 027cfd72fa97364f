#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>

namespace verdane::bench {

/// A store that is read and written with the toolkit alone, for the floors. It has the program's settings
/// (WAL, synchronous=FULL), and each statement is committed separately.
class plain_store {
public:
    explicit plain_store(const QString& path);
    ~plain_store();
    plain_store(const plain_store&) = delete;
    plain_store& operator=(const plain_store&) = delete;

    /// Runs a statement forward only. A failing one ends the run with the engine's message.
    QSqlQuery run(const QString& statement, const QVariantList& values = {}) const;

private:
    QString name_;
};

}  // namespace verdane::bench
