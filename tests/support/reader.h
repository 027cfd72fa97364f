#pragma once

#include <QString>
#include <QVariant>

#include <vector>

namespace verdane::testing {

/// Reads a store on a separate connection, so it reads only committed rows. Usable from any thread.
class reader {
public:
    explicit reader(QString path);

    /// Every row of a statement. A statement that fails ends the test with the engine's message.
    std::vector<std::vector<QVariant>> rows(const QString& statement) const;
    /// The first column of the first row; an invalid value if there is no row.
    QVariant value(const QString& statement) const;
    QString text(const QString& statement) const { return value(statement).toString(); }
    int number(const QString& statement) const { return value(statement).toInt(); }
    /// Runs statements that write, to prepare a store.
    void write(const QString& statement) const;
    void write(const QStringList& statements) const;

private:
    QString path_;
};

}  // namespace verdane::testing
