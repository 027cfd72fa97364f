#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>

namespace verdane::bench {

/// A store read and written by nothing but the toolkit: what the floors stand on. Set up as the
/// program sets it up (WAL, synchronous=FULL), each statement committed by itself.
class plain_store {
public:
    explicit plain_store(const QString& path);
    ~plain_store();
    plain_store(const plain_store&) = delete;
    plain_store& operator=(const plain_store&) = delete;

    /// Runs a statement forward only. One that fails ends the run with the engine's words.
    QSqlQuery run(const QString& statement, const QVariantList& values = {}) const;

private:
    QString name_;
};

}  // namespace verdane::bench
