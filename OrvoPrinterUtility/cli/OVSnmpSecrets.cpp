#include "OVSnmpSecrets.h"

#include <QFile>

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace {

// Group and others may have no access at all, as ssh asks of a private key.
constexpr mode_t kOthersAccess = S_IRWXG | S_IRWXO;
constexpr qsizetype kLineLimit = 1024;

QByteArray withoutLineEnd(QByteArray line) {
    while (line.endsWith('\n') || line.endsWith('\r'))
        line.chop(1);
    return line;
}

} // namespace

OVSnmpSecrets::OVSnmpSecrets(const QString &file, bool withPrivacy) {
    if (!file.isEmpty())
        readFile(file);
    else
        readEnvironment();
    if (!withPrivacy)
        priv.clear();
    if (error)
        return;
    askMissing(withPrivacy);
    if (auth.isEmpty() || (withPrivacy && priv.isEmpty()))
        error = QStringLiteral("SNMPv3 needs the %1 passphrase: give it in --snmp-secrets FILE, in "
                               "%2, or on a terminal")
                    .arg(auth.isEmpty() ? "authentication" : "privacy",
                         auth.isEmpty() ? authName : privName);
}

// Opened without following a link, then checked on the descriptor read, so
// that the file checked is the file read.
void OVSnmpSecrets::readFile(const QString &file) {
    const int descriptor = open(QFile::encodeName(file).constData(), O_RDONLY | O_NOFOLLOW);
    struct stat status {};
    if (descriptor < 0 || fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        error = QStringLiteral("cannot read --snmp-secrets %1").arg(file);
    } else if (status.st_uid != geteuid() || (status.st_mode & kOthersAccess) != 0) {
        error = QStringLiteral("--snmp-secrets %1 must belong to you and be readable by you "
                               "alone (chmod 600)")
                    .arg(file);
    } else {
        QFile secrets;
        secrets.open(descriptor, QIODevice::ReadOnly);
        for (QByteArray line = secrets.readLine(kLineLimit); !line.isEmpty();
             line = secrets.readLine(kLineLimit)) {
            line = withoutLineEnd(line);
            if (line.startsWith(QByteArray(authName) + '='))
                auth = line.mid(qsizetype(sizeof authName));
            if (line.startsWith(QByteArray(privName) + '='))
                priv = line.mid(qsizetype(sizeof privName));
        }
    }
    if (descriptor >= 0)
        close(descriptor);
}

void OVSnmpSecrets::readEnvironment() {
    auth = qgetenv(authName);
    priv = qgetenv(privName);
}

void OVSnmpSecrets::askMissing(bool withPrivacy) {
    if (!isatty(STDIN_FILENO))
        return;
    if (auth.isEmpty())
        auth = ask("authentication");
    if (withPrivacy && priv.isEmpty())
        priv = ask("privacy");
}

// Read from the terminal with its echo off, restored whatever happens.
QByteArray OVSnmpSecrets::ask(const char *what) {
    std::fprintf(stderr, "SNMPv3 %s passphrase: ", what);
    std::fflush(stderr);
    termios saved{};
    const bool quiet = tcgetattr(STDIN_FILENO, &saved) == 0;
    if (quiet) {
        termios silent = saved;
        silent.c_lflag &= ~tcflag_t(ECHO);
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
    }
    QFile input;
    input.open(STDIN_FILENO, QIODevice::ReadOnly);
    const QByteArray line = withoutLineEnd(input.readLine(kLineLimit));
    if (quiet)
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &saved);
    std::fputc('\n', stderr);
    return line;
}
