#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <optional>

namespace verdane::testing {

/// A run of the program `verdane-store` as a child process, in English unless another language is set.
class store_run {
public:
    explicit store_run(const QStringList& arguments);

    void set_language(const QString& language);
    /// Nobody reads the standard output.
    void close_output();
    /// The folder in which it runs.
    void set_folder(const QString& folder) { process_.setWorkingDirectory(folder); }
    /// Files cannot grow beyond that size, in bytes; the same as a full disk.
    void limit_files(unsigned long bytes);

    /// Runs a copy of the program in that folder as a user without rights, if the tests are run by root, who
    /// has every right.
    void become_nobody(const QString& folder);

    /// Runs a copy of the program in that folder. Of the drivers for databases, the toolkit finds only those
    /// plug-ins there.
    void limit_plugins(const QString& folder, const QStringList& drivers);

    void start();
    /// Waits until the program has printed a text.
    bool wait_for(const QString& printed);
    void kill();
    /// Waits for the end. No value if the program did not end by itself.
    std::optional<int> exit_status();
    /// Starts the program and waits for its end.
    std::optional<int> run();

    const QString& output() const { return output_; }
    QString errors() { return QString::fromUtf8(process_.readAllStandardError()); }

private:
    void copy_program(const QString& folder);

    QProcess process_;
    QString output_;
};

}  // namespace verdane::testing
