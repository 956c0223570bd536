#include "support/VTException.h"

#include "platform/base/Console.h"
#include "support/VTLog.h"

bool VTException::didTimeout(const Caught &exception)
{
    return exception.name == QLatin1String("NSPortTimeoutException");
}

QString VTException::logException(const Caught &exception, const char *methodName)
{
    const QString text =
        platform::formatString("Exception in %s. %@ - %@.", methodName, exception.name, exception.reason);
    VTLog::appendLog(text);
    platform::printToConsole(text);
    return text;
}
