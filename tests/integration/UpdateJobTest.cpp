#include "CupsServerEnvironment.h"
#include "OVSettingsSave.h"
#include "OVStoredSettings.h"
#include "OVUpdateJob.h"
#include "OrvoPPD_Interface.h"
#include "OrvoSNMPHelper.h"
#include "OrvoSettingsJobSize.h"
#include "OrvoSettingsKeywords.h"
#include "SettingsInputs.h"

#include <QRegularExpression>
#include <QSet>
#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

namespace K = OrvoSettingsKeywords;
using H = OrvoSNMPHelper;

// The PPD as cupsd would write it if the filter handed over every option of the job.
QByteArray withEveryOption(const QByteArray &ppd, const OVUpdateJob::OptionList &options) {
    QSet<QByteArray> names;
    QList<QByteArray> lines = ppd.split('\n');
    QByteArray result = lines.takeFirst() + "\n";
    for (const auto &[name, value] : options) {
        if (name != K::UpdatePPDOptions) {
            names << name;
            result += "*" + name + ": \"" + value + "\"\n";
        }
    }
    for (const QByteArray &line : lines) {
        const qsizetype colon = line.indexOf(':');
        if (!line.startsWith('*') || colon < 0 || !names.contains(line.mid(1, colon - 1)))
            result += line + "\n";
    }
    return result;
}

// The filter hands cupsd only what changes the PPD. The queue must read back exactly as if
// it had handed over every option of the save.
void expectSameAsUnfiltered(const QByteArray &before, const OVSettingsSnapshot &saved,
                            const char *queue) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write(withEveryOption(before, OVUpdateJob::optionList(saved)));
    file.close();
    ppd_file_t *ppd = r_ppdOpenFile(file.fileName().toLocal8Bit().constData());
    ASSERT_TRUE(ppd);
    const OVSettingsSnapshot unfiltered = OVStoredSettings::read(ppd);
    r_ppdClose(ppd);
    OVSettingsSnapshot stored;
    EXPECT_EQ(OVStoredSettings::load(queue, stored), OVStoredSettings::Status::Loaded);
    EXPECT_TRUE(stored == unfiltered);
}

