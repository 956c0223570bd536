#pragma once

#include "app/CommandLine.h"
#include "parameters/FilenameParameter.h"
#include "support/Settings.h"

/** `Tessaro settings ...` and the changing forms of `Tessaro parameters ...`: what the preferences do, without a
 * window. */
class SettingsCommand
{
public:
    explicit SettingsCommand(const CommandRequest &request)
        : m_request(request)
    {
    }

    /** Returns the exit status. */
    [[nodiscard]] int run();

    /** One sentence when the words make no sense; null when they do. Pure. */
    [[nodiscard]] static QString problemOf(const CommandRequest &request);

private:
    [[nodiscard]] int list();
    [[nodiscard]] int get();
    [[nodiscard]] int set();
    [[nodiscard]] int unset();
    [[nodiscard]] int add();
    [[nodiscard]] int remove();
    [[nodiscard]] int move();
    [[nodiscard]] int change();
    [[nodiscard]] int exportList();
    [[nodiscard]] int importList();

    [[nodiscard]] QString argument(int at) const { return m_request.arguments.value(at + 1); }
    /** The setting of the key; says so when there is none. */
    [[nodiscard]] const settings::Known *known(const QString &key) const;
    /** The row of the parameter; says so when there is none, or more than one. */
    [[nodiscard]] std::optional<int> rowOf(const FilenameParameters &list, const QString &title) const;
    int refuse(int status, const QString &problem) const;
    [[nodiscard]] int store(const FilenameParameters &list) const;

    const CommandRequest &m_request;
};
