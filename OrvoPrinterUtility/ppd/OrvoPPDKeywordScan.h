#pragma once

#include "OrvoPPDRange.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

// The reader's per-keyword scans: one regular expression over the whole text
// for each question. They define the answers; OrvoPPD offers them under its
// own names, and OrvoPPDScanIndex answers the same questions from one pass,
// falling back to these for keywords that hold expression syntax.
class OrvoPPDKeywordScan {
public:
    using GroupRanges = QList<std::pair<QString, OrvoPPDRange>>;

    // The group of everything outside a named group.
    static constexpr char generalGroup[] = "General";

    // "General" first, then every "*OpenGroup:" name in text order.
    static QStringList groupNames(const QString &text);
    static OrvoPPDRange groupRange(const QString &text, const QString &keyword);
    // The first group whose range holds the item's location, else "General".
    static QString findGroupKey(const GroupRanges &groupRanges, OrvoPPDRange itemRange);
    static QStringList optionKeywords(const QString &text);
    static OrvoPPDRange optionRange(const QString &text, const QString &keyword);
    // The start range united with the character before the first occurrence
    // of the following "*OpenUI" line.
    static OrvoPPDRange uniteWithLineBefore(QStringView text, OrvoPPDRange start,
                                            QStringView followingLine);
};
