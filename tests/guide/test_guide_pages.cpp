#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include "tests/guide/guide_pages.h"

using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

void every_page()
{
    QTest::addColumn<bool>("french");
    QTest::addColumn<QString>("name");
    for (const bool french : {true, false}) {
        for (const QString& name : page_names(french) + window_page_names(french))
            QTest::addRow("%s %s", french ? "French" : "English", qUtf8Printable(name)) << french << name;
    }
}

/// The fault of a link; empty if it has none.
QString fault_of_link(const guide_page& page, const QString& link)
{
    const QString file = link.section(u'#', 0, 0);
    const QString anchor = link.section(u'#', 1);
    const QString path =
        QDir::cleanPath(file.isEmpty() ? page.path : QFileInfo(page.path).path() + u'/' + file);
    if (link.contains(u':') || !path.startsWith(guide_folder()))
        return link + u" leaves the guide"_s;
    if (!QFileInfo(path).isFile())
        return link + u" has no file"_s;
    if (anchor.isEmpty())
        return {};
    const bool in_french = path.startsWith(guide_folder() + u"/fr/"_s);
    const guide_page target = read_page(in_french, path.sliced(guide_folder().size() + 4));
    return target.has_anchor(anchor) ? QString() : link + u" has no anchor"_s;
}

/// Tags, identifiers, classes and pictures: what both languages have in common. Emphasis and quotations
/// inside a sentence may differ.
QStringList structure_of(const guide_page& page)
{
    static const QSet<QString> blocks{u"h1"_s, u"h2"_s,  u"ul"_s,  u"ol"_s,     u"li"_s,  u"table"_s,
                                      u"tr"_s, u"td"_s,  u"th"_s,  u"figure"_s, u"img"_s, u"section"_s,
                                      u"p"_s,  u"pre"_s, u"nav"_s, u"footer"_s};
    QStringList structure;
    for (const page_element& element : page.elements) {
        if (blocks.contains(element.tag))
            structure << element.tag + u'#' + element.attribute(u"id"_s) + u'.' +
                             element.attribute(u"class"_s) +
                             element.attribute(u"src"_s).replace(QRegularExpression(u"_(fr|en)"_s),
                                                                 QString());
    }
    return structure;
}

/// The text of a page without quoted captions, whose blanks are those of the program.
QString prose_of(const guide_page& page)
{
    QString text = text_of_file(page.path);
    text.remove(QRegularExpression(u"<b class=\"caption\">.*?</b>"_s,
                                   QRegularExpression::DotMatchesEverythingOption));
    return text.remove(QRegularExpression(u"<[^>]*>"_s)).simplified();
}

}  // namespace

