#include "OVSystemVersion.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QString writePlist(const QTemporaryDir &dir, const QByteArray &dict) {
    const QString path = dir.filePath("SystemVersion.plist");
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" + dict +
               "</dict></plist>\n");
    return path;
}

struct VersionCase {
    const char *dict;
    const char *productVersion;
    int major, middle, minor;
};

class SystemVersionTest : public ::testing::TestWithParam<VersionCase> {
protected:
    void TearDown() override { OVSystemVersion::setPlistPath(QString()); }
};

TEST_P(SystemVersionTest, ReadsProductVersionFromPlist) {
    QTemporaryDir dir;
    OVSystemVersion::setPlistPath(writePlist(dir, GetParam().dict));
    EXPECT_EQ(OVSystemVersion::productVersion(), GetParam().productVersion);
    int major = -1, middle = -1, minor = -1;
    OVSystemVersion::components(major, middle, minor);
    EXPECT_EQ(major, GetParam().major);
    EXPECT_EQ(middle, GetParam().middle);
    EXPECT_EQ(minor, GetParam().minor);
}

INSTANTIATE_TEST_SUITE_P(
    Plists, SystemVersionTest,
    ::testing::Values(
        VersionCase{"<key>ProductName</key><string>Mac OS X</string>"
                    "<key>ProductVersion</key><string>10.13.6</string>",
                    "10.13.6", 10, 13, 6},
        VersionCase{"<key>ProductVersion</key><string>11.0</string>", "11.0", 11, 0, 0},
        VersionCase{"<key>ProductBuildVersion</key><string>17G65</string>", "", 0, 0, 0},
        VersionCase{"<key>ProductVersion</key><integer>10</integer>", "", 0, 0, 0}));

TEST(SystemVersion, MissingFileReadsAsZero) {
    OVSystemVersion::setPlistPath("/nonexistent/SystemVersion.plist");
    int major = -1, middle = -1, minor = -1;
    OVSystemVersion::components(major, middle, minor);
    EXPECT_EQ(major + middle + minor, 0);
    EXPECT_EQ(OVSystemVersion::productVersion(), "");
    OVSystemVersion::setPlistPath(QString());
}

} // namespace
