#include "OVSettingsRoute.h"

#include "OrvoSettingsKeywords.h"

#include <QList>
#include <QRegularExpression>

#include <algorithm>

namespace K = OrvoSettingsKeywords;

namespace {

using Lines = QList<QByteArray>; // each with its own line end

// Says what the set-up line is for, to an administrator reading the PPD.
constexpr char marker[] = "*% Orvo Printer Utility: this queue takes settings updates; "
                          "\"orvo-printer-utility-cli setup --remove QUEUE\" takes it out";
// What setting up added before the update job had a route of its own on the
// server: a comment, filter lines for the update job's format and, on a PPD
// without filter lines, a PostScript pass-through line. Any filter line stops
// cupsd's filters from counting the pages of a PostScript PPD, so setting up
// again and removing take all of it out.
constexpr char oldMarker[] = "*% Orvo Printer Utility: the settings update route; "
                             "\"orvo-printer-utility-cli setup --remove QUEUE\" takes it out";
constexpr char oldPostScriptPath[] = "*cupsFilter: \"application/vnd.cups-postscript 0 -\"";

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

QByteArray setUpLine() {
    return QByteArray("*") + K::setUpKeyword + ": \"" + K::setUpValue + "\"";
}

QByteArray saversStart() {
    return QByteArray("*") + K::saversKeyword + ": \"";
}

bool isOldRouteLine(const QByteArray &text) {
    return (text.startsWith("*cupsFilter:") || text.startsWith("*cupsFilter2:")) &&
           text.contains(K::updateDocumentFormat);
}

// The PPD without the lines setting up adds, old ones included. The
// PostScript line is ours only where setting up put it: right after the old
// comment. One the PPD had of its own stays.
Lines withoutSetUp(const QByteArray &ppd, bool keepSetUpLine) {
    Lines kept;
    bool afterOldMarker = false;
    for (const QByteArray &line : splitLines(ppd)) {
        const QByteArray text = content(line);
        const bool ours = (!keepSetUpLine && (text == marker || text == setUpLine())) ||
                          text == oldMarker || isOldRouteLine(text) ||
                          (afterOldMarker && text == oldPostScriptPath);
        afterOldMarker = text == oldMarker;
        if (!ours)
            kept << line;
    }
    return kept;
}

bool holds(const Lines &lines, const char *keyword) {
    const QByteArray start = QByteArray("*") + keyword + ":";
    return std::any_of(lines.begin(), lines.end(),
                       [&](const QByteArray &line) { return line.startsWith(start); });
}

// The settings keywords as one alternative of a regular expression.
QString settingsKeywords() {
    QStringList names;
    for (const K::Keyword &keyword : K::all) {
        if (keyword.encoding != K::Encoding::JobMarker)
            names << keyword.name;
    }
    return "(?:" + names.join('|') + ")";
}

// A settings line whose value is whole: a quoted value on one line, as the
// filter writes every setting. Captures the keyword and its setting without
// the part number.
const QRegularExpression &settingsLine() {
    static const QRegularExpression line(
        QStringLiteral("^\\*((%1\\d*)(?:_Part\\d)?): \"[^\"\\r\\n]*\"$").arg(settingsKeywords()));
    return line;
}

Lines settingsLines(const QByteArray &ppd) {
    Lines found;
    for (const QByteArray &line : splitLines(ppd)) {
        if (settingsLine().match(QString::fromLatin1(content(line))).hasMatch())
            found << content(line);
    }
    return found;
}

// The setting (keyword and index) whose later parts a cut PPD may have lost:
// the one its last, unfinished line belongs to, or, when it ends at a line
// end, the one in parts that its last settings line belongs to.
QString cutSetting(const QByteArray &ppd, const Lines &whole) {
    static const QRegularExpression partial(
        QStringLiteral("^\\*(%1\\d*)(?:_|:|$)").arg(settingsKeywords()));
    const Lines lines = splitLines(ppd);
    if (!lines.isEmpty() && content(lines.last()) == lines.last())
        return partial.match(QString::fromLatin1(lines.last())).captured(1);
    if (!whole.isEmpty() && whole.last().contains("_Part"))
        return settingsLine().match(QString::fromLatin1(whole.last())).captured(2);
    return {};
}

QByteArray keywordOf(const QByteArray &text) {
    return text.left(text.indexOf(':'));
}

} // namespace

bool OVSettingsRoute::isIn(const QByteArray &ppd) {
    const Lines lines = splitLines(ppd);
    return std::any_of(lines.begin(), lines.end(),
                       [](const QByteArray &line) { return content(line) == setUpLine(); });
}

// The new lines go right after the first one, where cupsd puts saved settings.
QByteArray OVSettingsRoute::added(const QByteArray &ppd) {
    Lines lines = withoutSetUp(ppd, true);
    const QByteArray end = lineEnd(lines);
    Lines block;
    if (!isIn(ppd))
        block << marker + end << setUpLine() + end;
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
    return withoutSetUp(ppd, false).join();
}

// The first line counts, as libcups reads it.
OrvoSavers OVSettingsRoute::savers(const QByteArray &ppd) {
    for (const QByteArray &line : splitLines(ppd)) {
        const QByteArray text = content(line);
        if (text.startsWith(saversStart()))
            return OrvoSavers::fromPpdValue(
                text.size() > saversStart().size() && text.endsWith('"')
                    ? text.mid(saversStart().size()).chopped(1).toStdString()
                    : std::string("\""));
    }
    return {};
}

QByteArray OVSettingsRoute::withSavers(const QByteArray &ppd, const OrvoSavers &savers) {
    Lines lines = splitLines(ppd);
    lines.removeIf([](const QByteArray &line) { return content(line).startsWith(saversStart()); });
    if (savers.everyone())
        return lines.join();
    const auto setUp = std::find_if(lines.begin(), lines.end(), [](const QByteArray &line) {
        return content(line) == setUpLine();
    });
    const qsizetype at =
        setUp != lines.end() ? setUp - lines.begin() + 1 : std::min<qsizetype>(1, lines.size());
    lines.insert(at,
                 saversStart() + QByteArray::fromStdString(savers.text()) + "\"" + lineEnd(lines));
    return lines.join();
}

bool OVSettingsRoute::looksCut(const QByteArray &ppd) {
    return !settingsLines(ppd).isEmpty() && !ppd.contains("\n*PageSize ");
}

QByteArray OVSettingsRoute::withSettingsOf(const QByteArray &fresh, const QByteArray &damaged) {
    Lines kept = settingsLines(damaged);
    const QString lost = looksCut(damaged) ? cutSetting(damaged, kept) : QString();
    kept.removeIf([&](const QByteArray &line) {
        return !lost.isEmpty() &&
               settingsLine().match(QString::fromLatin1(line)).captured(2) == lost;
    });
    QList<QByteArray> keywords;
    for (const QByteArray &line : kept)
        keywords << keywordOf(line);
    Lines lines;
    for (const QByteArray &line : splitLines(fresh)) {
        if (!keywords.contains(keywordOf(content(line))))
            lines << line;
    }
    const QByteArray end = lineEnd(lines);
    const qsizetype at = std::min<qsizetype>(1, lines.size());
    for (qsizetype i = 0; i < kept.size(); ++i)
        lines.insert(at + i, kept[i] + end);
    return lines.join();
}
