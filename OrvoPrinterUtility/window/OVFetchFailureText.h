#pragma once

#include "OVPrinterInfoFetch.h"

#include <QString>

// Why Get Printer Info failed, in the user's language, for the informative
// text of its alert: what was asked, and what the user can check.
class OVFetchFailureText {
public:
    static QString reason(const QString &address, const OVPrinterInfoFetch::FailedStep &failed,
                          OVSnmpCredentials::Version version);

private:
    static const char *text(OVSNMPHelper::Reason reason, OVSnmpCredentials::Version version);
    static QString asked(OVPrinterInfoFetch::Step step);
};
