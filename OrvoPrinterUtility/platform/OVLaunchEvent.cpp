#include "OVLaunchEvent.h"

#include "OVSystemLog.h"

#include <syslog.h>

QString OVLaunchEvent::printerIDFromArguments(const QStringList &arguments) {
    if (arguments.isEmpty())
        return QString("");
    QString queue;
    if (!findPrinterArgument(arguments, queue))
        return QString(defaultPrinterID);
    OVSystemLog::write(LOG_NOTICE, QString(logHeading));
    OVSystemLog::write(LOG_NOTICE, queue);
    return queue;
}

// A flag without its value counts as no 'prdt' parameter.
bool OVLaunchEvent::findPrinterArgument(const QStringList &arguments, QString &queue) {
    static const QString longPrefix("--printer=");
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        if (argument.startsWith(longPrefix)) {
            queue = argument.mid(longPrefix.size());
            return true;
        }
        if ((argument == "--printer" || argument == "-p") && i + 1 < arguments.size()) {
            queue = arguments[i + 1];
            return true;
        }
    }
    return false;
}
