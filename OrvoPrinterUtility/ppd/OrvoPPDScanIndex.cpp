#include "OrvoPPDScanIndex.h"

#include "OrvoPPDKeywordScan.h"

#include <QSet>

#include <algorithm>

namespace {

constexpr QStringView openGroupTag = u"*OpenGroup:";
constexpr QStringView closeGroupTag = u"*CloseGroup:";
constexpr QStringView openUITag = u"*OpenUI";
constexpr QStringView closeUITag = u"*CloseUI:";
constexpr QStringView customTag = u"*Custom";
constexpr QStringView optionKeywordTag = u"OpenUI *";
constexpr QStringView expressionSyntax = u"\\^$.|?*+()[]{}#/";

// Every position of a literal in the text, in order.
std::vector<qsizetype> occurrences(QStringView text, QStringView literal) {
    std::vector<qsizetype> found;
    for (qsizetype at = text.indexOf(literal); at >= 0; at = text.indexOf(literal, at + 1))
        found.push_back(at);
    return found;
}

// The first position at or after a given one where a predicate holds, for
// queries that only move forward, so a whole scan stays linear.
template <typename Predicate> class ForwardFinder {
public:
    ForwardFinder(QStringView text, Predicate predicate)
        : m_text(text)
        , m_predicate(predicate) {}
    qsizetype next(qsizetype from) {
        if (m_found >= from)
            return m_found;
        m_found = from;
        while (m_found < m_text.size() && !m_predicate(m_text[m_found]))
            ++m_found;
        return m_found;
    }

private:
    QStringView m_text;
    Predicate m_predicate;
    qsizetype m_found = -1;
};

bool isPlainChar(QChar c) {
    return c.unicode() > 0x20 && c.unicode() < 0x7f && !expressionSyntax.contains(c);
}

template <typename Key, typename Value>
void insertFirst(QHash<Key, Value> &hash, const Key &key, const Value &value) {
    if (!hash.contains(key))
        hash.insert(key, value);
}

void addLine(std::vector<qsizetype> &lines, qsizetype line) {
    if (lines.empty() || lines.back() != line)
        lines.push_back(line);
}

} // namespace

bool OrvoPPDScanIndex::isLineTerminator(QChar c) {
    const char16_t u = c.unicode();
    return (u >= 0x0a && u <= 0x0d) || u == 0x85 || u == 0x2028 || u == 0x2029;
}

bool OrvoPPDScanIndex::isPlain(QStringView keyword) {
    return !keyword.isEmpty() && std::all_of(keyword.begin(), keyword.end(), isPlainChar);
}

OrvoPPDScanIndex::OrvoPPDScanIndex(const QString &text)
    : m_text(text) {
    indexGroups();
    for (qsizetype at = text.indexOf(optionKeywordTag); at >= 0;) {
        const qsizetype from = at + optionKeywordTag.size();
        qsizetype stop = from;
        while (stop < text.size() && text[stop] != u'/' && !isLineTerminator(text[stop]))
            ++stop;
        const bool matched = stop < text.size() && text[stop] == u'/';
        if (matched)
            m_options.append(text.sliced(from, stop - from));
        at = text.indexOf(optionKeywordTag, matched ? stop + 1 : at + 1);
    }
    indexOptionStarts();
    indexOptionEnds();
    indexCustomLines();
}

qsizetype OrvoPPDScanIndex::lineEnd(qsizetype position) const {
    while (position < m_text.size() && !isLineTerminator(m_text[position]))
        ++position;
    return position;
}

qsizetype OrvoPPDScanIndex::lineStart(qsizetype position) const {
    while (position > 0 && !isLineTerminator(m_text[position - 1]))
        --position;
    return position;
}

qsizetype OrvoPPDScanIndex::skipBlanks(qsizetype position) const {
    while (position < m_text.size() && m_text[position] == u' ')
        ++position;
    return position;
}

qsizetype OrvoPPDScanIndex::plainRunEnd(qsizetype position) const {
    while (position < m_text.size() && isPlainChar(m_text[position]))
        ++position;
    return position;
}

