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
    m_allSharedBoxNames = settings.allSharedBoxNames;
    m_selectedSharedBoxNames = settings.selectedSharedBoxNames;
    m_selectedSharedBoxIndex = settings.selectedSharedBoxIndex;
}

void OVFolderSelection::add(qint32 row, const QString &name) {
    if (!name.isNull())
        m_selectedSharedBoxNames << name;
    m_selectedSharedBoxIndex << row;
}

void OVFolderSelection::remove(qint32 row) {
    if (row >= 0 && row < m_selectedSharedBoxIndex.size())
        m_selectedSharedBoxIndex.removeAt(row);
    if (row >= 0 && row < m_selectedSharedBoxNames.size())
        m_selectedSharedBoxNames.removeAt(row);
}

void OVFolderSelection::updateSelectedArrayStrings() {
    if (m_selectedSharedBoxIndex.size() != m_selectedSharedBoxNames.size())
        return;
    for (qsizetype i = 0; i < m_selectedSharedBoxIndex.size(); ++i) {
        const qint32 row = m_selectedSharedBoxIndex[i];
        if (row >= 0 && row < m_allSharedBoxNames.size())
            m_selectedSharedBoxNames[i] = m_allSharedBoxNames[row];
    }
}

void OVFolderSelection::applyFetched(const QStringList &foldersInUse) {
    m_allSharedBoxNames = foldersInUse;
    updateSelectedArrayStrings();
}
