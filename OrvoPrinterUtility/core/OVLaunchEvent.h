#pragma once

#include <QString>
#include <QStringList>

// The printer queue the utility was opened for. The printing preferences on
// macOS pass it in the launch event's 'prdt' parameter; here the command line
// stands in for that event:
//   no argument at all            -> no launch event: the ID stays ""
//   arguments without --printer   -> an event without 'prdt': "Default-TestID"
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
