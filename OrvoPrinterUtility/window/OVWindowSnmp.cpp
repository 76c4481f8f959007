#include "OVWindowSnmp.h"

#include "OVAlert.h"
#include "OVChooserTexts.h"
#include "OVSecretStore.h"
#include "OVWindowTexts.h"

using Part = OVSecretStore::Part;

// A queue without settings of its own asks as a new one would.
OVWindowSnmp::OVWindowSnmp() {
    apply(OVSettingsSnapshot());
}

void OVWindowSnmp::apply(const OVSettingsSnapshot &settings) {
    const bool sameUser = m_choice.user == settings.snmpUserText;
    m_choice.v3 = settings.snmpVersion == QStringLiteral("3");
    m_choice.user = settings.snmpUserText;
    m_choice.authProtocol = settings.snmpAuthProtocol;
    m_choice.privProtocol = settings.snmpPrivProtocol;
    if (!sameUser)
        forgetPassphrases();
}

void OVWindowSnmp::fill(OVSettingsSnapshot &settings) const {
    settings.snmpVersion = m_choice.v3 ? QStringLiteral("3") : QStringLiteral("1");
    settings.snmpUserText = m_choice.user;
    settings.snmpAuthProtocol = m_choice.authProtocol;
    settings.snmpPrivProtocol = m_choice.privProtocol;
}

bool OVWindowSnmp::edit(QWidget *parent, const QString &address) {
    if (m_choice.v3 && m_passphrasesFor != address)
        readStored(address);
    return ask(parent, address, QString());
}

bool OVWindowSnmp::prepare(QWidget *parent, const QString &address) {
    if (!m_choice.v3)
        return true;
    if (m_passphrasesFor != address || !m_choice.complete())
        readStored(address);
    if (m_choice.complete())
        return true;
    const QString prompt =
        OVChooserTexts::localized(OVWindowTexts::snmpPassphrasesNeeded).arg(m_choice.user, address);
    return ask(parent, address, prompt);
}

bool OVWindowSnmp::ask(QWidget *parent, const QString &address, const QString &prompt) {
    OVSnmpSecurityDialog dialog(m_choice, prompt, parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    m_choice = dialog.choice();
    m_passphrasesFor = address;
    if (m_choice.v3 && !remember(address))
        OVAlert::alertWithMessageText(OVChooserTexts::localized(OVWindowTexts::keyringUnavailable),
                                      OVChooserTexts::localized(OVWindowTexts::ok), QString(),
                                      QString(), QString())
            ->runModal();
    return true;
}

// Unticking "remember" takes the user's passphrases out of the store.
bool OVWindowSnmp::remember(const QString &address) const {
    const QString &user = m_choice.user;
    if (!m_choice.remember) {
        OVSecretStore::forget(address, user, Part::Auth);
        OVSecretStore::forget(address, user, Part::Priv);
        return true;
    }
    const auto keep = [&](Part part, const QByteArray &passphrase) {
        return passphrase.isEmpty() || OVSecretStore::write(address, user, part, passphrase);
    };
    const bool authKept = keep(Part::Auth, m_choice.authPassphrase);
    return keep(Part::Priv, m_choice.privPassphrase) && authKept;
}

// For another printer the passphrases in memory do not count; for the same
// one, the store fills only those still missing, not those just typed.
void OVWindowSnmp::readStored(const QString &address) {
    const bool otherPrinter = m_passphrasesFor != address;
    const auto fill = [&](Part part, QByteArray &passphrase) {
        if (otherPrinter || passphrase.isEmpty())
            passphrase = OVSecretStore::read(address, m_choice.user, part).value_or(QByteArray());
    };
    fill(Part::Auth, m_choice.authPassphrase);
    if (m_choice.privProtocol.isEmpty())
        m_choice.privPassphrase.clear();
    else
        fill(Part::Priv, m_choice.privPassphrase);
    m_passphrasesFor = address;
}

void OVWindowSnmp::forgetPassphrases() {
    m_choice.authPassphrase.clear();
    m_choice.privPassphrase.clear();
    m_passphrasesFor.clear();
}

OVSnmpCredentials OVWindowSnmp::credentials(const QString &community) const {
    if (!m_choice.v3)
        return OVSnmpCredentials(community);
    return OVSnmpCredentials::v3(m_choice.user, m_choice.authProtocol, m_choice.authPassphrase,
                                 m_choice.privProtocol, m_choice.privPassphrase);
}

// A wrong privacy passphrase leaves the printer silent, which a wrong
// address does too: only the refusals that name the passphrase drop one.
void OVWindowSnmp::refused(OVSNMPHelper::Reason reason, const QString &address) {
    if (!m_choice.v3 || reason != OVSNMPHelper::Reason::WrongPassphrase)
        return;
    OVSecretStore::forget(address, m_choice.user, Part::Auth);
    forgetPassphrases();
}
