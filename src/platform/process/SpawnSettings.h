#pragma once

#include "platform/base/NativePath.h"

#include <QByteArrayList>
#include <csignal>
#include <spawn.h>
#include <vector>

namespace platform {

/** What posix_spawn wants to know, freed at the end. A tool gets the usual signals, whatever this program or its
   toolkit ignores or blocks. */
struct SpawnSettings
{
    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;

    SpawnSettings()
    {
        posix_spawn_file_actions_init(&files);
        posix_spawnattr_init(&attributes);
        sigset_t none;
        sigset_t all;
        sigemptyset(&none);
        sigfillset(&all);
        posix_spawnattr_setsigmask(&attributes, &none);
        posix_spawnattr_setsigdefault(&attributes, &all);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~SpawnSettings()
    {
        posix_spawn_file_actions_destroy(&files);
        posix_spawnattr_destroy(&attributes);
    }
    SpawnSettings(const SpawnSettings &) = delete;
    SpawnSettings &operator=(const SpawnSettings &) = delete;
};

/** The words as posix_spawn takes them, valid as long as they are. */
inline std::vector<char *> pointersTo(QByteArrayList &words)
{
    std::vector<char *> pointers;
    for (QByteArray &word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace platform
