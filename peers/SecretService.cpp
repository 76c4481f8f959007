#include "SecretService.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#include <csignal>
#include <unistd.h>

namespace {

// The session lasts until the stop file appears or its starter is gone, even
// killed: dbus-run-session then ends the bus, and the keyring daemon leaves
// with it. A signal to dbus-run-session itself would leave the bus behind.
constexpr char kSession[] =
    "printf %s \"$KEYRING_PASSWORD\" | gnome-keyring-daemon --unlock --components=secrets "
    ">/dev/null || exit 1\n"
    "echo \"$DBUS_SESSION_BUS_ADDRESS\" > \"$HOME/bus.tmp\" && mv \"$HOME/bus.tmp\" \"$HOME/bus\"\n"
    "while [ ! -e \"$HOME/stop\" ] && kill -0 \"$STARTER\" 2>/dev/null; do sleep 0.2; done\n";

} // namespace

bool SecretService::start() {
    const QByteArray home = m_home.path().toUtf8();
    m_session.setEnvironment({{"HOME", home},
                              {"XDG_DATA_HOME", home + "/data"},
                              {"XDG_CONFIG_HOME", home + "/config"},
                              {"XDG_CACHE_HOME", home + "/cache"},
                              {"XDG_RUNTIME_DIR", home},
                              {"KEYRING_PASSWORD", "keyring-of-the-test"},
                              {"STARTER", QByteArray::number(getpid())}});
    if (!m_session.start("dbus-run-session", {"--", "sh", "-c", kSession})) {
        m_error = m_session.errorText();
        return false;
    }
    QFile bus(m_home.filePath("bus"));
    for (QDeadlineTimer deadline(20000); !bus.exists(); QThread::msleep(50)) {
        if (deadline.hasExpired() || !m_session.isRunning()) {
            m_error = QStringLiteral("the Secret Service did not start: ") +
                      QString::fromUtf8(m_session.standardError());
            return false;
        }
    }
    if (!bus.open(QIODevice::ReadOnly)) {
        m_error = bus.errorString();
        return false;
    }
    m_busAddress = QString::fromUtf8(bus.readAll().trimmed());
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_busAddress.toUtf8());
    return true;
}

SecretService::~SecretService() {
    QFile stop(m_home.filePath("stop"));
    if (!stop.open(QIODevice::WriteOnly) || !m_session.waitForFinished(10000))
        m_session.signal(SIGTERM);
}
