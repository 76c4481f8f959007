#include "OVSecretStore.h"

#include "OVWindowLog.h"

#include <QEventLoop>

#include <qt6keychain/keychain.h>

namespace {

// The job's own error text may name the key, never the passphrase.
bool run(QKeychain::Job &job) {
    job.setAutoDelete(false);
    QEventLoop loop;
    QObject::connect(&job, &QKeychain::Job::finished, &loop, &QEventLoop::quit);
    job.start();
    loop.exec();
    if (job.error() != QKeychain::NoError && job.error() != QKeychain::EntryNotFound)
        qCWarning(orvoWindow) << "secret store:" << job.key() << "-" << job.errorString();
    return job.error() == QKeychain::NoError;
}

} // namespace

QString OVSecretStore::key(const QString &address, const QString &user, Part part) {
    return QStringLiteral("snmpv3:%1:%2:%3")
        .arg(address, user, part == Part::Auth ? QStringLiteral("auth") : QStringLiteral("priv"));
}

std::optional<QByteArray> OVSecretStore::read(const QString &address, const QString &user,
                                              Part part) {
    QKeychain::ReadPasswordJob job(QString::fromLatin1(serviceName));
    job.setKey(key(address, user, part));
    if (!run(job))
        return std::nullopt;
    return job.binaryData();
}

bool OVSecretStore::write(const QString &address, const QString &user, Part part,
                          const QByteArray &passphrase) {
    QKeychain::WritePasswordJob job(QString::fromLatin1(serviceName));
    job.setKey(key(address, user, part));
    job.setBinaryData(passphrase);
    return run(job);
}

void OVSecretStore::forget(const QString &address, const QString &user, Part part) {
    QKeychain::DeletePasswordJob job(QString::fromLatin1(serviceName));
    job.setKey(key(address, user, part));
    run(job);
}
