#include <QtTest>

#include "platform/hunspell_speller.h"
#include "support/columns.h"
#include "support/disk.h"

using namespace Qt::StringLiterals;
using platform::HunspellSpeller;

class HunspellSpellerTest final : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    QStringList m_dictionaries;

    void putDictionary(const QString& name, const QByteArray& rules, const QByteArray& words) const
    {
        support::put(m_folder.filePath(u"dicts/"_s + name + u".aff"_s), rules);
        support::put(m_folder.filePath(u"dicts/"_s + name + u".dic"_s), words);
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_dictionaries << m_folder.filePath(u"dicts"_s);
        putDictionary(u"de_AT"_s, "SET ISO8859-1\nTRY aeiou\n",
            "2\nsch\xf6n\nStra\xdf"
            "e\n");
        putDictionary(u"en_GB"_s, "SET UTF-8\nTRY aeiou\n", "3\ncolour\ndon't\nnaïve\n");
        putDictionary(u"ru_RU"_s, "SET microsoft-cp1251\n", "1\n\xec\xe8\xf0\n");
        support::put(m_folder.filePath(u"dicts/hyph_xx.dic"_s));
    }

    void languageOfThePerson_data()
    {
        support::columns<QString, QString>("language", "dictionary");
        QTest::newRow("the very one") << u"en_GB"_s << u"en_GB"_s;
        QTest::newRow("of another country") << u"de_DE"_s << u"de_AT"_s;
        QTest::newRow("none of the language") << u"fr_FR"_s << u""_s;
        QTest::newRow("of no language") << u"C"_s << u"en_GB"_s;
    }

    void languageOfThePerson()
    {
        QFETCH(QString, language);
        const QTemporaryDir own;
        HunspellSpeller speller(own.path(), m_dictionaries, language);
        QCOMPARE(speller.dictionaries(), QStringList({u"de_AT"_s, u"en_GB"_s, u"ru_RU"_s}));
        QTEST(speller.dictionary(), "dictionary");
        QCOMPARE(speller.isKnown(u"qqq"_s), speller.dictionary().isEmpty());
    }

    void wordsInTheSetOfTheirDictionary_data()
    {
        support::columns<QString, QString, bool>("dictionary", "word", "known");
        QTest::newRow("eight bits") << u"de_AT"_s << u"schön"_s << true;
        QTest::newRow("beginning of a sentence") << u"de_AT"_s << u"Schön"_s << true;
        QTest::newRow("letters that the set does not have") << u"de_AT"_s << u"мир"_s << false;
        QTest::newRow("set with a name of its own") << u"ru_RU"_s << u"мир"_s << true;
        QTest::newRow("round apostrophe") << u"en_GB"_s << u"don’t"_s << true;
        QTest::newRow("letters of two bytes") << u"en_GB"_s << u"naïve"_s << true;
        QTest::newRow("wrong") << u"en_GB"_s << u"color"_s << false;
        QTest::newRow("no word at all") << u"en_GB"_s << QString(5000, u'x') << true;
    }

    void wordsInTheSetOfTheirDictionary()
    {
        QFETCH(QString, dictionary);
        QFETCH(QString, word);
        const QTemporaryDir own;
        HunspellSpeller speller(own.path(), m_dictionaries, u"fr_FR"_s);
        QVERIFY(speller.setDictionary(dictionary));
        QTEST(speller.isKnown(word), "known");
        QCOMPARE(HunspellSpeller(own.path(), m_dictionaries, u"fr_FR"_s).dictionary(), dictionary);
    }

    void ownWordsLast()
    {
        const QTemporaryDir own;
        HunspellSpeller speller(own.path(), m_dictionaries, u"en_GB"_s);
        QVERIFY(!speller.isKnown(u"Žofie"_s));
        QCOMPARE(speller.suggestions(u"colur"_s).value(0), u"colour"_s);
        QVERIFY(speller.addWord(u"Žofie"_s) && speller.addWord(u"o’clock"_s));
        QVERIFY(speller.isKnown(u"Žofie"_s));
        HunspellSpeller next(own.path(), m_dictionaries, u"de_AT"_s);
        QCOMPARE(next.ownWords(), QStringList({u"o'clock"_s, u"Žofie"_s}));
        QVERIFY(next.isKnown(u"Žofie"_s) && next.isKnown(u"o’clock"_s));
        {
            const support::FullDisk full(4);
            QVERIFY(!next.addWord(u"third"_s));
            QVERIFY(!next.removeWord(u"Žofie"_s));
        }
        QVERIFY(!next.isKnown(u"third"_s));
        QVERIFY(next.removeWord(u"Žofie"_s) && !next.isKnown(u"Žofie"_s));
        QCOMPARE(
            HunspellSpeller(own.path(), m_dictionaries, u"de_AT"_s).ownWords(), QStringList{u"o'clock"_s});
    }
};

QTEST_GUILESS_MAIN(HunspellSpellerTest)
#include "hunspell_speller_test.moc"
