#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include "controls/box_focus.h"
#include "controls/boxes.h"
#include "controls/control_array.h"
#include "controls/Form.h"
#include "controls/keys.h"
#include "tests/support/hand.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using verdane::testing::hand;
using verdane::testing::play;

namespace {

/// A window with a box for digits, whose handler inserts "9" as "(9)".
class digits_form : public Form {
public:
    digits_form() : Form(u"f_digits")
    {
        auto* layout = new QVBoxLayout(this);
        box = named(new QLineEdit, u"box");
        other = named(new QLineEdit, u"other");
        layout->addWidget(other);
        layout->addWidget(box);
        filter_keys(*box, [this](QChar key) {
            if (key == u'9') {
                box->insert(u"(9)"_s);
                return key_answer::taken;
            }
            return key == backspace || is_plain_digit(key) ? key_answer::pass : key_answer::refuse;
        });
        when_entered(*box, [this] { select_characters(*box, 4); });
    }

    QLineEdit* box = nullptr;
    QLineEdit* other = nullptr;
};

}  // namespace

class test_keys : public QObject {
    Q_OBJECT

    QString typed(const QString& keys, int* bells = nullptr)
    {
        digits_form window;
        const int before = bells_rung();
        QString text;
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.click(u"box"_s);
                 user.type(keys);
                 text = user.text(u"box"_s);
                 user.close_window(u"f_digits"_s);
             });
        if (bells)
            *bells = bells_rung() - before;
        return text;
    }

private Q_SLOTS:
    void refused_characters_are_not_inserted_and_ring_the_bell_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("bells");
        QTest::newRow("digits") << "123"
                                << "123" << 0;
        QTest::newRow("a letter") << "1a2"
                                  << "12" << 1;
        QTest::newRow("an accented letter") << u"é"_s << "" << 1;
        QTest::newRow("a digit of another script") << u"٣"_s << "" << 1;
        QTest::newRow("signs and quotes") << "-1.'\""
                                          << "1" << 4;
        QTest::newRow("a key that the handler inserts") << "19"
                                                        << "1(9)" << 0;
    }

    void refused_characters_are_not_inserted_and_ring_the_bell()
    {
        QFETCH(QString, keys);
        QFETCH(QString, text);
        QFETCH(int, bells);
        int rung = 0;
        QCOMPARE(typed(keys, &rung), text);
        QCOMPARE(rung, bells);
    }

    void keys_that_are_no_characters_do_not_pass_the_filter()
    {
        digits_form window;
        const int before = bells_rung();
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.click(u"box"_s);
                 user.type(u"12"_s);
                 user.key(Qt::Key_Backspace);
                 user.key(Qt::Key_Left);
                 user.key(Qt::Key_Delete);
                 user.same(user.text(u"box"_s), QString(), u"after deleting"_s);
                 user.paste(u"box"_s, u"a'b"_s);
                 user.same(user.text(u"box"_s), u"a'b"_s, u"pasted"_s);
                 user.close_window(u"f_digits"_s);
             });
        QCOMPARE(bells_rung(), before);
    }

    void pasted_text_is_inserted_only_if_all_characters_pass_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("taken");
        QTest::addColumn<int>("bells");
        QTest::newRow("digits") << "250"
                                << "250" << 0;
        QTest::newRow("a letter among them") << "2a0"
                                             << "" << 1;
        QTest::newRow("the character of the backspace") << "2\b0"
                                                        << "" << 1;
        QTest::newRow("digits of another script") << "٣٤"
                                                  << "" << 1;
    }
    void pasted_text_is_inserted_only_if_all_characters_pass()
    {
        QFETCH(QString, pasted);
        QFETCH(QString, taken);
        QFETCH(int, bells);
        QLineEdit box;
        filter_pasted_text(box, digits_only);
        const int before = bells_rung();
        box.insert(pasted);
        QCOMPARE(box.text(), taken);
        QCOMPARE(bells_rung() - before, bells);
    }

    void composed_characters_pass_the_filter()
    {
        QLineEdit box;
        filter_keys(box,
                    [](QChar key) { return is_plain_digit(key) ? key_answer::pass : key_answer::refuse; });
        for (const QString& composed : {u"ê"_s, u"7"_s}) {
            QInputMethodEvent event;
            event.setCommitString(composed);
            QCoreApplication::sendEvent(&box, &event);
        }
        QCOMPARE(box.text(), u"7"_s);
    }

    void the_text_of_a_box_is_selected_when_it_gains_the_focus()
    {
        digits_form window;
        window.box->setText(u"123456"_s);
        play([&] { window.show_modal(); },
             [&](hand& user) {
                 user.click(u"other"_s);
                 user.key(Qt::Key_Tab);
                 user.same(user.selected_text(u"box"_s), u"1234"_s, u"selection"_s);
                 user.close_window(u"f_digits"_s);
             });
    }
};

QTEST_MAIN(test_keys)
#include "test_keys.moc"
