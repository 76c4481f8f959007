#include "OVSettingsRoute.h"

#include "OrvoSettingsKeywords.h"

#include <QList>

#include <algorithm>

namespace K = OrvoSettingsKeywords;

namespace {

using Lines = QList<QByteArray>; // each with its own line end

constexpr char filterKeyword[] = "*cupsFilter:";
constexpr char filter2Keyword[] = "*cupsFilter2:";
// Marks the block that setting up adds, so that removing takes out exactly it.
constexpr char marker[] = "*% Orvo Printer Utility: the settings update route; "
                          "\"orvo-printer-utility-cli setup --remove QUEUE\" takes it out";
// cupsd sends PostScript straight to the device only while a PPD names no
// filter at all; once the route is there, this line keeps that path.
constexpr char postScriptPath[] = "*cupsFilter: \"application/vnd.cups-postscript 0 -\"";

struct StoredDefault {
    const char *keyword;
    const char *value;
};
// The settings whose absence the reader takes for these same values; written
// out so that an administrator sees them in the PPD.
constexpr StoredDefault storedDefaults[] = {
    {K::PPDOptionsUpdated, "0"},
    {K::IsCustomSnmpCommunity, "0"},
    {K::SnmpCommunityName, "Y29iYWx0"}, // base64 of the default community
    {K::IsWakeOnLan, "1"},
    {K::IsOverTheRouter, "0"},
    {K::UsePersonalFolder, "0"},
    {K::AdminLoginModeEnabled, "1"},
};

Lines splitLines(const QByteArray &text) {
    Lines lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' || (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n'))) {
            lines << text.mid(start, i + 1 - start);
            start = i + 1;
        }
    }
    if (start < text.size())
        lines << text.mid(start);
    return lines;
}

QByteArray content(const QByteArray &line) {
    QByteArray text = line;
    while (text.endsWith('\n') || text.endsWith('\r'))
        text.chop(1);
    return text;
}

// The PPD's own line end, so that added lines match the rest.
QByteArray lineEnd(const Lines &lines) {
    if (lines.isEmpty())
        return "\n";
    const QByteArray first = lines.first();
    return first.endsWith("\r\n") ? "\r\n" : first.endsWith('\r') ? "\r" : "\n";
}

bool isFilterLine(const QByteArray &line) {
    return line.startsWith(filterKeyword) || line.startsWith(filter2Keyword);
}

bool isRouteLine(const QByteArray &line) {
    return isFilterLine(line) && line.contains(K::updateDocumentFormat);
}

QByteArray routeLine(const Lines &lines) {
    const bool filter2 = std::any_of(lines.begin(), lines.end(), [](const QByteArray &line) {
        return line.startsWith(filter2Keyword);
    });
    const QByteArray format = K::updateDocumentFormat;
    return filter2 ? QByteArray(filter2Keyword) + " \"" + format + " " + format + " 0 " +
                         K::driverFilter + "\""
                   : QByteArray(filterKeyword) + " \"" + format + " 0 " + K::driverFilter + "\"";
}

bool holds(const Lines &lines, const char *keyword) {
    const QByteArray start = QByteArray("*") + keyword + ":";
    return std::any_of(lines.begin(), lines.end(),
                       [&](const QByteArray &line) { return line.startsWith(start); });
}

} // namespace

bool OVSettingsRoute::isIn(const QByteArray &ppd) {
    const Lines lines = splitLines(ppd);
    return std::any_of(lines.begin(), lines.end(), isRouteLine);
}

// The new lines go right after the first one, where cupsd puts saved settings.
QByteArray OVSettingsRoute::added(const QByteArray &ppd) {
    Lines lines = splitLines(ppd);
    const QByteArray end = lineEnd(lines);
    Lines block;
    if (!std::any_of(lines.begin(), lines.end(), isRouteLine)) {
        block << marker + end;
        if (!std::any_of(lines.begin(), lines.end(), isFilterLine))
            block << postScriptPath + end;
        block << routeLine(lines) + end;
    }
    for (const auto &[keyword, value] : storedDefaults) {
        if (!holds(lines, keyword))
            block << QByteArray("*") + keyword + ": \"" + value + "\"" + end;
    }
    const qsizetype at = std::min<qsizetype>(1, lines.size());
    for (qsizetype i = 0; i < block.size(); ++i)
        lines.insert(at + i, block[i]);
    return lines.join();
}

QByteArray OVSettingsRoute::removed(const QByteArray &ppd) {
    Lines kept;
    bool afterMarker = false;
    for (const QByteArray &line : splitLines(ppd)) {
        const QByteArray text = content(line);
        // The PostScript line is ours only where setting up put it: right
        // after the marker. One the PPD had of its own stays.
        const bool ours =
            text == marker || isRouteLine(text) || (afterMarker && text == postScriptPath);
        afterMarker = text == marker;
        if (!ours)
            kept << line;
    }
    return kept.join();
}