/// The form of the guide. A browser shows it from the disk, without a network.
class test_guide_pages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void both_languages_have_the_same_pages()
    {
        QVERIFY(page_names(true).size() > 20);
        QCOMPARE(page_names(true), page_names(false));
        QVERIFY(window_page_names(true).size() > 15);
        QCOMPARE(window_page_names(true), window_page_names(false));
    }

    void a_page_is_well_formed_data() { every_page(); }
    void a_page_is_well_formed()
    {
        QFETCH(bool, french);
        QFETCH(QString, name);
        const guide_page page = read_page(french, name);
        QCOMPARE(page.fault, QString());
        QCOMPARE(page.elements.front().tag, u"html"_s);
        QCOMPARE(page.elements.front().attribute(u"lang"_s), french ? u"fr"_s : u"en"_s);
        QCOMPARE(page.with_tag(u"h1"_s).size(), std::size_t(1));
        QVERIFY(page.with_tag(u"title"_s).front().text.startsWith(page.with_tag(u"h1"_s).front().text));
    }

    void an_identifier_of_a_page_is_unique_data() { every_page(); }
    void an_identifier_of_a_page_is_unique()
    {
        QFETCH(bool, french);
        QFETCH(QString, name);
        QSet<QString> seen;
        for (const page_element& element : read_page(french, name).elements) {
            const QString id = element.attribute(u"id"_s);
            QVERIFY2(id.isEmpty() || !seen.contains(id), qPrintable(id));
            seen << id;
        }
    }

    void every_link_has_its_target_data() { every_page(); }
    void every_link_has_its_target()
    {
        QFETCH(bool, french);
        QFETCH(QString, name);
        const guide_page page = read_page(french, name);
        QStringList faults;
        for (const page_element& element : page.elements) {
            for (const QString& kind : {u"href"_s, u"src"_s}) {
                if (element.attributes.hasAttribute(kind))
                    faults << fault_of_link(page, element.attribute(kind));
            }
        }
        QVERIFY(faults.size() > 1);
        faults.removeAll(QString());
        QCOMPARE(faults.join(u'\n'), QString());
    }

    void a_page_of_a_window_redirects_to_its_section_data()
    {
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("name");
        for (const bool french : {true, false}) {
            for (const QString& name : window_page_names(french))
                QTest::addRow("%s %s", french ? "French" : "English", qUtf8Printable(name)) << french << name;
        }
    }
    void a_page_of_a_window_redirects_to_its_section()
    {
        QFETCH(bool, french);
        QFETCH(QString, name);
        const guide_page page = read_page(french, name);
        const QString target = target_of(page);
        QCOMPARE(target.section(u'#', 1), QFileInfo(name).completeBaseName());
        QVERIFY(read_page(french, target.section(u'#', 0, 0)).has_anchor(target.section(u'#', 1)));
        // For a browser that does not redirect automatically.
        QCOMPARE(page.with_tag(u"a"_s).front().attribute(u"href"_s), u"../"_s + target);
    }

    void every_picture_is_described_and_in_the_language_data() { every_page(); }
    void every_picture_is_described_and_in_the_language()
    {
        QFETCH(bool, french);
        QFETCH(QString, name);
        for (const page_element& picture : read_page(french, name).with_tag(u"img"_s)) {
            QVERIFY(!picture.attribute(u"alt"_s).isEmpty());
            QVERIFY(picture.attribute(u"src"_s).endsWith(french ? u"_fr.png"_s : u"_en.png"_s));
        }
    }

    void every_picture_is_shown_by_a_page()
    {
        QStringList shown;
        for (const bool french : {true, false}) {
            for (const QString& name : page_names(french)) {
                for (const page_element& picture : read_page(french, name).with_tag(u"img"_s))
                    shown << picture.attribute(u"src"_s).section(u'/', -1);
            }
        }
        const QStringList stored = QDir(guide_folder() + u"/pictures"_s).entryList(QDir::Files);
        QVERIFY(!stored.isEmpty());
        for (const QString& picture : stored)
            QVERIFY2(shown.contains(picture), qPrintable(picture));
    }

    void the_contents_link_to_every_page_data()
    {
        QTest::addColumn<bool>("french");
        QTest::newRow("French") << true;
        QTest::newRow("English") << false;
    }
    void the_contents_link_to_every_page()
    {
        QFETCH(bool, french);
        QSet<QString> linked;
        for (const page_element& link : read_page(french, u"index.html"_s).with_tag(u"a"_s))
            linked << link.attribute(u"href"_s);
        for (const QString& name : page_names(french))
            QVERIFY2(linked.contains(name), qPrintable(name));
    }

    void both_languages_of_a_page_have_the_same_structure_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : page_names(true))
            QTest::addRow("%s", qUtf8Printable(name)) << name;
    }
    void both_languages_of_a_page_have_the_same_structure()
    {
        QFETCH(QString, name);
        const QStringList french = structure_of(read_page(true, name));
        QVERIFY(french.size() > 5);
        QCOMPARE(structure_of(read_page(false, name)).join(u'\n'), french.join(u'\n'));
    }

    void french_marks_follow_a_blank_that_does_not_break_data() { every_page(); }
    void french_marks_follow_a_blank_that_does_not_break()
    {
        QFETCH(bool, french);
        QFETCH(QString, name);
        if (!french)
            return;
        static const QRegularExpression wrong(u"[ \\n\\w)][:;?!»](?=\\s|$)|«[^\\x{a0}]"_s,
                                              QRegularExpression::UseUnicodePropertiesOption);
        // `simplified` has turned every blank into a plain one, so the file itself is searched.
        QString text = text_of_file(read_page(french, name).path);
        text.remove(
            QRegularExpression(u"<p lang=\"en\">.*?</p>"_s, QRegularExpression::DotMatchesEverythingOption));
        text.remove(QRegularExpression(u"<[^>]*>"_s));
        const QRegularExpressionMatch found = wrong.match(text);
        QVERIFY2(!found.hasMatch(), qPrintable(text.mid(found.capturedStart() - 20, 50)));
    }

    void apostrophes_and_quotation_marks_are_typographic_data() { every_page(); }
    void apostrophes_and_quotation_marks_are_typographic()
    {
        QFETCH(bool, french);
        QFETCH(QString, name);
        const QString prose = prose_of(read_page(french, name));
        QVERIFY(!prose.contains(u'\''));
        QVERIFY(!prose.contains(u'"'));
    }
};

QTEST_GUILESS_MAIN(test_guide_pages)
#include "test_guide_pages.moc"
