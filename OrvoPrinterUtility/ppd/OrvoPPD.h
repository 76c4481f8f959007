#pragma once

#include "OrvoPPDKeywordScan.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cups/ppd.h>

// A PPD reader apart from the libcups parser: it reads the file as text with
// regular expressions and fills a structure in the libcups layout, which only
// ppdClose() below may free. Also finds, marks and localizes in such a
// structure. Holds no state.
class OrvoPPD {
public:
    using GroupRanges = OrvoPPDKeywordScan::GroupRanges;

    static constexpr char openErrorFormat[] = "[Driver] PPD file open Error!!! - %1";
    static constexpr char installedPPDFormat[] = "/etc/cups/ppd/%1.ppd";

    // Reading. Null when the file is not UTF-8 text, has no option, or has an
    // option without choices.
    static ppd_file_t *ppdOpenFile(const char *path);
    static void ppdClose(ppd_file_t *ppd);

    // Scanning a PPD text (OrvoPPDKeywordScan's scans).
    static QStringList groupKeyword(const QString &text);
    static OrvoPPDRange groupRange(const QString &text, const QString &keyword);
    // The group whose range holds the item's location, else "General".
    static QString findGroupKey(const GroupRanges &groupRanges, OrvoPPDRange itemRange);
    static QStringList optionKeywords(const QString &text);
    static OrvoPPDRange optionRagne(const QString &text, const QString &keyword);

    // Language and translations. A null QString stands for a missing value.
    static void getSystemVersion(int32_t *major, int32_t *middle, int32_t *minor);
    static QString getSystemLanguage(bool fullName);
    static QString ppdGetLanguage();
    static QString ppdGetAttributes(const QString &text, const QString &pattern, int idx);
    static QString ppdLocalGetLocalize(const QString &text, const QString &local,
                                       const QString &key, const QString &option);
    static bool isDefinePpdLocalLocalize(const QString &text, const QString &local,
                                         const QString &key, const QString &option);
    static int ppdLocalize(ppd_file_t *ppd, const char *ppdPath);

    // Queries and marks; a null structure finds nothing.
    static ppd_attr_t *ppdFindAttr(ppd_file_t *ppd, const char *attrName, const char *attrSpcec);
    static ppd_option_t *ppdFindOption(ppd_file_t *ppd, const char *optionKey);
    static ppd_choice_t *ppdFindChoice(ppd_option_t *option, const char *choiceKey);
    static int ppdMarkOption(ppd_file_t *ppd, const char *optionKey, const char *choiceKey);
    static void ppdMarkDefaults(ppd_file_t *ppd);
    static ppd_choice_t *ppdFindMarkedChoice(ppd_file_t *ppd, const char *optionKey);
    // The queue's installed PPD path; the caller owns the bytes.
    static QByteArray cupsGetPPD2(const char *name);

private:
    static bool readText(const char *path, QString &text);
    static QString translationPattern(const QString &local, const QString &key,
                                      const QString &option);
    static void localizeText(char *field, size_t size, const QString &block, const QString &text,
                             const QString &local, const QString &key, const QString &option);
};
