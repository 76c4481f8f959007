#pragma once

#include "SpawnedProcess.h"

#include <QString>
#include <QTemporaryDir>

// A desktop secret store of the test's own: gnome-keyring's Secret Service on
// a private session bus (dbus-run-session), its login keyring created and
// unlocked in a temporary home. start() points this process's session bus at
// it, so QtKeychain in the test finds it as it would on a desktop.
class SecretService {
public:
    SecretService() = default;
    SecretService(const SecretService &) = delete;
    SecretService &operator=(const SecretService &) = delete;
    // Ends the session: the bus, and with it the keyring daemon.
    ~SecretService();

    bool start();
    QString errorText() const { return m_error; }
    QString busAddress() const { return m_busAddress; }

private:
    QTemporaryDir m_home;
    SpawnedProcess m_session;
    QString m_busAddress;
    QString m_error;
};
