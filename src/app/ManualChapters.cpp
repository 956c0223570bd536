#include "app/ManualChapters.h"

#include <QRegularExpression>

QList<ManualChapter> chaptersOf(const QString &manual)
{
    static const QRegularExpression mark(QStringLiteral("^<!-- chapter: (\\S+) -->\n"),
                                         QRegularExpression::MultilineOption);
    static const QRegularExpression heading(QStringLiteral("^#+ (.+)$"), QRegularExpression::MultilineOption);
    QList<ManualChapter> chapters;
    QString key = QLatin1String("");
    qsizetype begin = 0;
    const auto close = [&](qsizetype end) {
        const QString text = manual.mid(begin, end - begin).trimmed();
        if (!text.isEmpty())
            chapters.append({key, heading.match(text).captured(1), text + u'\n'});
    };
    for (const auto &match : mark.globalMatch(manual)) {
        close(match.capturedStart());
        key = match.captured(1);
        begin = match.capturedEnd();
    }
    close(manual.size());
    return chapters;
}
