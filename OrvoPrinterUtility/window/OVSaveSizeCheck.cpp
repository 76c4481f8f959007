#include "OVSaveSizeCheck.h"

#include "OVSettingsSnapshot.h"
#include "OVUpdateJob.h"
#include "OVWindowTexts.h"

#include <algorithm>
#include <vector>

namespace {
struct SavedList {
    QStringList OVSettingsSnapshot::*list;
    const char *key;
};

constexpr SavedList savedLists[] = {
    {&OVSettingsSnapshot::allSharedBoxNames, OVWindowTexts::sharedFolderInPrinter},
    {&OVSettingsSnapshot::selectedSharedBoxNames, OVWindowTexts::registerFolder},
    {&OVSettingsSnapshot::formNames, OVWindowTexts::formTab},
    {&OVSettingsSnapshot::barcodeAreaDefinitionNames, OVWindowTexts::barcodeTab},
    {&OVSettingsSnapshot::colorProfileNames, OVWindowTexts::colorProfileTab},
};

qsizetype textSize(const QStringList &list) {
    qsizetype size = 0;
    for (const QString &name : list)
        size += name.toUtf8().size();
    return size;
}
} // namespace

QStringList OVSaveSizeCheck::listsToShorten(const OVSettingsSnapshot &snapshot) {
    if (OVUpdateJob::reachesFilter(snapshot))
        return {};
    std::vector<SavedList> bySize(std::begin(savedLists), std::end(savedLists));
    std::stable_sort(bySize.begin(), bySize.end(), [&](const SavedList &a, const SavedList &b) {
        return textSize(snapshot.*(a.list)) > textSize(snapshot.*(b.list));
    });
    OVSettingsSnapshot trimmed = snapshot;
    QStringList keys;
    for (const SavedList &saved : bySize) {
        (trimmed.*(saved.list)).clear();
        keys << saved.key;
        if (OVUpdateJob::reachesFilter(trimmed))
            break;
    }
    return keys;
}
