#include "OVPreferredLanguages.h"

#include <QLocale>

#include <mutex>

namespace {
std::mutex overrideMutex;
std::optional<QStringList> &currentOverride() {
    static std::optional<QStringList> languages;
    return languages;
}
} // namespace

QStringList OVPreferredLanguages::languages() {
    {
        std::lock_guard lock(overrideMutex);
        if (currentOverride())
            return *currentOverride();
    }
    return QLocale::system().uiLanguages();
}

QString OVPreferredLanguages::first() {
    const QStringList all = languages();
    return all.isEmpty() ? QString("") : all.first();
}

void OVPreferredLanguages::setOverride(std::optional<QStringList> languages) {
    std::lock_guard lock(overrideMutex);
    currentOverride() = std::move(languages);
}
