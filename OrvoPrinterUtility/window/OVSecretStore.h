#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// The user's SNMPv3 passphrases in the desktop's secret store (the Secret
// Service, through QtKeychain), one entry per printer address, user name and
// passphrase, so that none is ever written into the queue's PPD, which any
// client of the print server can fetch. Without a reachable store nothing is
// kept: there is no fallback to a file in the clear.
//
// Each call waits for the store's answer in a local event loop, on the GUI
// thread, as the store's jobs require.
class OVSecretStore {
public:
    enum class Part { Auth, Priv };

    static constexpr char serviceName[] = "orvo-printer-utility";

    // nullopt when the store has no such entry or cannot be reached.
    static std::optional<QByteArray> read(const QString &address, const QString &user, Part part);
    // Whether the store kept it.
    static bool write(const QString &address, const QString &user, Part part,
                      const QByteArray &passphrase);
    // A passphrase the printer refused is of no use on the next fetch.
    static void forget(const QString &address, const QString &user, Part part);

private:
    static QString key(const QString &address, const QString &user, Part part);
};
