#pragma once

#include "store/engines/odbc_engine.h"
#include "store/engines/sqlite_tables.h"

class QLockFile;

namespace verdane {

/// A SQLite file that is registered as a source. It has the settings of the embedded engine (WAL,
/// synchronous=FULL), and the same lock file, so that both cannot be open on one file.
class sqlite_odbc_engine : public odbc_engine {
public:
    /// `version` is that of the library, as `sqlite_version()` returns it.
    sqlite_odbc_engine(QString name, store_location where, const QString& version);
    ~sqlite_odbc_engine() override;

    /// Checks the file of a source before its driver opens it, because the driver deletes the log of a file
    /// that is empty or missing. If the driver may be that of another engine, only such a file is
    /// checked. Fails like `check_store_files`.
    static void check_before_opening(const QString& source);

    /// Creates the file if there is none. Fails like the embedded engine, and with `source_database`,
    /// `source_table`, `source_column` or `source_type`.
    bool open(soundness_check check) override;
    void close() override;
    void abandon() override;

    void check_soundness() override;
    void need_soundness() override;

    QString identity_column(QStringView table) const override;
    bool has_declared_defaults(QStringView table) const override;
    qint64 insert(const statement_with_values& statement, const QString& where) override;
    const commit_statements& commits() const override;
    run_time_failure failure(const QSqlError& error, const QString& where) const override;

protected:
    QString text_literal(const QByteArray& utf8) const override;
    text_form texts() const override { return text_form::characters; }

private:
    QString path_of_file() const;
    /// Checks the file while the driver does not have it open: on some systems a process that closes a file
    /// loses all its locks of it. Another program would then remove the log that this one writes.
    void check_closed_file();
    bool check_content();
    qint64 last_identity() const;

    const bool returns_new_rows_;
    sqlite_tables tables_;
    std::unique_ptr<QLockFile> lock_;
    QString path_;
    bool created_ = false;
    bool known_sound_ = false;
};

}  // namespace verdane
