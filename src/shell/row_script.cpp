#include "shell/row_script.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>

#include "base/program.h"
#include "controls/boxes.h"
#include "store/DataEnvironment1.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QByteArray content_of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// False if the file cannot be written. The notice shows the statements, too.
bool write_content(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).absolutePath()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size() && file.flush();
}

QString notice()
{
    return in_language(
        u"Les tables de votre journal n'ont pas la colonne qui désigne une ligne. Verdane fonctionne sans "
        u"elle, mais plus lentement. Pour l'ajouter, faites exécuter les instructions ci-dessous par la "
        u"personne qui gère la base de données, pendant que Verdane est fermé.",
        u"The tables of your diary do not have the column that identifies a row. Verdane works without it, "
        u"but more slowly. To add it, have the statements below run by the person who manages the database, "
        u"while Verdane is closed.");
}

void show_notice(const QString& script, bool written)
{
    QMessageBox box(QMessageBox::Information, default_title(), notice(), QMessageBox::Ok, active_window());
    box.setObjectName(u"row_script_box"_s);
    box.setTextFormat(Qt::PlainText);
    if (written)
        box.setInformativeText(
            in_language(u"Elles sont aussi dans le fichier %1", u"They are also in the file %1")
                .arg(QDir::toNativeSeparators(row_script_path())));
    box.setDetailedText(script);
    box.exec();
}

}  // namespace

QString row_script_path()
{
    return QFileInfo(Connection1::default_path()).absolutePath() + u"/verdane_row.sql";
}

void offer_row_script()
{
    const QString script = data_environment().connection.identity_script();
    if (script.isEmpty() || content_of(row_script_path()) == script.toUtf8())
        return;
    show_notice(script, write_content(row_script_path(), script.toUtf8()));
}

}  // namespace verdane
