#include "harness/Fuzzer.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <array>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr std::size_t mapSize = 1 << 16;
constexpr qsizetype longestInput = 64 * 1024;
std::array<std::uint8_t, mapSize> everTaken{};
bool isNew = false;

/// What is under way, in a file that a crash leaves as it is.
class InputFile
{
public:
    explicit InputFile(const QByteArray &path)
        : m_file(open(path.constData(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0600))
    {
        if (ftruncate(m_file, longestInput + 16) == 0)
            m_bytes =
                static_cast<char *>(mmap(nullptr, longestInput + 16, PROT_READ | PROT_WRITE, MAP_SHARED, m_file, 0));
    }
    ~InputFile()
    {
        munmap(m_bytes, longestInput + 16);
        close(m_file);
    }
    InputFile(const InputFile &) = delete;
    InputFile &operator=(const InputFile &) = delete;
    void hold(const QByteArray &input)
    {
        std::snprintf(m_bytes, 16, "%lld", static_cast<long long>(input.size()));
        std::copy(input.begin(), input.end(), m_bytes + 16);
    }

private:
    int m_file;
    char *m_bytes = nullptr;
};

} // namespace

/// Called at every branch of the sources that are compiled for it.
extern "C" void __sanitizer_cov_trace_pc()
{
    static thread_local std::uintptr_t before = 0;
    const auto here = reinterpret_cast<std::uintptr_t>(__builtin_return_address(0));
    const std::size_t edge = (here ^ (before >> 1) ^ (here >> 16)) % mapSize;
    before = here;
    if (everTaken[edge] == 0) {
        everTaken[edge] = 1;
        isNew = true;
    }
}

Fuzzer::Fuzzer(QList<QByteArray> seeds, QList<QByteArray> words)
    : m_corpus(std::move(seeds))
    , m_words(std::move(words))
{
    everTaken.fill(0);
}

quint32 Fuzzer::below(qsizetype bound)
{
    return QRandomGenerator::global()->bounded(static_cast<quint32>(qMax<qsizetype>(1, bound)));
}

QByteArray Fuzzer::changed(QByteArray input)
{
    for (quint32 changes = 1 + below(4); changes > 0; --changes) {
        const auto at = static_cast<qsizetype>(below(input.size() + 1));
        const auto length = static_cast<qsizetype>(below(qMin<qsizetype>(32, input.size() - at) + 1));
        switch (below(8)) {
        case 0:
            if (at < input.size())
                input[at] = static_cast<char>(below(256));
            break;
        case 1:
            if (at < input.size())
                input[at] = static_cast<char>(input[at] ^ (1 << below(8)));
            break;
        case 2:
            input.remove(at, length);
            break;
        case 3:
            input.insert(at, input.mid(at, length));
            break;
        case 4:
            input.insert(at, m_words.value(below(m_words.size())));
            break;
        case 5: {
            const QByteArray other = m_corpus[below(m_corpus.size())];
            input.replace(at, length, other.mid(below(other.size()), below(64)));
            break;
        }
        case 6:
            input.truncate(at);
            break;
        default:
            input.insert(at, QByteArray::number(QRandomGenerator::global()->generate64() >> below(64)));
        }
    }
    input.truncate(longestInput);
    return input;
}

int Fuzzer::run(const QByteArray &file, const std::function<void(const QByteArray &)> &takes)
{
    const int wanted = qEnvironmentVariableIntValue("TESSARO_FUZZ_SECONDS");
    const qint64 milliseconds = qint64{1000} * (wanted > 0 ? wanted : 2);
    InputFile underWay(file);
    QElapsedTimer timer;
    timer.start();
    int calls = 0;
    for (const QByteArray &seed : QList<QByteArray>(m_corpus)) {
        underWay.hold(seed);
        takes(seed);
    }
    for (; !timer.hasExpired(milliseconds); ++calls) {
        const QByteArray input = changed(m_corpus[below(m_corpus.size())]);
        underWay.hold(input);
        isNew = false;
        takes(input);
        if (isNew)
            m_corpus.append(input);
    }
    return calls;
}
