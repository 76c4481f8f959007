#pragma once

#include "OrvoPPDRange.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

// The reader's group, option, custom-choice and attribute scans, answered from
// one pass over the text instead of one pass per option. Each answer is the one
// the per-keyword expression over the whole text gives: the same last (or
// first) match, the keyword's optional last character, the custom lines of the
// whole text. Keywords holding expression syntax take the per-keyword path.
class OrvoPPDScanIndex {
public:
    struct Attribute {
        QStringView name;
        QStringView value;
    };

    explicit OrvoPPDScanIndex(const QString &text);

    const QStringList &groupKeywords() const { return groups; }
    const QStringList &optionKeywords() const { return options; }
    OrvoPPDRange groupRange(const QString &name) const;
    OrvoPPDRange optionRange(const QString &keyword) const;
    // The codes of the keyword's custom lines anywhere in the text, in order.
    QStringList customCodes(const QString &keyword) const;
    // Name and raw value of every attribute line, in text order.
    std::vector<Attribute> attributes() const;

    static bool isLineTerminator(QChar c);
    // Literal in an expression, so the keyword's lines can be found by text.
    static bool isPlain(QStringView keyword);
    // The start range united with the character before the first occurrence
    // of the following "*OpenUI" line.
    static OrvoPPDRange uniteWithLineBefore(QStringView text, OrvoPPDRange start,
                                            QStringView followingLine);

private:
    struct Line {
        qsizetype start;
        qsizetype end;
    };
    using LineIndex = QHash<QStringView, std::vector<qsizetype>>;

    void indexGroups();
    void indexOptionStarts();
    void indexOptionEnds();
    void indexCustomLines();
    OrvoPPDRange followingOpenEnd(OrvoPPDRange start) const;
    static qsizetype lastOf(const LineIndex &index, QStringView key);
    static QList<qsizetype> plainLengths(const QStringList &keywords);
    qsizetype lineEnd(qsizetype position) const;
    qsizetype lineStart(qsizetype position) const;
    qsizetype skipBlanks(qsizetype position) const;
    qsizetype plainRunEnd(qsizetype position) const;

    QString text;
    QStringList groups;
    QStringList options;
    QHash<QStringView, qsizetype> openGroupFirst;
    QHash<QStringView, Line> closeGroupFirst;
    std::vector<Line> openLines;
    LineIndex openLinesByName;
    std::vector<Line> closeLines;
    LineIndex closeLinesBySuffix;
    std::vector<qsizetype> openOccurrences;
    LineIndex customLinesByName;
};
