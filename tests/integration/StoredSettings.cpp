#include "StoredSettings.h"

#include "OrvoSettingsKeywords.h"

#include <QRegularExpression>
#include <QTemporaryFile>

#include <cups/ppd.h>

#include <algorithm>

namespace K = OrvoSettingsKeywords;

StoredSettings::Values StoredSettings::completeSet(int save) {
    Values values;
    for (const K::Keyword &keyword : K::all) {
        for (int i = 0; i < std::max(keyword.indexCount, 1); ++i) {
            const std::string base = keyword.name + (keyword.indexCount ? std::to_string(i) : "");
            const std::string tag = base64(std::to_string(save) + ":" + base);
            switch (keyword.encoding) {
            case K::Encoding::JobMarker:
                break;
            case K::Encoding::Flag:
                values[base] = save % 2 ? "1" : "0";
                break;
            case K::Encoding::Decimal:
                values[base] = std::to_string(save * 1000 + i);
                break;
            case K::Encoding::Base64:
                values[base] = tag;
                break;
            case K::Encoding::MultiPart:
                for (int part = 1; part <= K::partCount; ++part)
                    values[base + "_Part" + std::to_string(part)] = part == 1 ? tag : "";
                break;
            }
        }
    }
    return values;
}

StoredSettings::Values StoredSettings::in(const QByteArray &ppd) {
    static const QRegularExpression attribute(QStringLiteral("^\\*(\\w+): \"([^\"]*)\"$"));
    static const Values known = completeSet(0);
    Values values;
    for (const QByteArray &line : lines(ppd)) {
        const QRegularExpressionMatch match = attribute.match(QString::fromLatin1(line));
        const std::string name = match.captured(1).toStdString();
        if (match.hasMatch() && known.contains(name))
            values[name] = match.captured(2).toStdString();
    }
    return values;
}

bool StoredSettings::isSettingLine(const QByteArray &line) {
    return !in(line).empty();
}

QList<QByteArray> StoredSettings::lines(const QByteArray &ppd) {
    QList<QByteArray> lines = ppd.split('\n');
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

bool StoredSettings::opensWithLibcups(const QByteArray &ppd) {
    QTemporaryFile file;
    if (!file.open() || file.write(ppd) != ppd.size() || !file.flush())
        return false;
    ppd_file_t *opened = ppdOpenFile(file.fileName().toUtf8().constData());
    ppdClose(opened);
    return opened != nullptr;
}

std::string StoredSettings::base64(const std::string &text) {
    char encoded[4096] = {};
    httpEncode64_2(encoded, sizeof encoded, text.data(), int(text.size()));
    return encoded;
}
