#pragma once

#include "harness/TemporaryHome.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

/** A file of one's own that whoever opens it has to wait for: as slow a copy as a test can wish for. */
class HeldFile
{
public:
    explicit HeldFile(const QString &path)
    {
        std::signal(SIGIO, SIG_IGN);
        writeFile(path, "held");
        m_file = open(path.toUtf8(), O_RDWR | O_CLOEXEC);
        isHeld = fcntl(m_file, F_SETLEASE, F_WRLCK) == 0;
    }
    ~HeldFile() { close(m_file); }
    void letGo() const { fcntl(m_file, F_SETLEASE, F_UNLCK); }
    bool isHeld;

private:
    int m_file;
};
