#include "OVFetchFailureText.h"

#include "OVChooserTexts.h"
#include "OVWindowTexts.h"

using namespace OVWindowTexts;
using OVChooserTexts::localized;

// An empty address fails before anything is asked; a silent printer and a
// wrong community look the same under SNMP v1, so both are named. SNMPv3
// names what it refused, except a wrong privacy passphrase: the printer
// cannot read what that encrypted, and stays silent.
QString OVFetchFailureText::reason(const QString &address,
                                   const OVPrinterInfoFetch::FailedStep &failed,
                                   OVSnmpCredentials::Version version) {
    if (address.trimmed().isEmpty())
        return localized(fetchNoAddress);
    const QString why = localized(text(failed.failure.reason, version));
    // A name that does not resolve was never asked anything.
    if (failed.failure.reason == OVSNMPHelper::Reason::UnknownHost)
        return why.arg(address);
    return why.arg(address, asked(failed.step));
}

const char *OVFetchFailureText::text(OVSNMPHelper::Reason reason,
                                     OVSnmpCredentials::Version version) {
    using Reason = OVSNMPHelper::Reason;
    switch (reason) {
    case Reason::NoAnswer:
        break;
    case Reason::Refused:
        return fetchRefused;
    case Reason::Unreadable:
        return fetchUnreadable;
    case Reason::UnknownUser:
        return fetchUnknownUser;
    case Reason::WrongPassphrase:
        return fetchWrongPassphrase;
    case Reason::UnsupportedSecurityLevel:
        return fetchWrongLevel;
    case Reason::UnknownHost:
        return fetchUnknownHost;
    }
    return version == OVSnmpCredentials::Version::V3 ? fetchNoAnswerV3 : fetchNoAnswer;
}

QString OVFetchFailureText::asked(OVPrinterInfoFetch::Step step) {
    using Step = OVPrinterInfoFetch::Step;
    switch (step) {
    case Step::MacAddress:
        return localized(stepMacAddress);
    case Step::Folders:
        return localized(stepFolders);
    case Step::Forms:
        return localized(stepForms);
    case Step::BarcodeAreas:
        return localized(stepBarcodeAreas);
    case Step::ColorProfiles:
        return localized(stepColorProfiles);
    }
    return {};
}
