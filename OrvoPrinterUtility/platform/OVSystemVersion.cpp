#include "OVSystemVersion.h"

#include <QFile>
#include <QStringList>
#include <QXmlStreamReader>

#include <mutex>

namespace {
std::mutex pathMutex;
QString &currentPath() {
    static QString path;
    return path;
}

// Reads the <string> that follows <key>ProductVersion</key> in a plist dict.
QString readProductVersion(QIODevice &device) {
    QXmlStreamReader xml(&device);
    bool keyMatched = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("key")) {
            keyMatched = xml.readElementText() == QLatin1String("ProductVersion");
        } else if (keyMatched) {
            return xml.name() == QLatin1String("string") ? xml.readElementText() : QString("");
        }
    }
    return QString("");
}
} // namespace

QString OVSystemVersion::plistPath() {
    std::lock_guard lock(pathMutex);
    return currentPath().isNull() ? QString(defaultPlistPath) : currentPath();
}

void OVSystemVersion::setPlistPath(const QString &path) {
    std::lock_guard lock(pathMutex);
    currentPath() = path;
}

QString OVSystemVersion::productVersion() {
    QFile file(plistPath());
    if (!file.open(QIODevice::ReadOnly))
        return QString("");
    return readProductVersion(file);
}

void OVSystemVersion::components(int *major, int *middle, int *minor) {
    const QString version = productVersion();
    if (version.isEmpty())
        return;
    const QStringList parts = version.split(u'.');
    int *targets[] = {major, middle, minor};
    for (qsizetype i = 0; i < 3 && i < parts.size(); ++i)
        if (targets[i])
            *targets[i] = parts[i].toInt();
}
