#pragma once

#include <QList>
#include <QStringList>

#include <optional>

struct OVSettingsSnapshot;

// The folder tab's state without its tables: the printer's folders (the
// register list), the folders chosen from it, and for each chosen folder the
// register row it came from, so that a fetched list can rename the chosen
// folders by position.
class OVFolderSelection {
public:
    OVFolderSelection();

    const QStringList &allSharedBoxNames() const { return m_allSharedBoxNames; }
    const QStringList &selectedSharedBoxNames() const { return m_selectedSharedBoxNames; }
    const QList<qint32> &selectedSharedBoxIndex() const { return m_selectedSharedBoxIndex; }

    // The default folders, the first one chosen.
    void clear();
    void load(const OVSettingsSnapshot &settings);
    // Chooses the register row (name is its text). A null name (no row
    // selected) chooses nothing but still records the row; renaming then
    // stays off while the two lists differ in length.
    void add(qint32 row, const QString &name);
    // Drops a chosen folder; a row out of range changes nothing.
    void remove(qint32 row);
    // Renames each chosen folder after its register row, when every chosen
    // folder has a row.
    void updateSelectedArrayStrings();
    // A fetched register list (the folders in use); the chosen folders take
    // the names of their rows.
    void applyFetched(const QStringList &foldersInUse);

private:
    QStringList m_allSharedBoxNames;
    QStringList m_selectedSharedBoxNames;
    QList<qint32> m_selectedSharedBoxIndex;
};