// Saves made through the utility's own update job travel through the real
// server and the driver filter into the queue's PPD, and read back as the
// window reads them. Each save starts from the one before, as a user editing
// the same queue does.
TEST(SaveRoundTrip, EverySaveReadsBackAsStored) {
    constexpr char queue[] = "OrvoRoundTrip";
    CupsServer &cups = CupsServerEnvironment::server();
    ASSERT_TRUE(cups.addQueue(queue));
    const auto readBack = [&](const auto &expect) {
        EXPECT_EQ(OVStoredSettings::withQueuePPD(queue, expect), OVStoredSettings::Status::Loaded);
    };
    readBack([](ppd_file_t *ppd) { // never written: the defaults
        EXPECT_EQ(H::snmpCommunityName(ppd), "cobalt");
        EXPECT_TRUE(H::isWakeOnLan(ppd));
        EXPECT_TRUE(H::isAdminLoginModeEnabled(ppd));
        EXPECT_TRUE(H::getSharedBoxDetailsArray(ppd).isEmpty());
    });

    const QString longestName = QString(299, u'€') + "nnn"; // 900 bytes, the most a name holds
    OVSettingsSnapshot s;
    s.isPPDOptionsUpdated = s.folderPersonalFolderCheck = true;
    s.bAdminLoginModeEnabled = false;
    s.snmpCommunityCheck = s.overstepTheRouter = true;
    s.snmpCommunityText = "public";
    s.macAddress = "0a:1b:2c:3d:4e:5f";
    s.printerIPAddressText = "fd00::7";
    s.allSharedBoxNames = {"営業部", "Design 🎨", longestName};
    s.selectedSharedBoxIndex = {1, -1}; // -1: added while no printer folder was selected
    s.formNames = {"A4 invoice", "Label"};
    for (int i = 0; i < 30; ++i)
        s.colorProfileNames << QString("Profile %1").arg(i);
    const auto save = [&] {
        const QByteArray before = cups.queuePpd(queue);
        EXPECT_EQ(cups.waitForJob(OVUpdateJob::saveOptionsToPPD(s, queue)), IPP_JSTATE_COMPLETED);
        expectSameAsUnfiltered(before, s, queue);
    };
    save();
    readBack([&](ppd_file_t *ppd) {
        EXPECT_EQ(H::snmpCommunityName(ppd), "public");
        EXPECT_EQ(H::getPrinterMacAddress(ppd), "0a:1b:2c:3d:4e:5f");
        EXPECT_TRUE(H::isOverTheRouter(ppd));
        EXPECT_EQ(H::getPrinterIPAddress(ppd), "fd00::7");
        EXPECT_EQ(H::getSharedBoxDetailsArray(ppd),
                  (QStringList{"営業部", "Design 🎨", longestName}));
        EXPECT_EQ(H::getSelectedSharedBoxIndexArray(ppd), (QList<qint32>{1, -1}));
        EXPECT_EQ(H::getColorProfileDetailsArray(ppd).size(), 30);
        EXPECT_TRUE(H::isPPDOptionsUpdated(ppd) && H::isCustomSnmpCommunity(ppd));
        EXPECT_FALSE(H::isAdminLoginModeEnabled(ppd));
        EXPECT_TRUE(H::isPersonalFolderSelected(ppd));
    });

    // Every flag flips; the router flag is stored off whenever Wake-on-LAN is off.
    s.isPPDOptionsUpdated = s.folderPersonalFolderCheck = false;
    s.bAdminLoginModeEnabled = true;
    s.snmpCommunityCheck = s.wakeOnLANCheck = false;
    s.snmpCommunityText = "ignored";
    s.formNames = {"Label"};
    save();
    readBack([](ppd_file_t *ppd) {
        EXPECT_FALSE(H::isCustomSnmpCommunity(ppd));
        EXPECT_EQ(H::snmpCommunityName(ppd), "public");
        EXPECT_FALSE(H::isWakeOnLan(ppd) || H::isOverTheRouter(ppd));
        EXPECT_FALSE(H::isPPDOptionsUpdated(ppd) || H::isPersonalFolderSelected(ppd));
        EXPECT_TRUE(H::isAdminLoginModeEnabled(ppd));
        EXPECT_EQ(H::getPrinterMacAddress(ppd), "");
        EXPECT_EQ(H::getFormDetailsArray(ppd), QStringList{"Label"});
    });
    // A save that changes nothing leaves the server's file as it was: cupsd is not asked to
    // rewrite it.
    const auto stamp = [&] {
        struct stat file {};
        EXPECT_EQ(stat(cups.ppdFile(queue).toLocal8Bit().constData(), &file), 0);
        return std::tuple(file.st_ino, file.st_mtim.tv_sec, file.st_mtim.tv_nsec);
    };
    const auto before = stamp();
    save();
    EXPECT_EQ(stamp(), before);
}

// cupsd hands all of a job's options to the filter as one argument, and Linux
// refuses to start a program with an argument of 128 KiB or more (its
// terminating zero included).
constexpr qsizetype limit = OrvoSettingsJobSize::maxFilterArgumentBytes;

// The length of the options text cupsd handed to the job's filter, as it logs it.
qsizetype handedOver(int job) {
    const QString log = QString::fromLatin1(CupsServerEnvironment::server().errorLog());
    return QRegularExpression(QString("\\[Job %1\\] Job options text is (\\d+) bytes").arg(job))
        .match(log)
        .captured(1)
        .toLongLong();
}

