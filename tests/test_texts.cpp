// Every text that a user sees can be translated: what the sources mark, the translator's tool finds.
#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

namespace {

const QString sources = QStringLiteral(TESSARO_SOURCE_DIR "/src");

/// The literals of one argument, put together as the compiler does; in the form in which they stand in the source.
QString joinedLiterals(const QString &argument)
{
    static const QRegularExpression literal("\"((?:\\\\.|[^\"\\\\])*)\"");
    QString text;
    for (const auto &match : literal.globalMatch(argument))
        text += match.captured(1);
    return text.replace("\\n", "\n").replace("\\\"", "\"");
}

/// What stands in tr() and in the marks of tables.
QStringList markedIn(QString source)
{
    static const QRegularExpression comments("(?<!:)//[^\n]*");
    source.remove(comments);
    static const QRegularExpression mark("(?:\\btr\\(|\\bQT_TRANSLATE_NOOP\\(\\s*\"\\w+\",)\\s*"
                                         "((?:\"(?:\\\\.|[^\"\\\\])*\"\\s*)+)");
    QStringList texts;
    for (const auto &match : mark.globalMatch(source))
        texts.append(joinedLiterals(match.captured(1)));
    return texts;
}

/// A text with its forms in another language.
struct Translated
{
    QString source;
    QStringList forms;
    bool isFinished = false;
};

/// By the context and the text. The forms of an unfinished one may be empty.
QMap<QString, Translated> translationsIn(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    QMap<QString, Translated> texts;
    QXmlStreamReader reader(&file);
    QString context;
    Translated text;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::EndElement && reader.name() == u"message")
            texts.insert(context + u'|' + text.source, text);
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == u"message")
            text = {};
        else if (reader.name() == u"name")
            context = reader.readElementText();
        else if (reader.name() == u"source")
            text.source = reader.readElementText();
        else if (reader.name() == u"numerusform")
            text.forms.append(reader.readElementText());
        else if (reader.name() == u"translation") {
            text.isFinished = !reader.attributes().hasAttribute("type");
            QString whole;
            while (!(reader.readNext() == QXmlStreamReader::EndElement && reader.name() == u"translation")) {
                if (reader.isCharacters())
                    whole += reader.text();
                else if (reader.isStartElement())
                    text.forms.append(reader.readElementText());
            }
            if (text.forms.isEmpty())
                text.forms.append(whole);
        }
    }
    return texts;
}

/// What a translation must have in the same number: places for values, a key to reach it by, the dots that say that a
/// question follows.
QString whatDiffers(const Translated &text)
{
    static const QRegularExpression place("%L?[0-9]|%@");
    static const QRegularExpression key("(?<!&)&(?=[^&\\s])");
    const auto found = [](const QRegularExpression &what, const QString &in) {
        QStringList all;
        for (const auto &match : what.globalMatch(in))
            all.append(match.captured());
        all.sort();
        return all;
    };
    for (const QString &form : text.forms) {
        if (form.isEmpty())
            return "is empty";
        if (found(place, form) != found(place, text.source))
            return "has other places for values";
        if (found(key, form).size() != found(key, text.source).size())
            return "has another number of keys";
        if (form.endsWith(u'…') != text.source.endsWith(u'…') || form.endsWith(u':') != text.source.endsWith(u':') ||
            form.startsWith(u' ') != text.source.startsWith(u' ') || form.endsWith(u' ') != text.source.endsWith(u' '))
            return "begins or ends otherwise";
        if (form.count(u'\n') != text.source.count(u'\n'))
            return "has other lines";
    }
    return {};
}

struct Found
{
    QStringList texts;
    QByteArray complaints;
};

