#pragma once

#include <QString>

// The system version: "ProductVersion" of the property list at
// defaultPlistPath; it chooses between the full and the short language name.
// Linux has no such file, so the version reads as 0.0.0; tests point the path
// at a file of their own to reach the other branches.
class OVSystemVersion {
public:
    static constexpr const char *defaultPlistPath =
        "/System/Library/CoreServices/SystemVersion.plist";

    static QString plistPath();
    // A null path restores the default.
    static void setPlistPath(const QString &path);
    // The "ProductVersion" string, or "" when the file or key is missing.
    static QString productVersion();
    // The major, middle and minor components into the targets given (a null
    // target is skipped). A component the version lacks leaves its target as
    // it was, and so does a missing version.
    static void components(int *major, int *middle, int *minor);
};