// The size estimate must never let through a save that cannot arrive, and
// must not refuse much that would: the largest save it accepts arrives whole.
// Whatever the estimate, an options text just below the limit arrives whole;
// one at the limit stops the job and leaves the PPD as it was.
TEST(UpdateJobSizeLimit, LargestSavesArriveOneByteMoreKeepsThePPD) {
    constexpr char queue[] = "OrvoSizeLimit";
    CupsServer &cups = CupsServerEnvironment::server();
    ASSERT_TRUE(cups.addQueue(queue));
    OVSettingsSnapshot snapshot;
    while (OrvoSettingsJobSize::fits(snapshot.settings()))
        snapshot.formNames << QString(900, 'f');
    snapshot.formNames.removeLast();
    const int job = OVUpdateJob::saveOptionsToPPD(snapshot, queue);
    EXPECT_EQ(cups.waitForJob(job), IPP_JSTATE_COMPLETED);
    EXPECT_GT(handedOver(job), limit - qsizetype(OrvoSettingsJobSize::cupsdArgumentMargin) - 1300);
    const auto stored = [&](ppd_file_t *ppd) {
        EXPECT_EQ(H::getFormDetailsArray(ppd), snapshot.formNames);
    };
    EXPECT_EQ(OVStoredSettings::withQueuePPD(queue, stored), OVStoredSettings::Status::Loaded);

    const int probe = cups.printJob(queue, "UpdatePPDOptions");
    EXPECT_EQ(cups.waitForJob(probe), IPP_JSTATE_COMPLETED);
    const qsizetype added = handedOver(probe) - qsizetype(sizeof "UpdatePPDOptions" - 1);
    // One setting padded with options the filter refuses, so that cupsd hands over exactly
    // `length` bytes; the last two pads share the rest.
    const auto submit = [&](const QByteArray &form, qsizetype length) {
        QByteArray options = "UpdatePPDOptions PSFormName0_Part1=" + form.toBase64();
        while (const qsizetype missing = length - added - options.size()) {
            const QByteArray name = " Padding" + QByteArray::number(options.size()) + "=";
            const qsizetype value = missing > 400   ? 200
                                    : missing > 200 ? missing / 2 - name.size()
                                                    : missing - name.size();
            options += name + QByteArray(value, 'x');
        }
        return cups.printJob(queue, options);
    };
    const int longest = submit("Longest", limit - 1);
    EXPECT_EQ(cups.waitForJob(longest), IPP_JSTATE_COMPLETED);
    EXPECT_EQ(handedOver(longest), limit - 1);
    const QByteArray ppd = cups.queuePpd(queue);
    EXPECT_TRUE(ppd.contains("*PSFormName0_Part1: \"" + QByteArray("Longest").toBase64() + "\""));

    const int tooLong = submit("Too long", limit);
    EXPECT_EQ(cups.waitForJob(tooLong), IPP_JSTATE_STOPPED);
    EXPECT_TRUE(cups.errorLog().contains("Argument list too long"));
    EXPECT_EQ(cups.queuePpd(queue), ppd);
    cupsCancelJob2(CUPS_HTTP_DEFAULT, queue, tooLong, 0);
}

