#pragma once

#include "OVPreferredLanguages.h"
#include "OVSystemLog.h"
#include "OVSystemVersion.h"
#include "OrvoPPD.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>
#include <span>

// Helpers shared by the PPD reader's and the platform seams' tests.
namespace OrvoPPDTestSupport {

using Lines = std::vector<std::string>;
struct Closer {
    void operator()(ppd_file_t *ppd) const { OrvoPPD::ppdClose(ppd); }
};
using OpenedPPD = std::unique_ptr<ppd_file_t, Closer>;

// A file in a directory that lives as long as the object.
struct TempPPD {
    explicit TempPPD(const QByteArray &content) {
        QFile file(dir.filePath("test.ppd"));
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
    }
    const char *filePath() const { return path.constData(); }
    OpenedPPD open() const { return OpenedPPD(OrvoPPD::ppdOpenFile(filePath())); }

    QTemporaryDir dir;
    QByteArray path = dir.filePath("test.ppd").toUtf8();
};

// One line per option, "<group index><group name and text> keyword 'text'
// =default" and its choices as [key/text/code], "-" for no code; then, when
// asked, one "name: value" line per attribute.
inline Lines describe(const ppd_file_t *ppd, bool withAttributes = false) {
    Lines lines;
    for (int g = 0; g < ppd->num_groups; ++g) {
        const ppd_group_t &group = ppd->groups[g];
        for (const ppd_option_t &o : std::span(group.options, size_t(group.num_options))) {
            std::string line = std::to_string(g) + group.name + group.text + " " + o.keyword +
                               " '" + o.text + "' =" + o.defchoice;
            for (const ppd_choice_t &c : std::span(o.choices, size_t(o.num_choices)))
                line += std::string(" [") + c.choice + "/" + c.text + "/" +
                        (c.code ? c.code : "-") + "]";
            lines.push_back(line);
        }
    }
    for (int i = 0; withAttributes && i < ppd->num_attrs; ++i)
        lines.push_back(std::string(ppd->attrs[i]->name) + ": " + ppd->attrs[i]->value);
    return lines;
}

// Death tests see standard error only; the reader's log line goes there.
inline void logToStandardError() {
    OVSystemLog::setSink(
        [](int, const QString &line) { fprintf(stderr, "%s\n", line.toUtf8().constData()); });
}

// The system version (no plist for none) and the preferred languages while
// the object lives.
struct Platform {
    Platform(const char *version, const QStringList &languages) {
        QFile file(dir.filePath("SystemVersion.plist"));
        if (version && file.open(QIODevice::WriteOnly))
            file.write(QByteArray("<plist><dict><key>ProductVersion</key><string>") + version +
                       "</string></dict></plist>");
        OVSystemVersion::setPlistPath(file.fileName());
        OVPreferredLanguages::setOverride(languages);
    }
    ~Platform() {
        OVSystemVersion::setPlistPath(QString());
        OVPreferredLanguages::setOverride(std::nullopt);
    }
    QTemporaryDir dir;
};

} // namespace OrvoPPDTestSupport
