#include "reports/preview/report_dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QPrintDialog>
#include <QStandardPaths>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString ask_for_file(QWidget* owner, const file_question& question)
{
    QFileDialog dialog(owner, question.caption);
    dialog.setObjectName(u"choose_file"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilter(u"%1 (*.%2)"_s.arg(question.kind, question.ending));
    dialog.setDefaultSuffix(question.ending);
    dialog.setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog.selectFile(question.proposed);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().constFirst();
}

bool ask_for_printer(QWidget* owner, QPrinter& printer, int pages)
{
    QPrintDialog dialog(&printer, owner);
    dialog.setObjectName(u"choose_printer"_s);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setMinMax(1, pages);
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace

report_dialogs& dialogs_of_reports()
{
    static report_dialogs dialogs{ask_for_file, ask_for_printer};
    return dialogs;
}

}  // namespace verdane
