#pragma once

#include <QString>

/**
 * The windowless platform says "This plugin does not support ..." whenever a window is raised or its size is limited.
 * These lines are kept back, and nothing else, so that every warning in a run means something. Once, in initTestCase().
 */
inline void keepBackOffscreenMessages()
{
    static QtMessageHandler previous = nullptr;
    previous = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context, const QString &text) {
        if (!text.startsWith(QLatin1String("This plugin does not support ")))
            previous(type, context, text);
    });
}
