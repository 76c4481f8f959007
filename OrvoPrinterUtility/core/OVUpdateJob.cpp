#include "OVUpdateJob.h"

#include "OVCupsConnection.h"
#include "OrvoSettingsCodec.h"
#include "OrvoSettingsKeywords.h"

#include <QThread>

#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace K = OrvoSettingsKeywords;

namespace {

constexpr int tempFileNameSize = 1024;
constexpr char documentFormatOption[] = "document-format";
// An update job ends about 0.1 s after it was sent to a local queue.
constexpr unsigned long jobPollMs = 50;

OVUpdateJob::OptionList optionsOf(const OrvoSettingsCodec::Options &options) {
    OVUpdateJob::OptionList list;
    list.reserve(qsizetype(options.size()));
    for (const auto &[name, value] : options)
        list.emplaceBack(QByteArray::fromStdString(name), QByteArray::fromStdString(value));
    return list;
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
    if (value.isNull())
        return numOptions;
    return addOptions(optionsOf(OrvoSettingsCodec::encodeMultiPart(keyword, value.toStdString())),
                      numOptions, options);
}

OVUpdateJob::OptionList OVUpdateJob::optionList(const OVSettingsSnapshot &snapshot) {
    return optionsOf(OrvoSettingsCodec::encode(snapshot.settings()));
}

int OVUpdateJob::addOptions(const OptionList &list, int numOptions, cups_option_t **options) {
    for (const auto &[name, value] : list)
        numOptions = cupsAddOption(name.constData(), value.constData(), numOptions, options);
    return numOptions;
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