QList<qsizetype> OrvoPPDScanIndex::plainLengths(const QStringList &keywords) {
    QSet<qsizetype> lengths;
    for (const QString &keyword : keywords)
        if (isPlain(keyword))
            lengths.insert(keyword.size());
    QList<qsizetype> sorted(lengths.begin(), lengths.end());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

qsizetype OrvoPPDScanIndex::lastOf(const LineIndex &index, QStringView key) {
    const auto found = index.constFind(key);
    return found == index.constEnd() ? -1 : found->back();
}

// A group is named by its "*OpenGroup:" line up to the first slash, one per
// line; a group's own range starts at the first such line naming it (or its
// name less the last character) and ends after the first "*CloseGroup:" whose
// name starts with it.
void OrvoPPDScanIndex::indexGroups() {
    const QStringView view(m_text);
    ForwardFinder slashOrEnd(view, [](QChar c) { return c == u'/' || isLineTerminator(c); });
    qsizetype nextLine = 0;
    for (const qsizetype at : occurrences(view, openGroupTag)) {
        const qsizetype name = skipBlanks(at + openGroupTag.size());
        const qsizetype stop = slashOrEnd.next(name);
        if (stop == m_text.size() || m_text[stop] != u'/')
            continue;
        const QStringView token = view.sliced(name, stop - name);
        insertFirst(m_openGroupFirst, token, at);
        if (at >= nextLine) {
            m_groups.append(token.toString());
            nextLine = lineEnd(stop);
        }
    }
    m_groups.prepend(QString::fromLatin1(OrvoPPDKeywordScan::generalGroup));
    const QList<qsizetype> lengths = plainLengths(m_groups);
    for (const qsizetype at : occurrences(view, closeGroupTag)) {
        const qsizetype name = skipBlanks(at + closeGroupTag.size());
        const qsizetype run = plainRunEnd(name) - name;
        for (const qsizetype length : lengths) {
            if (length > run)
                break;
            insertFirst(m_closeGroupFirst, view.sliced(name, length), Line{at, name + length});
        }
    }
}

// The start pattern matches a line when, after the line's first "*OpenUI",
// an asterisk, the keyword (or the keyword less its last character) and a
// slash follow; a plain keyword holds neither asterisk nor slash, so the names
// between an asterisk and the next slash are all a line can match.
void OrvoPPDScanIndex::indexOptionStarts() {
    const QStringView view(m_text);
    m_openOccurrences = occurrences(view, openUITag);
    qsizetype currentLineEnd = -1;
    for (const qsizetype at : m_openOccurrences) {
        if (at <= currentLineEnd)
            continue;
        currentLineEnd = lineEnd(at);
        const qsizetype line = qsizetype(m_openLines.size());
        m_openLines.push_back({at, currentLineEnd});
        qsizetype star = -1;
        for (qsizetype i = at + openUITag.size(); i < currentLineEnd; ++i) {
            if (m_text[i] == u'*') {
                star = i;
            } else if (m_text[i] == u'/' && star >= 0) {
                addLine(m_openLinesByName[view.sliced(star + 1, i - star - 1)], line);
                star = -1;
            }
        }
    }
}

// The end pattern matches a line ended by a line feed whose text after its
// first "*CloseUI:", less trailing blanks, ends with the keyword.
void OrvoPPDScanIndex::indexOptionEnds() {
    const QStringView view(m_text);
    const QList<qsizetype> lengths = plainLengths(m_options);
    qsizetype currentLineEnd = -1;
    for (const qsizetype at : occurrences(view, closeUITag)) {
        if (at <= currentLineEnd)
            continue;
        currentLineEnd = lineEnd(at);
        if (currentLineEnd == m_text.size() || m_text[currentLineEnd] != u'\n')
            continue;
        const qsizetype line = qsizetype(m_closeLines.size());
        m_closeLines.push_back({at, currentLineEnd + 1});
        const qsizetype from = at + closeUITag.size();
        qsizetype end = currentLineEnd;
        while (end > from && m_text[end - 1] == u' ')
            --end;
        qsizetype run = end;
        while (run > from && isPlainChar(m_text[run - 1]))
            --run;
        for (const qsizetype length : lengths) {
            if (length > end - run)
                break;
            addLine(m_closeLinesBySuffix[view.sliced(end - length, length)], line);
        }
    }
}

// A custom line of a plain keyword has the keyword between "*Custom" and the
// first blank.
void OrvoPPDScanIndex::indexCustomLines() {
    const QStringView view(m_text);
    ForwardFinder blankOrEnd(view, [](QChar c) { return c == u' ' || isLineTerminator(c); });
    qsizetype currentStart = -1;
    qsizetype currentEnd = -1;
    for (const qsizetype at : occurrences(view, customTag)) {
        const qsizetype name = at + customTag.size();
        const qsizetype stop = blankOrEnd.next(name);
        if (stop == m_text.size() || m_text[stop] != u' ')
            continue;
        if (at > currentEnd) {
            currentStart = lineStart(at);
            currentEnd = lineEnd(at);
        }
        addLine(m_customLinesByName[view.sliced(name, stop - name)], currentStart);
    }
}

OrvoPPDRange OrvoPPDScanIndex::groupRange(const QString &name) const {
    if (!isPlain(name))
        return OrvoPPDKeywordScan::groupRange(m_text, name);
    const auto whole = m_openGroupFirst.constFind(name);
    const auto shorter = m_openGroupFirst.constFind(QStringView(name).chopped(1));
    const auto close = m_closeGroupFirst.constFind(name);
    if ((whole == m_openGroupFirst.constEnd() && shorter == m_openGroupFirst.constEnd()) ||
        close == m_closeGroupFirst.constEnd())
        return {};
    qsizetype open = whole == m_openGroupFirst.constEnd() ? *shorter : *whole;
    if (shorter != m_openGroupFirst.constEnd())
        open = qMin(open, *shorter);
    return OrvoPPDRange::unite({open, lineEnd(open) - open},
                               {close->start, close->end - close->start});
}

OrvoPPDRange OrvoPPDScanIndex::optionRange(const QString &keyword) const {
    if (!isPlain(keyword))
        return OrvoPPDKeywordScan::optionRange(m_text, keyword);
    const qsizetype line = qMax(lastOf(m_openLinesByName, keyword),
                                lastOf(m_openLinesByName, QStringView(keyword).chopped(1)));
    OrvoPPDRange start;
    if (line >= 0)
        start = {m_openLines[size_t(line)].start,
                 m_openLines[size_t(line)].end - m_openLines[size_t(line)].start};
    const qsizetype closeLine = lastOf(m_closeLinesBySuffix, keyword);
    if (closeLine < 0)
        return followingOpenEnd(start);
    const Line &close = m_closeLines[size_t(closeLine)];
    return OrvoPPDRange::unite(start, {close.start, close.end - close.start});
}

OrvoPPDRange OrvoPPDScanIndex::followingOpenEnd(OrvoPPDRange start) const {
    const auto next =
        std::lower_bound(m_openOccurrences.begin(), m_openOccurrences.end(), start.end());
    if (next == m_openOccurrences.end())
        return OrvoPPDRange::unite(start, {});
    return OrvoPPDKeywordScan::uniteWithLineBefore(
        m_text, start, QStringView(m_text).sliced(*next, lineEnd(*next) - *next));
}

OrvoPPDScanIndex::Line OrvoPPDScanIndex::lineWithin(qsizetype position, OrvoPPDRange range) const {
    qsizetype start = position;
    while (start > range.location && !isLineTerminator(m_text[start - 1]))
        --start;
    qsizetype end = position;
    while (end < range.end() && !isLineTerminator(m_text[end]))
        ++end;
    return {start, end};
}

// `:.*"(.*)"` from a position: the first colon, then the text between the
// line's last two double quotes, both after that colon.
std::optional<OrvoPPDScanIndex::QuotedCode> OrvoPPDScanIndex::quotedCode(Line line,
                                                                         qsizetype from) const {
    const QStringView view = QStringView(m_text).sliced(line.start, line.end - line.start);
    const qsizetype colon = view.indexOf(u':', from - line.start);
    const qsizetype last = view.lastIndexOf(u'"');
    const qsizetype secondLast = last > 0 ? view.lastIndexOf(u'"', last - 1) : -1;
    if (colon < 0 || secondLast <= colon)
        return std::nullopt;
    return QuotedCode{line.start + colon, line.start + secondLast + 1, line.start + last};
}

// The slash after the rightmost "*keyword/" (or "*keywor/") that starts at or
// after `from` and ends before `before`, or -1.
qsizetype OrvoPPDScanIndex::translationSlash(qsizetype from, qsizetype before,
                                             const QString &keyword) const {
    const QStringView view(m_text);
    const QStringView shorter = QStringView(keyword).chopped(1);
    for (qsizetype star = view.lastIndexOf(u'*', before - 1); star >= from;
         star = star > 0 ? view.lastIndexOf(u'*', star - 1) : -1) {
        for (const QStringView name : {QStringView(keyword), shorter}) {
            const qsizetype slash = star + 1 + name.size();
            if (slash < before && m_text[slash] == u'/' &&
                view.sliced(star + 1, name.size()) == name)
                return slash;
        }
    }
    return -1;
}

std::optional<QStringView> OrvoPPDScanIndex::optionText(const QString &keyword,
                                                        OrvoPPDRange range) const {
    if (!isPlain(keyword))
        return OrvoPPDKeywordScan::optionText(m_text, keyword, range);
    auto next = std::lower_bound(m_openOccurrences.begin(), m_openOccurrences.end(),
                                 range.end() - openUITag.size() + 1);
    const auto first =
        std::lower_bound(m_openOccurrences.begin(), m_openOccurrences.end(), range.location);
    while (next != first) {
        const Line line = lineWithin(*(next - 1), range);
        while (next != first && *(next - 1) >= line.start)
            --next;
        // The line's first "*OpenUI" starts the match; the text runs to the last colon.
        const qsizetype colon =
            QStringView(m_text).sliced(line.start, line.end - line.start).lastIndexOf(u':');
        const qsizetype slash =
            colon < 0 ? -1
                      : translationSlash(*next + openUITag.size(), line.start + colon, keyword);
        if (slash >= 0)
            return QStringView(m_text).sliced(slash + 1, line.start + colon - slash - 1);
    }
    return std::nullopt;
}

std::optional<QStringView> OrvoPPDScanIndex::defaultChoice(const QString &keyword,
                                                           OrvoPPDRange range) const {
    if (!isPlain(keyword))
        return OrvoPPDKeywordScan::defaultChoice(m_text, keyword, range);
    const QString needle = QStringLiteral("*Default") + keyword + u':';
    const QStringView own = QStringView(m_text).sliced(range.location, range.length);
    const qsizetype last = own.lastIndexOf(needle);
    if (last < 0)
        return std::nullopt;
    const Line line = lineWithin(range.location + last, range);
    const qsizetype first = own.indexOf(needle, line.start - range.location) + range.location;
    qsizetype value = first + needle.size();
    while (value < line.end && m_text[value] == u' ')
        ++value;
    return QStringView(m_text).sliced(value, line.end - value);
}

QList<OrvoPPDModel::Choice> OrvoPPDScanIndex::choices(const QString &keyword,
                                                      OrvoPPDRange range) const {
    if (!isPlain(keyword))
        return OrvoPPDKeywordScan::choices(m_text, keyword, range);
    QList<OrvoPPDModel::Choice> found;
    // One match at most per line, from the line's first "*keyword ".
    const QString needle = u'*' + keyword + u' ';
    const QStringView own = QStringView(m_text).sliced(range.location, range.length);
    for (qsizetype at = own.indexOf(needle); at >= 0;) {
        const Line line = lineWithin(range.location + at, range);
        qsizetype key = range.location + at + needle.size();
        while (key < line.end && m_text[key] == u' ')
            ++key;
        const qsizetype slash = QStringView(m_text).sliced(key, line.end - key).indexOf(u'/');
        if (slash >= 0) {
            if (const auto code = quotedCode(line, key + slash + 1))
                found.append(
                    {QStringView(m_text).sliced(key, slash),
                     QStringView(m_text).sliced(key + slash + 1, code->colon - key - slash - 1),
                     QStringView(m_text).sliced(code->start, code->end - code->start)});
        }
        at = line.end - range.location < own.size() ? own.indexOf(needle, line.end - range.location)
                                                    : -1;
    }
    return found;
}

QList<QStringView> OrvoPPDScanIndex::customCodes(const QString &keyword) const {
    if (!isPlain(keyword))
        return OrvoPPDKeywordScan::customCodes(m_text, keyword);
    QList<QStringView> codes;
    const auto lines = m_customLinesByName.constFind(keyword);
    if (lines == m_customLinesByName.constEnd())
        return codes;
    const QString needle = customTag.toString() + keyword + u' ';
    for (const qsizetype start : *lines) {
        const Line line{start, lineEnd(start)};
        qsizetype name =
            QStringView(m_text).sliced(start, line.end - start).indexOf(needle) + start;
        name += needle.size();
        while (name < line.end && m_text[name] == u' ')
            ++name;
        if (const auto code = quotedCode(line, name))
            codes.append(QStringView(m_text).sliced(code->start, code->end - code->start));
    }
    return codes;
}

// Each attribute starts at the first asterisk from which a colon comes before
// any blank; its value runs from after the colon's blanks to the line's end,
// where the next search starts.
std::vector<OrvoPPDScanIndex::Attribute> OrvoPPDScanIndex::attributes() const {
    const QStringView view(m_text);
    ForwardFinder colon(view, [](QChar c) { return c == u':'; });
    ForwardFinder blank(view, [](QChar c) { return c == u' '; });
    std::vector<Attribute> found;
    for (qsizetype star = view.indexOf(u'*'); star >= 0;) {
        const qsizetype nameEnd = colon.next(star + 1);
        if (nameEnd < m_text.size() && nameEnd < blank.next(star + 1)) {
            const qsizetype value = skipBlanks(nameEnd + 1);
            const qsizetype valueEnd = lineEnd(value);
            found.push_back(
                {view.sliced(star + 1, nameEnd - star - 1), view.sliced(value, valueEnd - value)});
            star = view.indexOf(u'*', valueEnd);
        } else {
            star = view.indexOf(u'*', star + 1);
        }
    }
    return found;
}
