#pragma once

#include <QString>
#include <QVariant>

#include <vector>

namespace verdane::testing {

/// Reads a store on a connection of its own, as something outside the program would: it sees what was
/// committed and nothing else. Usable from any thread.
class reader {
public:
    explicit reader(QString path);

    /// Every row of a statement. A statement that fails ends the test with the engine's words.
    std::vector<std::vector<QVariant>> rows(const QString& statement) const;
    /// The one value of a statement that gives one.
    QVariant value(const QString& statement) const;
    QString text(const QString& statement) const { return value(statement).toString(); }
    int number(const QString& statement) const { return value(statement).toInt(); }
    /// Runs a statement that writes: how a test prepares a store.
    void write(const QString& statement) const;
    void write(const QStringList& statements) const;

private:
    QString path_;
};

}  // namespace verdane::testing
