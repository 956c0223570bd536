#pragma once

#include "platform/files/FileSystem.h"

#include <QFile>

/** What the programs that measure the window show: a hundredth as many folders as entries, in twenty groups. */
inline void makeLargeTree(const QString &files, int entries)
{
    for (int i = 0; i < entries / 100; ++i) {
        const QString folder = files + QStringLiteral("/Group %1/Folder %2").arg(i % 20).arg(i);
        if (!platform::makeFolders(folder).ok())
            qFatal("Cannot make the tree");
        for (int k = 0; k < 99; ++k) {
            // One in a hundred takes its name from the project.
            QFile file(folder + (k == 50 ? QStringLiteral("/Template %1.mov") : QStringLiteral("/Clip %1.mov")).arg(k));
            if (!file.open(QIODevice::WriteOnly))
                qFatal("Cannot make the tree");
        }
    }
}
