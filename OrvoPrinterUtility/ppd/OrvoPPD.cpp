#include "OrvoPPD.h"

#include "OVPreferredLanguages.h"
#include "OVSystemLog.h"
#include "OVSystemVersion.h"
#include "OrvoPPDReader.h"
#include "OrvoPPDRegex.h"
#include "OrvoPPDStructure.h"
#include "OrvoPPD_Interface.h"

#include <QFile>
#include <QStringDecoder>

#include <cstring>
#include <syslog.h>
#include <utility>

namespace {

constexpr QStringView optionTranslationPattern = u"(\u00A5*%@.Translation) (%@)/(.*?):";
constexpr QStringView choiceTranslationPattern = u"(\u00A5*%@.%@) (%@)/(.*?):";
constexpr QStringView languageBlockPattern = u"\\*%@\\..*";
constexpr int translationCapture = 3;

// How the system's language names map to the PPD's translation prefixes,
// tried in this order.
constexpr std::pair<QStringView, QStringView> ppdLanguages[] = {
    {u"en_US", u"en"},         {u"zh-Hans", u"zh_CN"}, {u"zh_HANS", u"zh_CN"},
    {u"zh-Hant", u"zh_TW"},    {u"zh_HANT", u"zh_TW"}, {u"zh-Hant_CN", u"zh_TW"},
    {u"zh-Hant-HK", u"zh_HK"},
};

QString capturedOrEmpty(const std::optional<OrvoPPDRegex::Match> &match, const QString &text,
                        int group) {
    return match && match->has(group) ? match->capture(text, group).toString() : QString("");
}

bool sameText(const char *a, const char *b) {
    return a && b && strcmp(a, b) == 0;
}

} // namespace

bool OrvoPPD::readText(const char *path, QString &text) {
    QFile file(QString::fromUtf8(path));
    if (!path || !file.open(QIODevice::ReadOnly))
        return false;
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    text = decoder.decode(file.readAll());
    return !decoder.hasError();
}

ppd_file_t *OrvoPPD::ppdOpenFile(const char *path) {
    QString text;
    if (!readText(path, text)) {
        OVSystemLog::write(LOG_ERR, QString::fromLatin1(openErrorFormat)
                                        .arg(path ? QString::fromUtf8(path) : QString("(null)")));
        return nullptr;
    }
    return OrvoPPDReader::createStructure(std::move(text));
}

void OrvoPPD::ppdClose(ppd_file_t *ppd) {
    OrvoPPDStructure::release(ppd);
}

QStringList OrvoPPD::groupKeyword(const QString &text) {
    return OrvoPPDKeywordScan::groupNames(text);
}

OrvoPPDRange OrvoPPD::groupRange(const QString &text, const QString &keyword) {
    return OrvoPPDKeywordScan::groupRange(text, keyword);
}

QString OrvoPPD::findGroupKey(const GroupRanges &groupRanges, OrvoPPDRange itemRange) {
    return OrvoPPDKeywordScan::findGroupKey(groupRanges, itemRange);
}

QStringList OrvoPPD::optionKeywords(const QString &text) {
    return OrvoPPDKeywordScan::optionKeywords(text);
}

OrvoPPDRange OrvoPPD::optionRagne(const QString &text, const QString &keyword) {
    return OrvoPPDKeywordScan::optionRange(text, keyword);
}

void OrvoPPD::getSystemVersion(int32_t *major, int32_t *middle, int32_t *minor) {
    OVSystemVersion::components(major, middle, minor);
}

QString OrvoPPD::getSystemLanguage(bool fullName) {
    int32_t major = 0;
    int32_t middle = 0;
    getSystemVersion(&major, &middle, nullptr);
    const QStringList preferred = OVPreferredLanguages::languages();
    // From 10.15 on the system puts its own language first; the user's is next.
    const bool takeSecond = (major == 11 || (major == 10 && middle >= 15)) && preferred.size() > 1;
    const QString language = preferred.isEmpty() ? QString("") : preferred[takeSecond ? 1 : 0];
    QStringList parts = language.split(u'-');
    const bool regionFolders = major == 11 || (major == 10 && middle >= 12);
    if (!regionFolders)
        return major == 10 && middle == 11 && language == u"zh-HK" ? QString("zh-Hant-HK")
                                                                   : language;
    if (fullName || parts.size() < 2 || language == u"zh-Hant-HK")
        return language;
    parts.removeLast();
    return parts.join(u'-');
}

QString OrvoPPD::ppdGetLanguage() {
    const QString language = getSystemLanguage(false);
    for (const auto &[system, ppd] : ppdLanguages)
        if (language == system)
            return ppd.toString();
    return language;
}

QString OrvoPPD::ppdGetAttributes(const QString &text, const QString &pattern, int idx) {
    if (text.isNull() || pattern.isNull())
        return QString("");
    return capturedOrEmpty(OrvoPPDRegex(pattern, true).findFirst(text, 0, text.size()), text, idx);
}

QString OrvoPPD::translationPattern(const QString &local, const QString &key,
                                    const QString &option) {
    if (local.isNull() || key.isNull())
        return QString();
    if (option.isNull())
        return OrvoPPDRegex::format(optionTranslationPattern, {local, key});
    return OrvoPPDRegex::format(choiceTranslationPattern, {local, key, option});
}

