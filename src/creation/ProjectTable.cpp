#include "creation/ProjectTable.h"

#include <QCoreApplication>
#include <QStringDecoder>

#include <algorithm>
#include <array>

using platform::Cause;
using platform::Outcome;
using platform::Result;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ProjectTable)
};

/// Windows-1252 where it is not Latin-1 (0x80 to 0x9F), as in the WHATWG's encoding standard.
constexpr std::array<char16_t, 32> windowsCharacters{
    u'€',      u'\u0081', u'‚', u'ƒ', u'„', u'…', u'†', u'‡', u'ˆ', u'‰', u'Š', u'‹', u'Œ', u'\u008D', u'Ž', u'\u008F',
    u'\u0090', u'‘',      u'’', u'“', u'”', u'•', u'–', u'—', u'˜', u'™', u'š', u'›', u'œ', u'\u009D', u'ž', u'Ÿ'};

QString fromWindows(const QByteArray &bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar &character : text) {
        if (character.unicode() >= 0x80 && character.unicode() < 0xA0)
            character = windowsCharacters[character.unicode() - 0x80U];
    }
    return text;
}

Result<QString> decoded(const QByteArray &bytes)
{
    for (const auto &[mark, encoding] : {std::pair(QByteArray("\xFF\xFE"), QStringConverter::Utf16LE),
                                         {QByteArray("\xFE\xFF"), QStringConverter::Utf16BE}}) {
        QStringDecoder decoder(encoding, QStringConverter::Flag::Stateless);
        if (bytes.startsWith(mark))
            return QString(decoder.decode(bytes.mid(mark.size())));
    }
    if (bytes.contains('\0'))
        return Outcome::failure(Cause::Damaged, {},
                                Text::tr("This is no table of text. Please save the sheet as CSV (UTF-8)."));
    const QByteArray rest = bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3) : bytes;
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString text = utf8.decode(rest);
    return utf8.hasError() ? fromWindows(rest) : text;
}

class Reader
{
public:
    explicit Reader(QString text)
        : m_text(std::move(text))
    {
    }

    Result<ProjectTable> run()
    {
        findSeparator();
        ProjectTable table;
        while (m_at < m_text.size()) {
            ProjectTable::Row row = nextRow();
            if (!m_problem.isNull()) // of this row, or of the titles
                return Outcome::failure(Cause::Damaged, {}, m_problem);
            if (std::all_of(row.cells.begin(), row.cells.end(), [](const QString &cell) { return cell.isEmpty(); }))
                continue;
            if (table.columns.isEmpty()) {
                takeColumns(row.cells, table);
                continue;
            }
            while (row.cells.size() > table.columns.size() && row.cells.constLast().isEmpty())
                row.cells.removeLast(); // spreadsheets write as many as the widest row has
            while (row.cells.size() < table.columns.size())
                row.cells.append(QString());
            table.rows.append(row);
            if (table.rows.size() > mostTableRows)
                return Outcome::failure(
                    Cause::Damaged, {},
                    Text::tr("The table has more than %L1 rows. Please divide it.").arg(mostTableRows));
        }
        if (!m_problem.isNull())
            return Outcome::failure(Cause::Damaged, {}, m_problem);
        if (table.columns.isEmpty() || table.rows.isEmpty())
            return Outcome::failure(
                Cause::Damaged, {},
                Text::tr("The table has no rows. The first one names the parameters, each other one is a project."));
        return table;
    }

private:
    /// The one that the first record has most of; "sep=;" says it.
    void findSeparator()
    {
        if (m_text.startsWith(QLatin1String("sep="), Qt::CaseInsensitive) && m_text.size() > 4) {
            m_separator = m_text[4];
            m_at = m_text.indexOf(u'\n');
            m_at = m_at < 0 ? m_text.size() : m_at + 1;
            m_line = 2;
            return;
        }
        std::array<int, 3> counts{};
        bool isQuoted = false;
        for (const QChar character : m_text) {
            isQuoted = isQuoted != (character == u'"');
            if (!isQuoted && character == u'\n')
                break;
            for (std::size_t i = 0; i < counts.size() && !isQuoted; ++i)
                counts[i] += character == candidates[i] ? 1 : 0;
        }
        const auto most = std::max_element(counts.begin(), counts.end()) - counts.begin();
        m_separator = candidates[static_cast<std::size_t>(most)];
    }

    void takeColumns(const QStringList &cells, ProjectTable &table)
    {
        table.columns = cells;
        while (!table.columns.isEmpty() && table.columns.constLast().isEmpty())
            table.columns.removeLast();
        for (qsizetype i = 0; i < table.columns.size(); ++i) {
            const qsizetype other = table.columns.indexOf(table.columns[i]);
            if (!table.columns[i].isEmpty() && other < i)
                m_problem = Text::tr("Two columns are called “%1”.").arg(table.columns[i]);
        }
    }

    ProjectTable::Row nextRow()
    {
        ProjectTable::Row row{m_line, {}};
        for (;;) {
            row.cells.append(nextCell());
            if (m_at >= m_text.size() || !m_problem.isNull())
                return row;
            const QChar end = m_text[m_at++];
            if (end == m_separator)
                continue;
            if (end == u'\r' && m_at < m_text.size() && m_text[m_at] == u'\n')
                ++m_at;
            ++m_line;
            return row;
        }
    }

    [[nodiscard]] bool isEnd(QChar character) const
    {
        return character == m_separator || character == u'\n' || character == u'\r';
    }

    QString nextCell()
    {
        if (m_at < m_text.size() && m_text[m_at] == u'"')
            return nextQuotedCell();
        const qsizetype start = m_at;
        while (m_at < m_text.size() && !isEnd(m_text[m_at]))
            ++m_at;
        return m_text.mid(start, m_at - start).trimmed();
    }

    QString nextQuotedCell()
    {
        const int opened = m_line;
        QString cell;
        for (++m_at; m_at < m_text.size(); ++m_at) {
            const QChar character = m_text[m_at];
            const bool isDoubled = character == u'"' && m_at + 1 < m_text.size() && m_text[m_at + 1] == u'"';
            if (character == u'"' && !isDoubled) {
                ++m_at;
                while (m_at < m_text.size() && !isEnd(m_text[m_at])) // what some programs put behind
                    cell += m_text[m_at++];
                return cell.trimmed();
            }
            m_line += character == u'\n' ? 1 : 0;
            m_at += isDoubled ? 1 : 0;
            cell += character;
        }
        m_problem = Text::tr("The quotes that are opened in line %1 are never closed.").arg(opened);
        return {};
    }

    static constexpr std::array<QChar, 3> candidates{QChar(u','), QChar(u';'), QChar(u'\t')};
    const QString m_text;
    qsizetype m_at = 0;
    int m_line = 1;
    QChar m_separator;
    QString m_problem;
};

} // namespace

Result<ProjectTable> readTable(const QByteArray &bytes)
{
    const Result<QString> text = decoded(bytes);
    return text ? Reader(*text).run() : Result<ProjectTable>(text.outcome());
}