// Update jobs are sent by anyone who may print, so whatever a job carries, the
// queue's PPD must keep its own lines and gain nothing but well-formed settings.
TEST(UpdateJobSecurity, OnlyWellFormedSettingsReachThePPD) {
    constexpr char queue[] = "OrvoSecurity";
    CupsServer &cups = CupsServerEnvironment::server();
    ASSERT_TRUE(cups.addQueue(queue));
    QByteArray tenThousandOptions;
    for (int i = 0; i < 10000; ++i)
        tenThousandOptions += " J" + QByteArray::number(i) + "=1";
    // cupsd hands line ends in values to the filter unescaped, where they may
    // split one value into several options. A job with a malformed setting
    // stores none of its settings; options that are no settings are left out.
    const struct {
        const char *what;
        QByteArray options; // as lp -o takes them
        bool stored;
        bool updateJob = true;
    } jobs[] = {
        {"ForeignKeywords",
         "cupsFilter2='text/plain 0 /bin/sh' *cupsFilter2=x OpenUI=*Evil isWakeOnLan=1 "
         "IsWakeOnLanX=1 SharedBoxName=QUJD Forged\"Name=1 SelSharedBoxIndex01=1",
         true},
        {"IndexOutOfRange", "ColorProfileName30_Part1=QUJD", false},
        {"PartOutOfRange", "PSFormName9_Part7=QUJD", false},
        {"QuotesLineEndsBackslashes",
         "SnmpCommunityName='QUJD\"\n*cupsFilter2: \"text/plain 0 /bin/sh' "
         "PrinterMacAddress='QUJD\ncupsFilter2=x\r\nIsWakeOnLan=yes'",
         false},
        {"WrongShape", "IsOverTheRouter=yes", false},
        // The queue stores Wake-on-LAN on and no MAC address: a job must not leave it so.
        {"WakeOnLanOverNoStoredMac", "IsWakeOnLan=1", false},
        {"MacClearedUnderStoredWakeOnLan", "PrinterMacAddress=", false},
        {"WakeOnLanOverAMalformedMac", "IsWakeOnLan=1 PrinterMacAddress=QUJD", false},
        {"PartTooLong", "PSFormName2_Part1=" + QByteArray(204, 'Q'), false},
        {"TenThousandOptions", tenThousandOptions, true},
        {"NotAnUpdateJob", "IsWakeOnLan=0", false, false},
    };
    static const QRegularExpression markerLine(QStringLiteral("^\\*PSFormName7_Part1: .*\n"),
                                               QRegularExpression::MultilineOption);
    const auto others = [](const QByteArray &ppd) {
        return QString::fromLatin1(ppd).remove(markerLine).toStdString();
    };
    for (const auto &[what, options, stored, updateJob] : jobs) {
        SCOPED_TRACE(what);
        const QByteArray marker = QByteArray(what).toBase64();
        const QByteArray before = cups.queuePpd(queue);
        const int job = cups.printJob(queue, (updateJob ? "UpdatePPDOptions " : "") +
                                                 ("PSFormName7_Part1=" + marker + " ") + options);
        ASSERT_GT(job, 0) << cupsLastErrorString();
        EXPECT_EQ(cups.waitForJob(job), IPP_JSTATE_COMPLETED);
        const QByteArray after = cups.queuePpd(queue);
        EXPECT_EQ(others(after), others(before));
        EXPECT_EQ(after.contains("\n*PSFormName7_Part1: \"" + marker + "\"\n"), stored);
    }
    // The filter's log names refused options, but no name may close the quotes
    // around it, and ten thousand refusals are counted, not listed.
    const QByteArray log = cups.errorLog();
    EXPECT_TRUE(log.contains("Forged?Name"));
    EXPECT_TRUE(log.contains("more refused options are not listed"));
    EXPECT_LT(log.count("option \\\"J"), 100); // cupsd logs a quote as \"
}

// Each of the settings inputs: the save sends none that the rules refuse, whoever calls it. Sent
// in an update job that no front end checked, as any user who may print can send one, what the
// rules accept is stored, anything else leaves the PPD as it was, with the filter's reason in
// the server's log.
TEST(UpdateJobSecurity, TheFilterAppliesTheSettingsRules) {
    constexpr char queue[] = "OrvoRules";
    CupsServer &cups = CupsServerEnvironment::server();
    ASSERT_TRUE(cups.addQueue(queue));
    for (const SettingsInput &input : settingsInputs()) {
        SCOPED_TRACE(input.what);
        const OVSettingsSnapshot snapshot = input.snapshot();
        const OrvoSettingsVerdict verdict = snapshot.check();
        const QByteArray before = cups.queuePpd(queue);
        const int jobsBefore = cups.lastJob();
        const OVSettingsSave::Outcome outcome = OVSettingsSave::save(snapshot, queue);
        EXPECT_EQ(outcome.stored(), verdict.ok())
            << int(outcome.result) << " " << outcome.differing.join(", ").toStdString();
        if (verdict.ok())
            continue;
        EXPECT_EQ(outcome.verdict.explanation(), verdict.explanation());
        EXPECT_EQ(cups.lastJob(), jobsBefore);
        QByteArray options;
        for (const auto &[name, value] : OVUpdateJob::optionList(snapshot))
            options += name + "=" + value + " ";
        const int job = cups.printJob(queue, options);
        EXPECT_EQ(cups.waitForJob(job), IPP_JSTATE_COMPLETED);
        EXPECT_EQ(cups.queuePpd(queue), before);
        const QRegularExpression refusal(
            QString("\\[Job %1\\] Refused the update job, nothing stored: (%2\\S*) (.*)\n")
                .arg(job)
                .arg(QString::fromUtf8(verdict.field.data(), qsizetype(verdict.field.size()))));
        const QRegularExpressionMatch logged = refusal.match(QString::fromUtf8(cups.errorLog()));
        ASSERT_TRUE(logged.hasMatch());
        EXPECT_EQ(logged.captured(2).toStdString(), verdict.explanation());
    }
}

} // namespace
