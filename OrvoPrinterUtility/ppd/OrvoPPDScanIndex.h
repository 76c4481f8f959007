#pragma once

#include "OrvoPPDModel.h"
#include "OrvoPPDRange.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// The reader's scans, answered from one pass over the text instead of one pass
// per option with several expressions. Each answer is the one the per-keyword
// expression of OrvoPPDKeywordScan gives: the same last (or first) match, the
// keyword's optional last character, the custom lines of the whole text. Every
// such expression matches within one line, so the lines that hold its literal
// parts are the only places to look. Keywords holding expression syntax take
// the expression.
class OrvoPPDScanIndex {
public:
    struct Attribute {
        QStringView name;
        QStringView value;
    };

    explicit OrvoPPDScanIndex(const QString &text);

    const QStringList &groupKeywords() const { return m_groups; }
    const QStringList &optionKeywords() const { return m_options; }
    OrvoPPDRange groupRange(const QString &name) const;
    OrvoPPDRange optionRange(const QString &keyword) const;
    // Within the option's own text: its translation, its default choice and
    // its choices, as the last (or every) match of its expressions.
    std::optional<QStringView> optionText(const QString &keyword, OrvoPPDRange range) const;
    std::optional<QStringView> defaultChoice(const QString &keyword, OrvoPPDRange range) const;
    QList<OrvoPPDModel::Choice> choices(const QString &keyword, OrvoPPDRange range) const;
    // The codes of the keyword's custom lines anywhere in the text, in order.
    QList<QStringView> customCodes(const QString &keyword) const;
    // Name and raw value of every attribute line, in text order.
    std::vector<Attribute> attributes() const;

    static bool isLineTerminator(QChar c);
    // Literal in an expression, so the keyword's lines can be found by text.
    static bool isPlain(QStringView keyword);

private:
    struct Line {
        qsizetype start;
        qsizetype end;
    };
    using LineIndex = QHash<QStringView, std::vector<qsizetype>>;
    struct QuotedCode {
        qsizetype colon;
        qsizetype start;
        qsizetype end;
    };

    void indexGroups();
    void indexOptionStarts();
    void indexOptionEnds();
    void indexCustomLines();
    OrvoPPDRange followingOpenEnd(OrvoPPDRange start) const;
    static qsizetype lastOf(const LineIndex &index, QStringView key);
    static QList<qsizetype> plainLengths(const QStringList &keywords);
    Line lineWithin(qsizetype position, OrvoPPDRange range) const;
    std::optional<QuotedCode> quotedCode(Line line, qsizetype from) const;
    qsizetype translationSlash(qsizetype from, qsizetype before, const QString &keyword) const;
    qsizetype lineEnd(qsizetype position) const;
    qsizetype lineStart(qsizetype position) const;
    qsizetype skipBlanks(qsizetype position) const;
    qsizetype plainRunEnd(qsizetype position) const;

    const QString m_text;
    QStringList m_groups;
    QStringList m_options;
    QHash<QStringView, qsizetype> m_openGroupFirst;
    QHash<QStringView, Line> m_closeGroupFirst;
    std::vector<Line> m_openLines;
    LineIndex m_openLinesByName;
    std::vector<Line> m_closeLines;
    LineIndex m_closeLinesBySuffix;
    std::vector<qsizetype> m_openOccurrences;
    LineIndex m_customLinesByName;
};
