#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

#include "base/language.h"
#include "controls/box_focus.h"
#include "controls/Form.h"
#include "controls/guide.h"
#include "tests/support/hand.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A window that the guide describes, with a box that refuses to be left.
class trial : public Form {
public:
    trial() : Form(u"f_partners")
    {
        box = new QLineEdit(this);
        box->setObjectName(u"box"_s);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(box);
        when_left(*box, [this] {
            ++questions;
            return false;
        });
    }

    QLineEdit* box;
    int questions = 0;
};

void in_trial(trial& window, const std::function<void(hand&)>& script)
{
    play([&] { window.show_modal(); },
         [&](hand& user) {
             user.wait_for_window(window.objectName());
             user.click(u"box"_s);
             user.type(u"12"_s);
             script(user);
             user.look([&] { window.unload(); });
         });
}

}  // namespace

/// F1 in a window.
class test_guide : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    QList<QUrl> opened_;
    bool has_browser_ = true;

    QString page_of(bool french) const
    {
        return folder_.filePath(french ? u"fr/windows/f_partners.html"_s : u"en/windows/f_partners.html"_s);
    }

private Q_SLOTS:
    void init()
    {
        is_french = true;
        opened_.clear();
        has_browser_ = true;
        guide() = {folder_.path(), [this](const QUrl& page) {
                       opened_ << page;
                       return has_browser_;
                   }};
        for (const bool french : {true, false}) {
            QVERIFY(QDir().mkpath(QFileInfo(page_of(french)).path()));
            QFile page(page_of(french));
            QVERIFY(page.open(QIODevice::WriteOnly));
        }
    }

    void f1_opens_the_page_in_the_language_of_the_window_data() { both_languages(); }
    void f1_opens_the_page_in_the_language_of_the_window()
    {
        QFETCH(bool, french);
        is_french = french;
        trial window;
        is_french = !french;
        in_trial(window, [](hand& user) { user.key(Qt::Key_F1); });
        QCOMPARE(opened_, QList<QUrl>{QUrl::fromLocalFile(page_of(french))});
    }

    void f1_keeps_the_text_that_is_being_typed()
    {
        trial window;
        in_trial(window, [&](hand& user) {
            user.key(Qt::Key_F1);
            user.type(u"3"_s);
            user.same(user.text(u"box"_s), u"123"_s, u"text"_s);
            user.same(user.focus(), u"box"_s, u"focus"_s);
            user.look([&] { QCOMPARE(window.questions, 0); });
        });
        QCOMPARE(opened_.size(), 1);
    }

    void f1_that_is_held_down_opens_one_page()
    {
        trial window;
        in_trial(window, [&](hand& user) {
            user.look([&] {
                for (const bool repeated : {false, true, true})
                    QVERIFY(qt_sendShortcutOverrideEvent(window.box, 0, Qt::Key_F1, Qt::NoModifier, QString(),
                                                         repeated));
            });
        });
        QCOMPARE(opened_.size(), 1);
    }

    void a_missing_guide_is_reported_and_nothing_is_opened_data() { both_languages(); }
    void a_missing_guide_is_reported_and_nothing_is_opened()
    {
        QFETCH(bool, french);
        is_french = french;
        QVERIFY(QFile::remove(page_of(french)));
        trial window;
        in_trial(window, [&](hand& user) {
            user.key(Qt::Key_F1);
            user.answer({in_language(u"Le guide est introuvable :\n", u"The guide was not found:\n") +
                             QDir::toNativeSeparators(folder_.path()),
                         QMessageBox::Information, u"Verdane"_s});
            user.same(user.text(u"box"_s), u"12"_s, u"text"_s);
            user.same(user.focus(), u"box"_s, u"focus"_s);
        });
        QVERIFY(opened_.isEmpty());
    }

    void a_missing_browser_is_reported_data() { both_languages(); }
    void a_missing_browser_is_reported()
    {
        QFETCH(bool, french);
        is_french = french;
        has_browser_ = false;
        trial window;
        in_trial(window, [&](hand& user) {
            user.key(Qt::Key_F1);
            user.answer({in_language(u"Aucun navigateur n'a pu ouvrir le guide :\n",
                                     u"No browser could open the guide:\n") +
                             QDir::toNativeSeparators(page_of(french)),
                         QMessageBox::Information, u"Verdane"_s});
        });
    }

    void a_window_without_a_page_opens_the_contents()
    {
        const QString contents = folder_.filePath(u"fr/index.html"_s);
        QVERIFY(QFile::rename(page_of(true), contents));
        trial window;
        in_trial(window, [](hand& user) { user.key(Qt::Key_F1); });
        QCOMPARE(opened_, QList<QUrl>{QUrl::fromLocalFile(contents)});
        QVERIFY(QFile::remove(contents));
    }

    void the_english_twin_has_the_page_of_its_family()
    {
        QWidget window;
        window.setObjectName(u"f_partners_en"_s);
        QCOMPARE(guide_page_of(window), u"windows/f_partners.html"_s);
    }
};

QTEST_MAIN(test_guide)
#include "test_guide.moc"