QString OrvoPPD::ppdLocalGetLocalize(const QString &text, const QString &local, const QString &key,
                                     const QString &option) {
    const QString pattern = translationPattern(local, key, option);
    if (text.isNull() || pattern.isNull())
        return QString("");
    return ppdGetAttributes(text, pattern, translationCapture);
}

bool OrvoPPD::isDefinePpdLocalLocalize(const QString &text, const QString &local,
                                       const QString &key, const QString &option) {
    const QString pattern = translationPattern(local, key, option);
    if (text.isNull() || pattern.isNull())
        return false;
    return OrvoPPDRegex(pattern, true).findFirst(text, 0, text.size()).has_value();
}

void OrvoPPD::localizeText(char *field, size_t size, const QString &block, const QString &text,
                           const QString &local, const QString &key, const QString &option) {
    const QString translation = ppdLocalGetLocalize(block, local, key, option);
    if (translation.isEmpty()) {
        if (isDefinePpdLocalLocalize(text, local, key, option))
            memset(field, 0, size);
        return;
    }
    // Cut by bytes, as the field is: possibly inside a multi-byte character.
    const QByteArray bytes = translation.toUtf8();
    memset(field, 0, size);
    memcpy(field, bytes.constData(), qMin(size_t(bytes.size()), size - 1));
}

int OrvoPPD::ppdLocalize(ppd_file_t *ppd, const char *ppdPath) {
    const QString language = ppdGetLanguage();
    QString text;
    if (!ppd || !readText(ppdPath, text))
        return 0;
    const auto lines =
        OrvoPPDRegex(OrvoPPDRegex::format(languageBlockPattern, {language})).findAll(text);
    const QString block =
        lines.empty() ? QString("")
                      : text.sliced(lines.front().spans[0].first,
                                    lines.back().spans[0].second - lines.front().spans[0].first);
    for (int g = 0; g < ppd->num_groups; ++g) {
        const ppd_group_t &group = ppd->groups[g];
        for (int o = 0; o < group.num_options; ++o) {
            ppd_option_t &option = group.options[o];
            const QString keyword = QString::fromUtf8(option.keyword);
            localizeText(option.text, sizeof option.text, block, text, language, keyword,
                         QString());
            for (int c = 0; c < option.num_choices; ++c)
                localizeText(option.choices[c].text, sizeof option.choices[c].text, block, text,
                             language, keyword, QString::fromUtf8(option.choices[c].choice));
        }
    }
    return 0;
}

ppd_attr_t *OrvoPPD::ppdFindAttr(ppd_file_t *ppd, const char *attrName, const char *attrSpcec) {
    if (!ppd || !attrName)
        return nullptr;
    const bool anySpec = !attrSpcec || !*attrSpcec;
    for (int i = 0; i < ppd->num_attrs; ++i) {
        ppd_attr_t *attribute = ppd->attrs[i];
        if (sameText(attribute->name, attrName) &&
            (anySpec || sameText(attribute->spec, attrSpcec)))
            return attribute;
    }
    return nullptr;
}

ppd_option_t *OrvoPPD::ppdFindOption(ppd_file_t *ppd, const char *optionKey) {
    if (!ppd)
        return nullptr;
    for (int g = 0; g < ppd->num_groups; ++g)
        for (int o = 0; o < ppd->groups[g].num_options; ++o)
            if (sameText(ppd->groups[g].options[o].keyword, optionKey))
                return &ppd->groups[g].options[o];
    return nullptr;
}

ppd_choice_t *OrvoPPD::ppdFindChoice(ppd_option_t *option, const char *choiceKey) {
    if (!option)
        return nullptr;
    for (int c = 0; c < option->num_choices; ++c)
        if (sameText(option->choices[c].choice, choiceKey))
            return &option->choices[c];
    return nullptr;
}

int OrvoPPD::ppdMarkOption(ppd_file_t *ppd, const char *optionKey, const char *choiceKey) {
    if (!choiceKey)
        return 0;
    ppd_option_t *option = ppd && optionKey ? r_ppdFindOption(ppd, optionKey) : nullptr;
    if (!option || option->num_choices == 0)
        return 1;
    int chosen = -1;
    for (int c = 0; c < option->num_choices && chosen < 0; ++c)
        if (sameText(option->choices[c].choice, choiceKey))
            chosen = c;
    if (chosen < 0)
        return 1;
    for (int c = 0; c < option->num_choices; ++c)
        option->choices[c].marked = c == chosen;
    return 1;
}

void OrvoPPD::ppdMarkDefaults(ppd_file_t *ppd) {
    if (!ppd)
        return;
    for (int g = 0; g < ppd->num_groups; ++g) {
        for (int o = 0; o < ppd->groups[g].num_options; ++o) {
            ppd_option_t &option = ppd->groups[g].options[o];
            for (int c = 0; c < option.num_choices; ++c)
                option.choices[c].marked = sameText(option.choices[c].choice, option.defchoice);
        }
    }
}

ppd_choice_t *OrvoPPD::ppdFindMarkedChoice(ppd_file_t *ppd, const char *optionKey) {
    ppd_option_t *option = ppd && optionKey ? r_ppdFindOption(ppd, optionKey) : nullptr;
    if (!option)
        return nullptr;
    for (int c = 0; c < option->num_choices; ++c)
        if (option->choices[c].marked == 1)
            return &option->choices[c];
    return nullptr;
}

QByteArray OrvoPPD::cupsGetPPD2(const char *name) {
    return QString::fromLatin1(installedPPDFormat).arg(QString::fromUtf8(name)).toUtf8();
}
