#include "OrvoPPDKeywordScan.h"

#include "OrvoPPDRegex.h"

namespace {

constexpr QStringView groupNamePattern = u"\\*OpenGroup:[ ]*(.*?)/.*";
constexpr QStringView groupOpenPattern = u"\\*OpenGroup:[ ]*%@?/.*";
constexpr QStringView groupClosePattern = u"\\*CloseGroup:[ ]*%@";
constexpr QStringView optionKeywordPattern = u"OpenUI \\*(.*?)/";
constexpr QStringView optionStartPattern = u"\\*OpenUI.*(\\*%@?)/.*";
constexpr QStringView optionEndPattern = u"\\*CloseUI:.*%@[ ]*\\n";
constexpr QStringView anyOpenUIPattern = u"\\*OpenUI.*";
constexpr QStringView optionTextPattern = u"\\*OpenUI.*\\*%@?/(.*):";
constexpr QStringView defaultChoicePattern = u"\\*Default%@:[ ]*(.*)";
constexpr QStringView choicePattern = u"\\*%@[ ]+(.*?)/(.*?):.*\"(.*)\"";
constexpr QStringView customChoicePattern = u"\\*Custom%@[ ]+(.*?):.*\"(.*)\"";

OrvoPPDRange wholeRange(const std::optional<OrvoPPDRegex::Match> &match) {
    if (!match)
        return {};
    return {match->spans[0].first, match->spans[0].second - match->spans[0].first};
}

QStringList firstCaptures(const QString &text, QStringView pattern) {
    QStringList captures;
    for (const OrvoPPDRegex::Match &match : OrvoPPDRegex(pattern.toString()).findAll(text))
        captures.append(match.capture(text, 1).toString());
    return captures;
}

std::optional<QStringView> lastCapture(const QString &text, OrvoPPDRange range, QStringView pattern,
                                       const QString &keyword) {
    const auto match = OrvoPPDRegex(OrvoPPDRegex::format(pattern, {keyword}))
                           .findLast(text, range.location, range.end());
    if (!match || !match->has(1))
        return std::nullopt;
    return match->capture(text, 1);
}

} // namespace

QStringList OrvoPPDKeywordScan::groupNames(const QString &text) {
    return QStringList{QString::fromLatin1(generalGroup)} + firstCaptures(text, groupNamePattern);
}

OrvoPPDRange OrvoPPDKeywordScan::groupRange(const QString &text, const QString &keyword) {
    const OrvoPPDRange open =
        wholeRange(OrvoPPDRegex(OrvoPPDRegex::format(groupOpenPattern, {keyword}))
                       .findFirst(text, 0, text.size()));
    const OrvoPPDRange close =
        wholeRange(OrvoPPDRegex(OrvoPPDRegex::format(groupClosePattern, {keyword}))
                       .findFirst(text, 0, text.size()));
    if (open.isNotFound() || close.isNotFound())
        return {};
    return OrvoPPDRange::unite(open, close);
}

QString OrvoPPDKeywordScan::findGroupKey(const GroupRanges &groupRanges, OrvoPPDRange itemRange) {
    for (const auto &[name, range] : groupRanges)
        if (range.containsLocation(itemRange.location))
            return name;
    return QString::fromLatin1(generalGroup);
}

QStringList OrvoPPDKeywordScan::optionKeywords(const QString &text) {
    return firstCaptures(text, optionKeywordPattern);
}

OrvoPPDRange OrvoPPDKeywordScan::optionRange(const QString &text, const QString &keyword) {
    const OrvoPPDRange start =
        wholeRange(OrvoPPDRegex(OrvoPPDRegex::format(optionStartPattern, {keyword}))
                       .findLast(text, 0, text.size()));
    const OrvoPPDRange end =
        wholeRange(OrvoPPDRegex(OrvoPPDRegex::format(optionEndPattern, {keyword}))
                       .findLast(text, 0, text.size()));
    if (!end.isNotFound())
        return OrvoPPDRange::unite(start, end);
    const auto following =
        OrvoPPDRegex(anyOpenUIPattern.toString()).findFirst(text, start.end(), text.size());
    if (!following)
        return OrvoPPDRange::unite(start, {});
    const OrvoPPDRange line = wholeRange(following);
    return uniteWithLineBefore(text, start, QStringView(text).sliced(line.location, line.length));
}

std::optional<QStringView>
OrvoPPDKeywordScan::optionText(const QString &text, const QString &keyword, OrvoPPDRange range) {
    return lastCapture(text, range, optionTextPattern, keyword);
}

std::optional<QStringView>
OrvoPPDKeywordScan::defaultChoice(const QString &text, const QString &keyword, OrvoPPDRange range) {
    return lastCapture(text, range, defaultChoicePattern, keyword);
}

QList<OrvoPPDModel::Choice> OrvoPPDKeywordScan::choices(const QString &text, const QString &keyword,
                                                        OrvoPPDRange range) {
    QList<OrvoPPDModel::Choice> found;
    const OrvoPPDRegex choice(OrvoPPDRegex::format(choicePattern, {keyword}));
    for (const OrvoPPDRegex::Match &match : choice.findAll(text, range.location, range.end()))
        found.append({match.capture(text, 1), match.capture(text, 2), match.capture(text, 3)});
    return found;
}

QList<QStringView> OrvoPPDKeywordScan::customCodes(const QString &text, const QString &keyword) {
    QList<QStringView> codes;
    const OrvoPPDRegex custom(OrvoPPDRegex::format(customChoicePattern, {keyword}));
    for (const OrvoPPDRegex::Match &match : custom.findAll(text))
        codes.append(match.capture(text, 2));
    return codes;
}

// The option without a close line ends on the character before the first
// place where the following "*OpenUI" line's text occurs. When that place is
// the text's very start there is no character before it, and the option is
// its start line alone.
OrvoPPDRange OrvoPPDKeywordScan::uniteWithLineBefore(QStringView text, OrvoPPDRange start,
                                                     QStringView followingLine) {
    const qsizetype first = text.indexOf(followingLine);
    if (first == 0)
        return start;
    return OrvoPPDRange::unite(start, {first - 1, 1});
}
