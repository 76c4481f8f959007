#pragma once

#include "OrvoPPDModel.h"
#include "OrvoPPDRange.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

// The reader's per-keyword scans: one regular expression for each question
// about a keyword. They define the answers; OrvoPPD offers the group and
// option scans under its own names, and OrvoPPDScanIndex answers the same
// questions from one pass, falling back to these for keywords that hold
// expression syntax.
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
    // Within the option's own text: its translation, its default choice and
    // its choices, as the last (or every) match.
    static std::optional<QStringView> optionText(const QString &text, const QString &keyword,
                                                 OrvoPPDRange range);
    static std::optional<QStringView> defaultChoice(const QString &text, const QString &keyword,
                                                    OrvoPPDRange range);
    static QList<OrvoPPDModel::Choice> choices(const QString &text, const QString &keyword,
                                               OrvoPPDRange range);
    // The codes of the keyword's custom lines anywhere in the text, in order.
    static QList<QStringView> customCodes(const QString &text, const QString &keyword);
    // The start range united with the character before the first occurrence
    // of the following "*OpenUI" line.
    static OrvoPPDRange uniteWithLineBefore(QStringView text, OrvoPPDRange start,
                                            QStringView followingLine);
};