Found byTheTranslatorsTool(const QStringList &files, const QString &target)
{
    QProcess tool;
    tool.start(QLibraryInfo::path(QLibraryInfo::BinariesPath) + "/lupdate",
               QStringList{"-silent", "-no-obsolete", "-I", sources} + files + QStringList{"-ts", target});
    Found found;
    if (!tool.waitForFinished(120000) || tool.exitCode() != 0)
        qFatal("lupdate (package qt6-l10n-tools) is needed: %s", tool.readAllStandardError().constData());
    for (const QByteArray &line : tool.readAllStandardError().split('\n')) {
        // The tool does not always find a header that it has read before; the text and its context are right all the
        // same.
        if (!line.isEmpty() && !line.contains("Qualifying with unknown namespace"))
            found.complaints += line + '\n';
    }
    QFile file(target);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("lupdate wrote nothing");
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"source")
            found.texts.append(reader.readElementText());
    }
    return found;
}

} // namespace

class TestTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noneIsLost()
    {
        const QTemporaryDir work;
        const Found found = byTheTranslatorsTool({sources}, work.filePath("all.ts"));
        QVERIFY2(found.complaints.isEmpty(), found.complaints.constData()); // a tr() without a context, for one
        const QSet<QString> known(found.texts.begin(), found.texts.end());
        QStringList lost;
        int marked = 0;
        QDirIterator files(sources, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            for (const QString &text : markedIn(QString::fromUtf8(file.readAll()))) {
                ++marked;
                if (!known.contains(text))
                    lost.append(file.fileName() + ": " + text);
            }
        }
        qInfo("%d texts marked, %d different ones found", marked, static_cast<int>(found.texts.size()));
        QVERIFY2(marked > 300, "the marks were not found");
        QVERIFY2(lost.isEmpty(), qPrintable(lost.join('\n')));
    }

    void translated_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"de", "fr", "es"})
            QTest::newRow(language) << language;
    }

    /// Every text of the sources and of the interface, and nothing that is not there any more.
    void translated()
    {
        QFETCH(QString, language);
        const QTemporaryDir work;
        const QString now = work.filePath("now.ts");
        static_cast<void>(byTheTranslatorsTool({sources, TESSARO_SOURCE_DIR "/resources/interface"}, now));
        const auto wanted = translationsIn(now);
        const auto given =
            translationsIn(TESSARO_SOURCE_DIR "/resources/translations/tessaro_" + language + QStringLiteral(".ts"));
        QStringList wrong;
        for (auto text = wanted.cbegin(); text != wanted.cend(); ++text) {
            const auto own = given.constFind(text.key());
            if (own == given.cend() || !own->isFinished)
                wrong.append(text.key() + ": is not translated");
            else if (const QString why = whatDiffers(*own); !why.isEmpty())
                wrong.append(text.key() + ": " + why + ": " + own->forms.join(" / "));
        }
        for (auto text = given.cbegin(); text != given.cend(); ++text) {
            if (!wanted.contains(text.key()))
                wrong.append(text.key() + ": is translated, and not there any more (scripts/translations.sh)");
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
        QVERIFY(wanted.size() > 800);
    }

    void seesWhatIsWronglyTranslated()
    {
        QVERIFY(whatDiffers({"&Open %1…", {"%1 ö&ffnen…"}, true}).isEmpty());
        for (const char *wrong : {"%2 ö&ffnen…", "%1 öffnen…", "%1 ö&ffnen", " %1 ö&ffnen…", "", "%1\nö&ffnen…"})
            QVERIFY2(!whatDiffers({"&Open %1…", {QString::fromUtf8(wrong)}, true}).isEmpty(), wrong);
    }

    /// The test itself must be able to fail.
    void seesWhatIsLost()
    {
        QCOMPARE(markedIn("say(tr(\"a \"\n   \"b\")); // tr(\"c\")"), QStringList{"a b"});
        QCOMPARE(markedIn("QT_TRANSLATE_NOOP(\"Context\", \"d\")"), QStringList{"d"});
        const QTemporaryDir work;
        QFile file(work.filePath("x.cpp"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("#define MARK(x) QT_TRANSLATE_NOOP(\"C\", x)\nconst char *lost = MARK(\"lost\");\n");
        file.close();
        QVERIFY(!byTheTranslatorsTool({file.fileName()}, work.filePath("x.ts")).texts.contains("lost"));
    }
};

QTEST_GUILESS_MAIN(TestTexts)
#include "test_texts.moc"
