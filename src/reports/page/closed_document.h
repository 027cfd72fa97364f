#pragma once

#include <QStringList>
#include <QTextDocument>
#include <QUrl>

namespace verdane {

/// A document that loads nothing: no picture, background or style sheet, whatever its HTML names.
class closed_document : public QTextDocument {
public:
    /// The names of what its HTML asked for.
    const QStringList& refused() const { return refused_; }

protected:
    QVariant loadResource(int, const QUrl& name) override
    {
        refused_.append(name.toString());
        return {};
    }

private:
    QStringList refused_;
};

}  // namespace verdane
