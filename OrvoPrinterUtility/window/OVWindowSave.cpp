#include "OVWindowSave.h"

#include "OVChooserTexts.h"
#include "OVWindowQueue.h"
#include "OVWindowTexts.h"
#include "OrvoSettingsKeywords.h"
#include "OrvoSettingsRules.h"

#include <utility>

using OVChooserTexts::localized;
using namespace OVWindowTexts;

namespace {

namespace K = OrvoSettingsKeywords;

// The label under which the window shows each setting a verdict may name.
constexpr std::pair<const char *, const char *> fieldLabels[] = {
    {K::SnmpCommunityName, SnmpCommunityName}, {K::SnmpUserName, snmpUserLabel},
    {K::PrinterMacAddress, macAddressLabel},   {K::PrinterIPAddress, ipAddressLabel},
    {K::SharedBoxName, sharedFolderInPrinter}, {K::SelSharedBoxName, registerFolder},
    {K::SelSharedBoxIndex, registerFolder},    {K::PSFormName, formTab},
    {K::BarcodeAreaDefName, barcodeTab},       {K::ColorProfileName, colorProfileTab},
};

} // namespace

QString OVWindowSave::failureText(const Outcome &outcome, const QString &queue,
                                  const QString &server) {
    using Result = OVSettingsSave::Result;
    const OVSettingsSave::Outcome &save = outcome;
    if (outcome.queue == OVQueueSetup::State::Damaged)
        return localized(damagedPpd).arg(queue);
    if (outcome.queue == OVQueueSetup::State::NotSetUp)
        return localized(queueNotSetUp).arg(queue);
    if (outcome.queue == OVQueueSetup::State::QueueUnknown)
        return OVWindowQueue::problemText(OVWindowQueue::Problem::QueueUnknown, queue, server);
    if (outcome.queue == OVQueueSetup::State::ServerUnreachable)
        return OVWindowQueue::problemText(OVWindowQueue::Problem::ServerUnreachable, queue, server);
    if (!outcome.userMaySave)
        return localized(notASaver).arg(queue);
    switch (save.result) {
    case Result::Stored:
        return {};
    case Result::NotSent:
        if (OVSettingsSave::serverLost(save.refusal))
            return localized(saveServerLost);
        return localized(saveRefused).arg(save.refusalText);
    case Result::JobNotCompleted:
        return jobFailureText(save);
    case Result::NotHeld:
        return localized(saveNotHeld).arg(save.jobId).arg(save.differing.join(", "));
    case Result::Replaced:
        return localized(saveReplaced).arg(save.jobId).arg(save.replacedBy);
    case Result::Damaged:
        return localized(saveDamaged).arg(queue);
    case Result::NotReadBack:
        break;
    }
    return localized(saveNotReadBack);
}

QString OVWindowSave::jobFailureText(const OVSettingsSave::Outcome &save) {
    using End = OVUpdateJob::JobEnd;
    switch (save.job.end) {
    case End::ServerLost:
        return localized(saveServerLost);
    case End::Pending:
        return localized(saveJobPending).arg(save.jobId);
    default:
        return localized(saveJobStopped).arg(save.jobId);
    }
}

QString OVWindowSave::verdictText(const OrvoSettingsVerdict &verdict) {
    using Problem = OrvoSettingsVerdict::Problem;
    switch (verdict.problem) {
    case Problem::None:
        return {};
    case Problem::InvalidCharacter:
        return localized(verdict.field == K::SnmpUserName ? snmpUserCharacter : communityCharacter)
            .arg(QString::fromStdString(verdict.detail));
    case Problem::TooLong:
        return localized(verdict.field == K::SnmpCommunityName ? communityTooLong : addressInvalid)
            .arg(verdict.limit);
    case Problem::NotAMacAddress:
        return localized(macAddressIncomplete);
    case Problem::MacAddressMissing:
        return localized(macAddressMissing);
    case Problem::NotAnAddress:
        return localized(addressInvalid).arg(OrvoSettingsRules::addressLimit);
    case Problem::TooManyEntries:
        return localized(listTooLong).arg(fieldLabel(verdict.field)).arg(verdict.limit);
    case Problem::NameTooLong:
        return localized(nameTooLong).arg(fieldLabel(verdict.field)).arg(verdict.limit);
    case Problem::JobTooLarge:
        return localized(settingsTooLong);
    case Problem::IndexOutOfRange:
    case Problem::Malformed:
        break;
    }
    return localized(settingInvalid).arg(fieldLabel(verdict.field));
}

QString OVWindowSave::listsToShortenText(const OrvoSettingsVerdict &verdict) {
    QStringList names;
    for (std::string_view list : verdict.listsToShorten)
        names << "\u2022 " + fieldLabel(list);
    return names.isEmpty() ? QString() : names.join('\n');
}

QString OVWindowSave::fieldLabel(std::string_view field) {
    for (const auto &[keyword, label] : fieldLabels) {
        if (field == keyword)
            return OVChooserTexts::withoutMnemonic(localized(label));
    }
    return QString::fromUtf8(field.data(), qsizetype(field.size()));
}
