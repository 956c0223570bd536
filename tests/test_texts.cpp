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
