// Update jobs are sent by anyone who may print, so whatever a job carries, the
// queue's PPD must keep its own lines and gain nothing but well-formed settings.
#include "CupsServerEnvironment.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

struct HostileJob {
    const char *what;
    QByteArray options; // as lp -o takes them
    bool updateJob = true;
};

TEST(UpdateJobSecurity, OnlyWellFormedSettingsReachThePPD) {
    constexpr char queue[] = "OrvoSecurity";
    CupsServer &cups = CupsServerEnvironment::server();
    ASSERT_TRUE(cups.addQueue(queue));
    QByteArray tenThousandOptions;
    for (int i = 0; i < 10000; ++i)
        tenThousandOptions += " J" + QByteArray::number(i) + "=1";
    // cupsd hands line ends in values to the filter unescaped, where they may
    // split one value into several options.
    const HostileJob jobs[] = {
        {"ForeignKeywords", "cupsFilter2='text/plain 0 /bin/sh' *cupsFilter2=x OpenUI=*Evil "
                            "isWakeOnLan=1 IsWakeOnLanX=1 SharedBoxName=QUJD Forged\"Name=1"},
        {"IndicesOutOfRange", "SharedBoxName100_Part1=QUJD ColorProfileName30_Part1=QUJD "
                              "SelSharedBoxIndex-1=1 SelSharedBoxIndex01=1 PSFormName9_Part7=QUJD"},
        {"QuotesLineEndsBackslashes", "SnmpCommunityName='QUJD\"\n*cupsFilter2: \"text/plain 0 "
                                      "/bin/sh' PrinterIPAddress=QU\\\\JD "
                                      "PSFormName0_Part1='\"QUJD\"' PSFormName1_Part1='QUJD QUJD' "
                                      "PrinterMacAddress='QUJD\ncupsFilter2=x\r\nIsWakeOnLan=yes'"},
        {"WrongShapes", "IsOverTheRouter=yes SelSharedBoxIndex5=12abc PSFormName0_Part1=QUJ "
                        "SnmpCommunityName=Y29i!WF0 PSFormName2_Part1=" +
                            QByteArray(204, 'Q') + " PrinterIPAddress=" + QByteArray(240, 'Q')},
        {"TenThousandOptions", tenThousandOptions},
        {"NotAnUpdateJob", "IsWakeOnLan=0", false},
    };
    // Each job also carries a well-formed setting of its own, which arrives
    // with every update job.
    static const QRegularExpression markerLine(QStringLiteral("^\\*PSFormName7_Part1: .*\n"),
                                               QRegularExpression::MultilineOption);
    const auto others = [](const QByteArray &ppd) {
        return QString::fromLatin1(ppd).remove(markerLine).toStdString();
    };
    for (int i = 0; i < int(std::size(jobs)); ++i) {
        SCOPED_TRACE(jobs[i].what);
        const QByteArray marker = ("job " + QByteArray::number(i)).toBase64();
        const QByteArray before = cups.queuePpd(queue);
        const int job =
            cups.printJob(queue, (jobs[i].updateJob ? "UpdatePPDOptions " : "") +
                                     ("PSFormName7_Part1=" + marker + " ") + jobs[i].options);
        ASSERT_GT(job, 0) << cupsLastErrorString();
        EXPECT_EQ(cups.waitForJob(job), IPP_JSTATE_COMPLETED);
        const QByteArray after = cups.queuePpd(queue);
        EXPECT_EQ(others(after), others(before));
        EXPECT_EQ(after.contains("\n*PSFormName7_Part1: \"" + marker + "\"\n"), jobs[i].updateJob);
    }
    // The filter's log names refused options, but no name may close the quotes
    // around it, and ten thousand refusals are counted, not listed.
    const QByteArray log = cups.errorLog();
    EXPECT_TRUE(log.contains("Forged?Name"));
    EXPECT_TRUE(log.contains("more refused options are not listed"));
    EXPECT_LT(log.count("option \\\"J"), 100); // cupsd logs a quote as \"
}

} // namespace
