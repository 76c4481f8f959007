#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// Where the command line finds SNMPv3 passphrases, so that none is ever on an
// argument list, which every user of the machine can read: a file only its
// owner may read, the environment, or a prompt on the terminal without echo.
//
// The file and the environment use the same names, one passphrase a line:
//   ORVO_SNMP_AUTH_PASSPHRASE=...
//   ORVO_SNMP_PRIV_PASSPHRASE=...
class OVSnmpSecrets {
public:
    static constexpr char authName[] = "ORVO_SNMP_AUTH_PASSPHRASE";
    static constexpr char privName[] = "ORVO_SNMP_PRIV_PASSPHRASE";

    // The authentication passphrase, and the privacy one when withPrivacy,
    // from file when one is named, else from the environment, else asked on
    // the terminal. On failure, error says why (never with a passphrase).
    OVSnmpSecrets(const QString &file, bool withPrivacy);

    std::optional<QString> error;
    QByteArray auth;
    QByteArray priv;

private:
    void readFile(const QString &file);
    void readEnvironment();
    void askMissing(bool withPrivacy);
    static QByteArray ask(const char *what);
};
