#include "OrvoPPDReader.h"

#include "OrvoPPD.h"
#include "OrvoPPDRegex.h"

namespace {

constexpr QStringView optionTextPattern = u"\\*OpenUI.*\\*%@?/(.*):";
constexpr QStringView defaultChoicePattern = u"\\*Default%@:[ ]*(.*)";
constexpr QStringView choicePattern = u"\\*%@[ ]+(.*?)/(.*?):.*\"(.*)\"";
constexpr QStringView customChoice = u"Custom";
constexpr QStringView pageRegion = u"PageRegion";

std::optional<QString> lastCapture(const QString &text, OrvoPPDRange range, QStringView pattern,
                                   const QString &keyword) {
    const auto match = OrvoPPDRegex(OrvoPPDRegex::format(pattern, {keyword}))
                           .findLast(text, range.location, range.end());
    if (!match || !match->has(1))
        return std::nullopt;
    return match->capture(text, 1).toString();
}

} // namespace

std::optional<OrvoPPDModel> OrvoPPDReader::read(const QString &text,
                                                const OrvoPPDScanIndex &index) {
    OrvoPPDModel model;
    model.groupNames = index.groupKeywords();
    OrvoPPD::GroupRanges ranges;
    for (const QString &name : std::as_const(model.groupNames)) {
        if (model.groups.contains(name))
            continue;
        model.groups.insert(name, {});
        ranges.append({name, index.groupRange(name)});
    }
    const QStringList &keywords = index.optionKeywords();
    if (keywords.isEmpty())
        return std::nullopt;
    for (const QString &keyword : keywords) {
        const OrvoPPDRange range = index.optionRange(keyword);
        const QString group = OrvoPPD::findGroupKey(ranges, range);
        if (range.isNotFound() || range.location < 0 || range.end() > text.size())
            continue;
        std::optional<OrvoPPDModel::Option> option = readOption(text, range, keyword, index);
        if (!option)
            return std::nullopt;
        OrvoPPDModel::Group &target = model.groups[group];
        target.keys.append(keyword);
        target.options.insert(keyword, std::move(*option));
    }
    return model;
}

std::optional<OrvoPPDModel::Option> OrvoPPDReader::readOption(const QString &text,
                                                              OrvoPPDRange range,
                                                              const QString &keyword,
                                                              const OrvoPPDScanIndex &index) {
    OrvoPPDModel::Option option;
    option.text = lastCapture(text, range, optionTextPattern, keyword);
    option.defaultChoice = lastCapture(text, range, defaultChoicePattern, keyword);
    const auto ordinary = OrvoPPDRegex(OrvoPPDRegex::format(choicePattern, {keyword}))
                              .findAll(text, range.location, range.end());
    const QStringList customCodes = index.customCodes(keyword);
    if (ordinary.empty() && customCodes.isEmpty())
        return std::nullopt;
    for (const OrvoPPDRegex::Match &match : ordinary)
        if (match.has(1) && match.has(2))
            option.choices.append({match.capture(text, 1).toString(),
                                   match.capture(text, 2).toString(),
                                   match.capture(text, 3).toString()});
    for (const QString &code : customCodes)
        option.choices.append({customChoice.toString(), customChoice.toString(), code});
    if (keyword == pageRegion)
        option.choices.append({customChoice.toString(), customChoice.toString(),
                               QString::fromUtf16(OrvoPPDModel::emptyCode)});
    return option;
}
