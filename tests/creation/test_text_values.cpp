// Values in the contents of files: every other byte stays.
#include "creation/TextValues.h"

#include <QTest>

namespace {

tokens::Values someValues()
{
    tokens::Values values;
    values.add("Client", {"A <\"B\"> & C"});
    values.add("Number", {"41"});
    values.add("Cell", {"x,y"});
    values.add("Lines", {"1\n2"});
    values.add("Euro", {"€"});
    values.add("Umlaut", {"ü"});
    values.add("Bell", {"\a"});
    values.add("End", {"]]>"});
    return values;
}

QByteArray utf16(const QString &text, const char *mark)
{
    QByteArray bytes = mark;
    for (const QChar character : text) {
        const char16_t code = character.unicode();
        const char low = static_cast<char>(code & 0xFF);
        const char high = static_cast<char>(code >> 8);
        bytes += mark[0] == '\xFF' ? QByteArray{} + low + high : QByteArray{} + high + low;
    }
    return bytes;
}

} // namespace

class TestTextValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filled_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QByteArray>("expected"); // or the begin of what is said, behind a "!"
        const auto row = [](const char *name, const QByteArray &contents, const QByteArray &expected) {
            QTest::addRow("%s %s", name, contents.left(30).toPercentEncoding(" {}").constData())
                << QString(name) << contents << expected;
        };
        row("a.txt", "", "");
        row("a.txt", "{Client}\r\n{Number:000}\n{other} {", "A <\"B\"> & C\r\n041\n{other} {");
        row("a.txt", "\xEF\xBB\xBF{Number}",
            "\xEF\xBB\xBF"
            "41");
        row("a.txt", "caf\xE9 {Number}", "caf\xE9 41"); // no UTF-8
        row("a.txt", "caf\xE9 {Euro}", "!{Euro} has characters");
        row("a.txt", utf16("{Number} é\r\n", "\xFF\xFE"), utf16("41 é\r\n", "\xFF\xFE"));
        row("a.txt", utf16("{Euro}", "\xFE\xFF"), utf16("€", "\xFE\xFF"));
        row("a.txt", QByteArray("\xFF\xFE{\0x", 5), "!This is no text"); // half a character
        row("a.bin", QByteArray("\0{Number}", 9), "!This is no text");
        row("a.txt", "{{Number}} ${Number} {Number }", "{41} $41 41");
        row("a.txt", "{Client:000}", "!“Client” is no number");
        row("a.txt", "{Nobody|upper}", "!There is no parameter “Nobody”");
        row("a.txt", "{Nobody|x} {Num\nber}", "{Nobody|x} {Num\nber}");
        row("a.svg", "<a b=\"{Client}\"/>", "<a b=\"A &lt;&quot;B&quot;&gt; &amp; C\"/>");
        row("a.xml", "{Bell}", "!{Bell} has a character that XML cannot hold");
        row("a.xml", "{Client}<![CDATA[{Client}{End}]]>{Number}<![CDATA[{Number}]]>{Client}",
            "A &lt;&quot;B&quot;&gt; &amp; C<![CDATA[A <\"B\"> & C]]]]><![CDATA[>]]>41<![CDATA[41]]>A "
            "&lt;&quot;B&quot;&gt; &amp; C");
        row("a.xml", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>{Euro}", "!{Euro} has characters");
        row("a.xml", "<?xml version='1.0' encoding='windows-1252'?>\xE9{Number}",
            "<?xml version='1.0' encoding='windows-1252'?>\xE9"
            "41");
        row("a.html", "<meta charset=iso-8859-15>{Umlaut}", "!{Umlaut} has characters");
        row("a.xml", "<?xml encoding=\"iso-8859-1\"?>{Umlaut}", "<?xml encoding=\"iso-8859-1\"?>\xFC");
        row("a.json", "{\"a\": {\"b\": \"{Client}{Lines}\"}, \"n\": {Number}}",
            "{\"a\": {\"b\": \"A <\\\"B\\\"> & C1\\u000a2\"}, \"n\": 41}");
        row("a.csv", "n,{Cell},\"{Client}\"\r\n{Number},{Lines},plain {Number}",
            "n,\"x,y\",\"A <\"\"B\"\"> & C\"\r\n41,\"1\n2\",plain 41");
        row("a.csv", "n;{Cell}\n\"a \"\"{Number}\"\" ; {Cell}\";{Client}",
            "n;x,y\n\"a \"\"41\"\" ; x,y\";\"A <\"\"B\"\"> & C\"");
        row("a.tsv", "a\t{Cell}\n", "a\tx,y\n");
        row("a.csv", "\"open {Number}", "\"open 41");
    }
    void filled()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, contents);
        QFETCH(QByteArray, expected);
        const auto result = textvalues::filled(contents, name, someValues());
        if (expected.startsWith('!'))
            QVERIFY2(!result && result.outcome().sentence().startsWith(QString::fromUtf8(expected.mid(1))),
                     qPrintable(result.outcome().sentence()));
        else
            QCOMPARE(result.valueOr(result.outcome().sentence().toUtf8()), expected);
    }

    /// Many tokens and many braces are no matter: nothing looks back to the beginning.
    void largeTexts()
    {
        QByteArray contents;
        while (contents.size() < 4 * 1024 * 1024)
            contents += "<![CDATA[ { {x} {Number} ]]> {{{{{ {Number}\n";
        const auto result = textvalues::filled(contents, "a.xml", someValues());
        QVERIFY(result);
        QCOMPARE(result->count("41"), contents.count("{Number}"));
    }
};

QTEST_APPLESS_MAIN(TestTextValues)
#include "test_text_values.moc"
