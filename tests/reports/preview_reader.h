#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>

#include "base/language.h"
#include "reports/preview/page_view.h"
#include "reports/preview/report_dialogs.h"
#include "reports/preview/report_preview.h"
#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "tests/reports/report_tools.h"
#include "tests/support/store_folder.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

/// The base of a test of the preview: opens one with a few pages, reads its texts and presses its buttons.
/// The file chooser returns `answer_`.
class preview_reader : public QObject {
protected:
    QTemporaryDir folder_;
    store_folder store_;
    QPointer<report_preview> window_;
    file_question asked_;
    QString answer_;

    void start_in_english()
    {
        is_french = false;
        set_report_store(store_.location());
        asked_ = {};
        answer_.clear();
        dialogs_of_reports().choose_file = [this](QWidget*, const file_question& question) {
            asked_ = question;
            return answer_;
        };
    }

    QString file(const QString& name) const { return folder_.filePath(name); }

    void open(QWidget* owner = nullptr, int sheets = 3)
    {
        const QString path =
            template_file_in(folder_.path(), u"Three.rpt"_s,
                             u"page = A4 landscape\ntitle = Three\n"
                             u"query it = with recursive it_list(n) as (select 1 union all select n + 1 from "
                             u"it_list where n < %1) select n from it_list"_s.arg(sheets),
                             u"{{#it}}<p style=\"page-break-after: always\">sheet-{{n}}-</p>{{/it}}"_s);
        window_ = new report_preview(render_report(path), u"A title"_s, owner);
        window_->show();
        QVERIFY(QTest::qWaitForWindowActive(window_));
    }

    void click(const char* name)
    {
        auto* button = window_->findChild<QAbstractButton*>(QString::fromLatin1(name));
        QVERIFY2(button != nullptr, name);
        QVERIFY(!button->accessibleName().isEmpty());
        QTest::mouseClick(button, Qt::LeftButton);
    }

    QString label(const char* name) { return window_->findChild<QLabel*>(QString::fromLatin1(name))->text(); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window_->focusWidget() == nullptr ? window_.data() : window_->focusWidget(), key,
                        modifiers);
    }

    QMessageBox* box() { return window_->findChild<QMessageBox*>(u"message_box"_s); }
};

}  // namespace verdane::testing
