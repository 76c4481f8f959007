#include "OVFetchFailureText.h"

#include "OVChooserTexts.h"
#include "OVWindowTexts.h"

using namespace OVWindowTexts;
using OVChooserTexts::localized;

// An empty address fails before anything is asked; a silent printer and a
// wrong community look the same under SNMP v1, so both are named.
QString OVFetchFailureText::reason(const QString &address,
                                   const OVPrinterInfoFetch::FailedStep &failed) {
    if (address.trimmed().isEmpty())
        return localized(fetchNoAddress);
    const char *text = fetchNoAnswer;
    if (failed.failure.reason == OVSNMPHelper::Reason::Refused)
        text = fetchRefused;
    else if (failed.failure.reason == OVSNMPHelper::Reason::Unreadable)
        text = fetchUnreadable;
    return localized(text).arg(address, asked(failed.step));
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
