#include <QSet>
#include <QTest>

#include "base/failure_text.h"
#include "base/failure_words.h"
#include "tests/guide/guide_pages.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// A text of the program as the guide quotes it: with typographic apostrophes and single blanks.
QString quoted_form(QString text)
{
    return text.replace(u'\'', u'’').simplified();
}

/// The texts of all kinds and of all full lists.
QSet<QString> texts_of_failures(bool french)
{
    QSet<QString> texts;
    for (int kind = 0; kind <= static_cast<int>(failure_kind::report_output); ++kind)
        texts << quoted_form(failure_words(static_cast<failure_kind>(kind)).in(french));
    for (const limited_list list : {limited_list::round_keys, limited_list::stored_rounds,
                                    limited_list::courses, limited_list::putts_of_a_hole})
        texts << quoted_form(words_of_full_list(list).in(french));
    return texts;
}

}  // namespace

/// The page on error messages quotes every message of the program.
class test_guide_failures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_text_of_a_failure_is_quoted_and_every_quote_is_one_of_them_data() { both_languages(); }
    void every_text_of_a_failure_is_quoted_and_every_quote_is_one_of_them()
    {
        QFETCH(bool, french);
        QStringList quoted;
        for (const page_element& quote : read_page(french, u"failures.html"_s).with_class(u"failure"_s))
            quoted << quote.text;
        QStringList expected = texts_of_failures(french).values();
        QVERIFY(expected.size() > 35);
        quoted.sort();
        expected.sort();
        QCOMPARE(quoted.join(u'\n'), expected.join(u'\n'));
    }

    void the_pages_that_mention_an_error_link_to_the_page_on_errors_data() { both_languages(); }
    void the_pages_that_mention_an_error_link_to_the_page_on_errors()
    {
        QFETCH(bool, french);
        for (const QString& name :
             {u"index.html"_s, u"backups.html"_s, u"round_list.html"_s, u"data_sources.html"_s}) {
            QStringList links;
            for (const page_element& link : read_page(french, name).with_tag(u"a"_s))
                links << link.attribute(u"href"_s).section(u'#', 0, 0);
            QVERIFY2(links.contains(u"failures.html"_s), qPrintable(name));
        }
    }
};

QTEST_GUILESS_MAIN(test_guide_failures)
#include "test_guide_failures.moc"
