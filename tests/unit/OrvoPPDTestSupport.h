#pragma once

#include "OVSystemLog.h"
#include "OrvoPPD.h"

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

// Helpers shared by the PPD reader's tests.
namespace OrvoPPDTestSupport {

struct Closer {
    void operator()(ppd_file_t *ppd) const { OrvoPPD::ppdClose(ppd); }
};
using OpenedPPD = std::unique_ptr<ppd_file_t, Closer>;

// A file in a directory that lives as long as the object.
class TempPPD {
public:
    explicit TempPPD(const QByteArray &content)
        : path(dir.filePath("test.ppd").toUtf8()) {
        QFile file(QString::fromUtf8(path));
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
    }
    const char *filePath() const { return path.constData(); }
    OpenedPPD open() const { return OpenedPPD(OrvoPPD::ppdOpenFile(path.constData())); }

private:
    QTemporaryDir dir;
    QByteArray path;
};

// Death tests see standard error only; the reader's log line goes there.
inline void logToStandardError() {
    OVSystemLog::setSink(
        [](int, const QString &line) { fprintf(stderr, "%s\n", line.toUtf8().constData()); });
}

} // namespace OrvoPPDTestSupport
