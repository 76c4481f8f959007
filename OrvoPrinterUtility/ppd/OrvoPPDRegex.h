#pragma once

#include <QString>
#include <QStringView>

#include <memory>
#include <optional>
#include <vector>

#include <unicode/uversion.h>

U_NAMESPACE_BEGIN
class RegexPattern;
U_NAMESPACE_END

// One compiled ICU expression run over part of a PPD text. Positions are UTF-16
// code units of the whole text; "." never crosses a line terminator.
class OrvoPPDRegex {
public:
    struct Match {
        // (start, end) per capture, 0 being the whole match; start -1 when the
        // capture took no part in the match.
        std::vector<std::pair<qsizetype, qsizetype>> spans;

        bool has(int group) const;
        QStringView capture(QStringView text, int group) const;
    };

    explicit OrvoPPDRegex(const QString &pattern, bool caseInsensitive = false);
    ~OrvoPPDRegex();
    OrvoPPDRegex(const OrvoPPDRegex &) = delete;
    OrvoPPDRegex &operator=(const OrvoPPDRegex &) = delete;

    bool isValid() const { return m_compiled != nullptr; }
    // Every non-overlapping match inside text[from, to), in text order.
    std::vector<Match> findAll(QStringView text, qsizetype from, qsizetype to) const;
    std::vector<Match> findAll(QStringView text) const { return findAll(text, 0, text.size()); }
    std::optional<Match> findFirst(QStringView text, qsizetype from, qsizetype to) const;
    std::optional<Match> findLast(QStringView text, qsizetype from, qsizetype to) const;

    // Puts the arguments, unescaped, in place of the successive "%@" of a
    // pattern: keywords take part in the expression as they are written.
    static QString format(QStringView pattern, std::initializer_list<QStringView> arguments);

private:
    template <typename Visit>
    void scan(QStringView text, qsizetype from, qsizetype to, Visit visit) const;

    std::unique_ptr<icu::RegexPattern> m_compiled;
};
