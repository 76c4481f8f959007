#include "OVUpdateJob.h"

#include "OVCupsConnection.h"
#include "OrvoSettingsKeywords.h"

#include <QStringList>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace K = OrvoSettingsKeywords;

namespace {

constexpr int tempFileNameSize = 1024;
constexpr char documentFormatOption[] = "document-format";
// An update job ends about 0.1 s after it was sent to a local queue.
constexpr unsigned long jobPollMs = 50;
// cupsd puts a backslash before each of these when it builds the filter
// argument from the job's options.
constexpr char escapedCharacters[] = " \t\n\\'\"";

QByteArray flag(bool on) {
    return on ? "1" : "0";
}

QByteArray encodeBase64(const QString &text) {
    char encoded[K::bufferSize] = {};
    const QByteArray utf8 = text.toUtf8();
    // More input than the buffer holds would only be cut off.
    const auto length = int(std::min<qsizetype>(utf8.size(), K::bufferSize));
    httpEncode64_2(encoded, sizeof encoded, utf8.constData(), length);
    return QByteArray(encoded);
}

QByteArray indexedName(const char *keyword, int index) {
    return QByteArray(keyword) + QByteArray::number(index);
}

QByteArray partName(const QByteArray &keyword, int part) {
    char suffix[32];
    std::snprintf(suffix, sizeof suffix, K::partSuffixFormat, part);
    return keyword + suffix;
}

void appendMultiPart(OVUpdateJob::OptionList &list, const QByteArray &keyword,
                     const QString &value) {
    if (value.isNull())
        return;
    const QByteArray encoded = encodeBase64(value);
    for (int part = 1; part <= K::partCount; ++part) {
        const qsizetype offset = qsizetype(part - 1) * K::partLength;
        list.emplaceBack(partName(keyword, part), encoded.mid(offset, K::partLength));
    }
}

// Every slot up to the limit is written, so entries of a longer earlier list
// are overwritten with empty values. A null entry counts as an empty name.
void appendMultiPartList(OVUpdateJob::OptionList &list, const char *keyword,
                         const QStringList &names, int limit) {
    for (int i = 0; i < limit; ++i) {
        const QString name = i < names.size() ? names[i] : QString();
        appendMultiPart(list, indexedName(keyword, i), name.isNull() ? QString("") : name);
    }
}

void appendIndexList(OVUpdateJob::OptionList &list, const QList<qint32> &indices) {
    for (int i = 0; i < K::listLimit; ++i) {
        list.emplaceBack(indexedName(K::SelSharedBoxIndex, i),
                         i < indices.size() ? QByteArray::number(indices[i]) : QByteArray(""));
    }
}

qsizetype escapedLength(const char *text) {
    qsizetype length = 0;
    for (const char *c = text; *c; ++c)
        length += std::strchr(escapedCharacters, *c) ? 2 : 1;
    return length;
}

void writeUpdateFile(const char *fileName) {
    FILE *file = std::fopen(fileName, "a+");
    if (!file)
        return;
    std::fwrite(K::updateFileContent, 1, std::strlen(K::updateFileContent), file);
    std::fclose(file);
}

} // namespace

int OVUpdateJob::cupsAddMuliPartOption(const char *keyword, const QString &value, int numOptions,
                                       cups_option_t **options) {
    OptionList parts;
    appendMultiPart(parts, QByteArray(keyword), value);
    return addOptions(parts, numOptions, options);
}

