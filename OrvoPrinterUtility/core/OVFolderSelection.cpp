#include "OVFolderSelection.h"

#include "OVSettingsSnapshot.h"
#include "OVStoredSettings.h"

OVFolderSelection::OVFolderSelection() {
    clear();
}

void OVFolderSelection::clear() {
    load(OVStoredSettings::defaults());
}

void OVFolderSelection::load(const OVSettingsSnapshot &settings) {
    allSharedBoxNames_ = settings.allSharedBoxNames;
    selectedSharedBoxNames_ = settings.selectedSharedBoxNames;
    selectedSharedBoxIndex_ = settings.selectedSharedBoxIndex;
}

void OVFolderSelection::add(qint32 row, const QString &name) {
    if (!name.isNull())
        selectedSharedBoxNames_ << name;
    selectedSharedBoxIndex_ << row;
}

void OVFolderSelection::remove(qint32 row) {
    if (row >= 0 && row < selectedSharedBoxIndex_.size())
        selectedSharedBoxIndex_.removeAt(row);
    if (row >= 0 && row < selectedSharedBoxNames_.size())
        selectedSharedBoxNames_.removeAt(row);
}

void OVFolderSelection::updateSelectedArrayStrings() {
    if (selectedSharedBoxIndex_.size() != selectedSharedBoxNames_.size())
        return;
    for (qsizetype i = 0; i < selectedSharedBoxIndex_.size(); ++i) {
        const qint32 row = selectedSharedBoxIndex_[i];
        if (row >= 0 && row < allSharedBoxNames_.size())
            selectedSharedBoxNames_[i] = allSharedBoxNames_[row];
    }
}

void OVFolderSelection::applyFetched(const QStringList &foldersInUse) {
    allSharedBoxNames_ = foldersInUse;
    updateSelectedArrayStrings();
}
