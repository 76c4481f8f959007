#include "OVCommandLine.h"

#include <QCoreApplication>

int main(int argc, char *argv[]) {
    QCoreApplication application(argc, argv);
    return OVCommandLine::run(application.arguments());
}
