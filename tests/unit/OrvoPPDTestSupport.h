#pragma once

#include "OVPreferredLanguages.h"
#include "OVSystemVersion.h"

#include <QFile>
#include <QTemporaryDir>

// The system version (no plist for none) and the preferred languages while the object lives.
struct Platform {
    Platform(const char *version, const QStringList &languages) {
        QFile file(dir.filePath("SystemVersion.plist"));
        if (version && file.open(QIODevice::WriteOnly))
            file.write(QByteArray("<plist><dict><key>ProductVersion</key><string>") + version +
                       "</string></dict></plist>");
        OVSystemVersion::setPlistPath(file.fileName());
        OVPreferredLanguages::setOverride(languages);
    }
    ~Platform() {
        OVSystemVersion::setPlistPath(QString());
        OVPreferredLanguages::setOverride(std::nullopt);
    }
    QTemporaryDir dir;
};
