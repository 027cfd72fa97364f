#pragma once

#include "store/engines/engine.h"

class QLockFile;

namespace verdane {

class lock_wait;

/// The SQLite library in this process, on one file. Commits survive a power cut (WAL, synchronous=FULL). A
/// row is identified by the engine's row number, and values are bound.
class embedded_engine : public store_engine {
public:
    embedded_engine(QString name, store_location where, lock_wait& waiting);
    ~embedded_engine() override;

    /// Creates the file if there is none. Fails with `store_locked`, `store_read_only`, `store_damaged`,
    /// `store_full` or `store_unreachable`.
    bool open(soundness_check check) override;
    void close() override;
    /// Also removes the file if `open` created it.
    void abandon() override;

    /// Checks the whole file, and the indexes against the tables.
    void check_soundness() override;
    void need_soundness() override;
    QStringList damaged_indexes() override;

    QString identity_column(QStringView table) const override;
    void add_value(statement_with_values& statement, const QVariant& value) const override;
    std::unique_ptr<result_rows> select(const QString& statement, const QString& where) const override;
    int change(const statement_with_values& statement, const QString& where) override;
    qint64 insert(const statement_with_values& statement, const QString& where) override;
    const commit_statements& commits() const override;
    run_time_failure failure(const QSqlError& error, const QString& where) const override;

private:
    bool open_file(soundness_check check);
    void close_file();
    void check_whole_file();
    /// Statements may write, and closing copies the log into the file.
    void take_as_sound();

    lock_wait& waiting_;
    std::unique_ptr<QLockFile> lock_;
    prepared_statements prepared_;
    bool created_ = false;
    bool known_sound_ = false;
};

}  // namespace verdane
