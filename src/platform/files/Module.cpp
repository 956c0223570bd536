#include "platform/files/Module.h"

#include "platform/base/NativePath.h"
#include "platform/files/ApplicationBundle.h"

#include <QLibrary>

namespace platform {

Module::Module(const char *name)
    : m_library(new QLibrary(joined(ApplicationBundle::main().path(),
                                    QStringLiteral("Contents/PlugIns/libtessaro_%1.so").arg(QLatin1String(name)))))
{
}

QFunctionPointer Module::door(const char *name)
{
    return m_library->resolve(name);
}

QString Module::path() const
{
    return m_library->fileName();
}

QString Module::whyNot() const
{
    return m_library->errorString();
}

} // namespace platform
