#pragma once

#include <QString>
#include <QStringList>

// The printer queue the utility was opened for, named on the command line:
//   no argument at all            -> opened for no queue: the ID stays ""
//   arguments without --printer   -> opened without naming one: "Default-TestID"
//   --printer QUEUE / -p QUEUE    -> the queue name, logged to the system log
class OVLaunchEvent {
public:
    static constexpr const char *defaultPrinterID = "Default-TestID";
    static constexpr const char *logHeading = "Printer ID";

    // `arguments` excludes the program name.
    static QString printerIDFromArguments(const QStringList &arguments);

private:
    static bool findPrinterArgument(const QStringList &arguments, QString &queue);
};
