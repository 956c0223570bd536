#pragma once

#include <QByteArray>
#include <QList>
#include <functional>

/**
 * Bytes as they may come from outside, made from good ones by changing, cutting, doubling and crossing them. What
 * reaches a branch that nothing has reached before is kept and changed further: the sources in question are compiled so
 * that they say which branches they take.
 */
class Fuzzer
{
public:
    /** The words are put in now and then, as they are. */
    Fuzzer(QList<QByteArray> seeds, QList<QByteArray> words);

    /** How often the function was called in the time that TESSARO_FUZZ_SECONDS says, two seconds without it. The input
       that is under way lies in the file meanwhile, so that it is there after a crash. */
    int run(const QByteArray &file, const std::function<void(const QByteArray &)> &takes);

    [[nodiscard]] qsizetype kept() const { return m_corpus.size(); }

private:
    [[nodiscard]] QByteArray changed(QByteArray input);
    [[nodiscard]] quint32 below(qsizetype bound);

    QList<QByteArray> m_corpus;
    QList<QByteArray> m_words;
};
