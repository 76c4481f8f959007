// cupsd hands all of a job's options to the filter as one argument, and Linux
// refuses to start a program with an argument of 128 KiB or more (the
// terminating zero included). A save just below must arrive whole; one at the
// limit must leave the PPD as it was.
#include "CupsServerEnvironment.h"
#include "JobOptions.h"
#include "StoredSettings.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr char queue[] = "OrvoSizeLimit";
constexpr std::size_t argumentLimit = 131072;

class UpdateJobSizeLimitTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        ASSERT_TRUE(cups().addQueue(queue));
        JobOptions probe;
        probe.add("UpdatePPDOptions", "True");
        overhead = submittedTextLength(probe) - probe.filterTextLength();
    }

    static CupsServer &cups() { return CupsServerEnvironment::server(); }

    // The length of the options text the filter received, as it logs it.
    static std::size_t submittedTextLength(const JobOptions &options) {
        const qint64 logStart = cups().errorLogSize();
        const int job = cups().printJob(queue, options.count(), options.data());
        EXPECT_EQ(cups().waitForJob(job), IPP_JSTATE_COMPLETED);
        const QRegularExpressionMatch match =
            QRegularExpression(
                QStringLiteral("\\[Job %1\\] Job options text is (\\d+) bytes").arg(job))
                .match(QString::fromLatin1(cups().errorLogSince(logStart)));
        EXPECT_TRUE(match.hasMatch());
        return match.captured(1).toULongLong();
    }

    // A complete save padded with options the filter refuses, so that the
    // options text cupsd hands over is exactly textLength long.
    static JobOptions saveOfLength(int save, std::size_t textLength) {
        JobOptions options;
        options.add("UpdatePPDOptions", "True");
        options.add(StoredSettings::completeSet(save));
        for (int pad = 0; options.filterTextLength() + overhead < textLength; ++pad) {
            const std::string name = "Padding" + std::to_string(pad);
            const std::size_t missing = textLength - overhead - options.filterTextLength();
            const std::size_t framing = name.size() + 2; // " name="
            // Leave either nothing or room for one more option.
            const std::size_t value = missing <= framing + 200
                                          ? missing - framing
                                          : std::min<std::size_t>(200, missing - 2 * framing);
            options.add(name, std::string(value, 'x'));
        }
        return options;
    }

    static inline std::size_t overhead = 0;
};

TEST_F(UpdateJobSizeLimitTest, LongestOptionsTextReachesTheFilter) {
    EXPECT_EQ(submittedTextLength(saveOfLength(2, argumentLimit - 1)), argumentLimit - 1);
    EXPECT_TRUE(StoredSettings::in(cups().queuePpd(queue)) == StoredSettings::completeSet(2));
}

TEST_F(UpdateJobSizeLimitTest, LongerOptionsTextStopsTheJobAndKeepsThePPD) {
    const QByteArray before = cups().queuePpd(queue);
    const JobOptions save = saveOfLength(3, argumentLimit);
    ASSERT_EQ(save.filterTextLength() + overhead, argumentLimit);
    const qint64 logStart = cups().errorLogSize();
    const int job = cups().printJob(queue, save.count(), save.data());
    ASSERT_GT(job, 0);
    EXPECT_EQ(cups().waitForJob(job), IPP_JSTATE_STOPPED);
    EXPECT_TRUE(cups().errorLogSince(logStart).contains("Argument list too long"));
    EXPECT_EQ(cups().queuePpd(queue), before);
    cupsCancelJob2(CUPS_HTTP_DEFAULT, queue, job, 0);
}

} // namespace