OVUpdateJob::OptionList OVUpdateJob::optionList(const OVSettingsSnapshot &snapshot) {
    OptionList list;
    list.emplaceBack(K::UpdatePPDOptions, K::updatePpdOptionsValue);
    list.emplaceBack(K::PPDOptionsUpdated, flag(snapshot.isPPDOptionsUpdated));
    list.emplaceBack(K::IsCustomSnmpCommunity, flag(snapshot.snmpCommunityCheck));
    if (snapshot.snmpCommunityCheck)
        list.emplaceBack(K::SnmpCommunityName, encodeBase64(snapshot.snmpCommunityText));
    const QStringList macFields(snapshot.macAddressFields.begin(), snapshot.macAddressFields.end());
    list.emplaceBack(K::IsWakeOnLan, flag(snapshot.wakeOnLANCheck));
    list.emplaceBack(K::PrinterMacAddress,
                     snapshot.wakeOnLANCheck ? encodeBase64(macFields.join(':')) : QByteArray(""));
    list.emplaceBack(K::IsOverTheRouter,
                     flag(snapshot.wakeOnLANCheck && snapshot.overstepTheRouter));
    if (!snapshot.printerIPAddressText.isNull())
        list.emplaceBack(K::PrinterIPAddress, encodeBase64(snapshot.printerIPAddressText));
    appendMultiPartList(list, K::SharedBoxName, snapshot.allSharedBoxNames, K::listLimit);
    appendMultiPartList(list, K::SelSharedBoxName, snapshot.selectedSharedBoxNames, K::listLimit);
    appendIndexList(list, snapshot.selectedSharedBoxIndex);
    list.emplaceBack(K::UsePersonalFolder, flag(snapshot.folderPersonalFolderCheck));
    list.emplaceBack(K::AdminLoginModeEnabled, flag(snapshot.bAdminLoginModeEnabled));
    appendMultiPartList(list, K::PSFormName, snapshot.formNames, K::listLimit);
    appendMultiPartList(list, K::BarcodeAreaDefName, snapshot.barcodeAreaDefinitionNames,
                        K::listLimit);
    appendMultiPartList(list, K::ColorProfileName, snapshot.colorProfileNames,
                        K::colorProfileLimit);
    return list;
}

int OVUpdateJob::addOptions(const OptionList &list, int numOptions, cups_option_t **options) {
    for (const auto &[name, value] : list)
        numOptions = cupsAddOption(name.constData(), value.constData(), numOptions, options);
    return numOptions;
}

qsizetype OVUpdateJob::filterArgumentSize(int numOptions, const cups_option_t *options) {
    qsizetype size = cupsdArgumentMargin + 1;
    for (int i = 0; i < numOptions; ++i) {
        // The name, "=", the value and one separating space (an upper bound:
        // cupsd writes a boolean as the bare name).
        size += escapedLength(options[i].name) + 1 + escapedLength(options[i].value) + 1;
    }
    return size;
}

bool OVUpdateJob::reachesFilter(const OVSettingsSnapshot &snapshot) {
    cups_option_t *options = nullptr;
    const int numOptions = addOptions(optionList(snapshot), 0, &options);
    const qsizetype size = filterArgumentSize(numOptions, options);
    cupsFreeOptions(numOptions, options);
    return size <= maxFilterArgumentBytes;
}

int OVUpdateJob::saveOptionsToPPD(const OVSettingsSnapshot &snapshot, const QString &printerID) {
    const OVCupsConnection connection;
    if (!connection)
        return 0;
    cups_option_t *options = nullptr;
    int numOptions = addOptions(optionList(snapshot), 0, &options);
    // cupsPrintFile2 sends the file in the format this option names, which a
    // set-up queue routes to the driver filter alone.
    numOptions = cupsAddOption(documentFormatOption, K::updateDocumentFormat, numOptions, &options);
    int jobId = 0;
    char fileName[tempFileNameSize];
    if (cups_file_t *file = cupsTempFile2(fileName, sizeof fileName)) {
        cupsFileClose(file);
        writeUpdateFile(fileName);
        jobId = cupsPrintFile2(connection.http(), printerID.toUtf8().constData(), fileName,
                               K::updateJobTitle, numOptions, options);
        unlink(fileName);
    }
    cupsFreeOptions(numOptions, options);
    return jobId;
}

OVUpdateJob::JobOutcome OVUpdateJob::waitForJob(int jobId) {
    const OVCupsConnection connection;
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", ippPort(),
                     "/jobs/%d", jobId);
    ipp_jstate_t state = IPP_JSTATE_PENDING;
    if (!connection)
        return {JobEnd::ServerLost, state};
    while (!connection.expired()) {
        ipp_t *request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                     "job-state");
        ipp_t *response = cupsDoRequest(connection.http(), request, "/");
        if (cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND) {
            ippDelete(response);
            return {JobEnd::Vanished, state};
        }
        if (!response)
            return {connection.expired() ? JobEnd::Pending : JobEnd::ServerLost, state};
        if (ipp_attribute_t *reported = ippFindAttribute(response, "job-state", IPP_TAG_ENUM))
            state = ipp_jstate_t(ippGetInteger(reported, 0));
        ippDelete(response);
        if (state == IPP_JSTATE_COMPLETED)
            return {JobEnd::Completed, state};
        if (state >= IPP_JSTATE_STOPPED)
            return {JobEnd::Ended, state};
        QThread::msleep(jobPollMs);
    }
    return {JobEnd::Pending, state};
}
