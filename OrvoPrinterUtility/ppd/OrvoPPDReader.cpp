#include "OrvoPPDReader.h"

#include "OrvoPPDGroupLookup.h"
#include "OrvoPPDLogging.h"
#include "OrvoPPDStructure.h"

namespace {

constexpr QStringView customChoice = u"Custom";
constexpr QStringView pageRegion = u"PageRegion";
constexpr QStringView advancedGroupEnd = u"*CloseGroup: Advanced";

} // namespace

QString OrvoPPDReader::readPart(QString text) {
    const qsizetype cut = text.indexOf(advancedGroupEnd);
    if (cut >= 0)
        text.truncate(cut + advancedGroupEnd.size());
    return text;
}

ppd_file_t *OrvoPPDReader::createStructure(QString text) {
    const QString part = readPart(std::move(text));
    const OrvoPPDScanIndex index(part);
    const std::optional<OrvoPPDModel> model = read(part, index);
    if (!model) {
        qCInfo(orvoPPD) << "no option, or an option without choices, in" << part.size()
                        << "characters read";
        return nullptr;
    }
    return OrvoPPDStructure::create(*model, index.attributes());
}

std::optional<OrvoPPDModel> OrvoPPDReader::read(const QString &text,
                                                const OrvoPPDScanIndex &index) {
    OrvoPPDModel model;
    model.groupNames = index.groupKeywords();
    OrvoPPDKeywordScan::GroupRanges ranges;
    for (const QString &name : std::as_const(model.groupNames)) {
        if (model.groups.contains(name))
            continue;
        model.groups.insert(name, {});
        ranges.append({name, index.groupRange(name)});
    }
    const QStringList &keywords = index.optionKeywords();
    if (keywords.isEmpty())
        return std::nullopt;
    const OrvoPPDGroupLookup groups(ranges);
    for (const QString &keyword : keywords) {
        const OrvoPPDRange range = index.optionRange(keyword);
        const QString group = groups.find(range);
        if (range.isNotFound() || range.location < 0 || range.end() > text.size())
            continue;
        std::optional<OrvoPPDModel::Option> option = readOption(range, keyword, index);
        if (!option)
            return std::nullopt;
        OrvoPPDModel::Group &target = model.groups[group];
        target.keys.append(keyword);
        target.options.insert(keyword, std::move(*option));
    }
    return model;
}

std::optional<OrvoPPDModel::Option> OrvoPPDReader::readOption(OrvoPPDRange range,
                                                              const QString &keyword,
                                                              const OrvoPPDScanIndex &index) {
    OrvoPPDModel::Option option;
    option.text = index.optionText(keyword, range);
    option.defaultChoice = index.defaultChoice(keyword, range);
    option.choices = index.choices(keyword, range);
    const QList<QStringView> customCodes = index.customCodes(keyword);
    if (option.choices.isEmpty() && customCodes.isEmpty())
        return std::nullopt;
    for (const QStringView code : customCodes)
        option.choices.append({customChoice, customChoice, code});
    if (keyword == pageRegion)
        option.choices.append({customChoice, customChoice, OrvoPPDModel::emptyCode});
    return option;
}
