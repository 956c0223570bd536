#pragma once

#include <QFunctionPointer>
#include <QString>

class QLibrary;

namespace platform {

/**
 * A part of the program in a library of its own beside it, loaded when it is first needed: what it brings along (the
 * toolkit, the message bus, archives) costs a command nothing. A module is linked with everything that it uses and
 * shares nothing with the program but what passes through its doors. Never unloaded. Any thread.
 */
class Module
{
public:
    /** By its name in Contents/PlugIns of the application's bundle: "window" is libtessaro_window.so. */
    explicit Module(const char *name);

    /** A function of C linkage; null where the module or the function is missing, and whyNot() says which. */
    [[nodiscard]] QFunctionPointer door(const char *name);
    [[nodiscard]] QString path() const;
    [[nodiscard]] QString whyNot() const;

private:
    QLibrary *m_library; ///< stays: code of it may run until the program ends
};

} // namespace platform
