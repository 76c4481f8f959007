#pragma once

#include "OVSNMPHelper.h"
#include "OVSettingsSnapshot.h"
#include "OVSnmpCredentials.h"
#include "OVSnmpSecurityDialog.h"

#include <QString>

class QWidget;

// How the window asks its printer: the version, user and protocols it loads
// from and saves into the queue's settings, and the SNMPv3 passphrases, which
// it keeps in memory for the printer's address and, when the user says so,
// in the desktop's secret store (OVSecretStore), never in the settings.
class OVWindowSnmp {
public:
    OVWindowSnmp();

    bool v3() const { return m_choice.v3; }
    void apply(const OVSettingsSnapshot &settings);
    void fill(OVSettingsSnapshot &settings) const;

    // The dialog, for the printer at address; true when the user chose OK.
    bool edit(QWidget *parent, const QString &address);
    // Before a fetch: the passphrases from memory, from the store or from
    // the user; false when the user cancelled and nothing is to be asked.
    bool prepare(QWidget *parent, const QString &address);
    // What a fetch asks with: SNMPv3, or v1 with community.
    OVSnmpCredentials credentials(const QString &community) const;
    // A passphrase the printer refused is dropped, from the store too, so
    // that the next fetch asks for it again.
    void refused(OVSNMPHelper::Reason reason, const QString &address);

private:
    bool ask(QWidget *parent, const QString &address, const QString &prompt);
    // Whether the store kept what it was to keep.
    bool remember(const QString &address) const;
    void readStored(const QString &address);
    void forgetPassphrases();

    OVSnmpSecurityDialog::Choice m_choice;
    // The address the passphrases in memory were given or read for.
    QString m_passphrasesFor;
};
