#pragma once

#include <QObject>
#include <QStringList>

class QCompleter;
class QLineEdit;

/** Offers titles behind an open brace while a name is typed: "{Cl" becomes "{Client}". Owned by its line. Main thread
   only. */
class TokenCompleter : public QObject
{
    Q_OBJECT

public:
    TokenCompleter(QLineEdit &line, const QStringList &titles);

private:
    [[nodiscard]] qsizetype openBrace() const;
    void follow();
    void take(const QString &title);

    QLineEdit &m_line;
    QCompleter *m_completer;
};
