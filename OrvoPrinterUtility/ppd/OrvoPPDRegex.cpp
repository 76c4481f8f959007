#include "OrvoPPDRegex.h"

#include <unicode/regex.h>

#include <limits>

bool OrvoPPDRegex::Match::has(int group) const {
    return group >= 0 && size_t(group) < spans.size() && spans[size_t(group)].first >= 0;
}

QStringView OrvoPPDRegex::Match::capture(QStringView text, int group) const {
    if (!has(group))
        return {};
    const auto [start, end] = spans[size_t(group)];
    return text.sliced(start, end - start);
}

OrvoPPDRegex::OrvoPPDRegex(const QString &pattern, bool caseInsensitive) {
    UErrorCode status = U_ZERO_ERROR;
    UParseError parseError;
    const icu::UnicodeString source(false, reinterpret_cast<const UChar *>(pattern.utf16()),
                                    int32_t(pattern.size()));
    m_compiled.reset(icu::RegexPattern::compile(
        source, caseInsensitive ? UREGEX_CASE_INSENSITIVE : 0, parseError, status));
    if (U_FAILURE(status))
        m_compiled.reset();
}

OrvoPPDRegex::~OrvoPPDRegex() = default;

template <typename Visit>
void OrvoPPDRegex::scan(QStringView text, qsizetype from, qsizetype to, Visit visit) const {
    // ICU indexes with 32-bit integers; longer texts are never searched.
    if (!m_compiled || from < 0 || to > text.size() || from > to ||
        to - from > std::numeric_limits<int32_t>::max())
        return;
    const icu::UnicodeString input(false, reinterpret_cast<const UChar *>(text.data() + from),
                                   int32_t(to - from));
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::RegexMatcher> matcher(m_compiled->matcher(input, status));
    if (U_FAILURE(status))
        return;
    const int groups = matcher->groupCount();
    while (matcher->find(status) && U_SUCCESS(status)) {
        Match match;
        match.spans.reserve(size_t(groups) + 1);
        for (int group = 0; group <= groups; ++group) {
            const int32_t start = matcher->start(group, status);
            const int32_t end = matcher->end(group, status);
            match.spans.emplace_back(start < 0 ? -1 : from + start, end < 0 ? -1 : from + end);
        }
        if (!visit(std::move(match)))
            return;
    }
}

std::vector<OrvoPPDRegex::Match> OrvoPPDRegex::findAll(QStringView text, qsizetype from,
                                                       qsizetype to) const {
    std::vector<Match> matches;
    scan(text, from, to, [&](Match &&match) {
        matches.push_back(std::move(match));
        return true;
    });
    return matches;
}

std::optional<OrvoPPDRegex::Match> OrvoPPDRegex::findFirst(QStringView text, qsizetype from,
                                                           qsizetype to) const {
    std::optional<Match> first;
    scan(text, from, to, [&](Match &&match) {
        first = std::move(match);
        return false;
    });
    return first;
}

std::optional<OrvoPPDRegex::Match> OrvoPPDRegex::findLast(QStringView text, qsizetype from,
                                                          qsizetype to) const {
    std::optional<Match> last;
    scan(text, from, to, [&](Match &&match) {
        last = std::move(match);
        return true;
    });
    return last;
}

QString OrvoPPDRegex::format(QStringView pattern, std::initializer_list<QStringView> arguments) {
    QString result;
    auto argument = arguments.begin();
    qsizetype position = 0;
    for (qsizetype hole = pattern.indexOf(u"%@"); hole >= 0 && argument != arguments.end();
         hole = pattern.indexOf(u"%@", position)) {
        result += pattern.sliced(position, hole - position);
        result += *argument++;
        position = hole + 2;
    }
    result += pattern.sliced(position);
    return result;
}
