#pragma once

#include <thread>

namespace platform {

/**
 * Reads the system's font settings beside what else a start has to do, from its making on. The toolkit reads them when
 * it first measures a text, which was the largest part of the start (a third of its instructions); it finds them read
 * then. Fontconfig may be used from several threads. Where no thread is to be had the toolkit reads them itself, as
 * before.
 */
class FontLoading
{
public:
    FontLoading();
    ~FontLoading();
    FontLoading(const FontLoading &) = delete;
    FontLoading &operator=(const FontLoading &) = delete;

    /// Before the first text: two readers at once would both read everything.
    void finish();

private:
    std::thread m_thread;
};

} // namespace platform
