#include "OVLaunchEvent.h"
#include "OVSystemLog.h"

#include <gtest/gtest.h>

namespace {

struct LaunchCase {
    QStringList arguments;
    const char *printerID;
    QStringList logged;
};

class LaunchEventTest : public ::testing::TestWithParam<LaunchCase> {};

TEST_P(LaunchEventTest, PrinterIDAndLogFollowTheArguments) {
    QStringList logged;
    OVSystemLog::setSink([&](int, const QString &line) { logged << line; });
    const QString id = OVLaunchEvent::printerIDFromArguments(GetParam().arguments);
    OVSystemLog::setSink({});
    EXPECT_EQ(id, GetParam().printerID);
    EXPECT_FALSE(id.isNull());
    EXPECT_EQ(logged, GetParam().logged);
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, LaunchEventTest,
    ::testing::Values(LaunchCase{{}, "", {}}, LaunchCase{{"--verbose"}, "Default-TestID", {}},
                      LaunchCase{{"--printer"}, "Default-TestID", {}},
                      LaunchCase{{"-p", "Office"}, "Office", {"Printer ID", "Office"}},
                      LaunchCase{
                          {"--printer", "Orvo-Demo"}, "Orvo-Demo", {"Printer ID", "Orvo-Demo"}},
                      LaunchCase{{"--printer=Q 2"}, "Q 2", {"Printer ID", "Q 2"}},
                      LaunchCase{{"-x", "-p", "Lab"}, "Lab", {"Printer ID", "Lab"}}));

} // namespace
