#include "OrvoSettingsOption.h"

#include <algorithm>

namespace {

using OrvoSettingsKeywords::Encoding;

constexpr std::string_view partPrefix = "_Part";
// Indices stay far below a billion, so the reader's integer conversion never overflows.
constexpr std::size_t decimalDigitsLimit = 9;
// "*Name: \"value\"": the star, colon, space and two quotes around the value.
constexpr std::size_t ppdLineFraming = 5;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isBase64Letter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || isDigit(c) || c == '+' || c == '/';
}

} // namespace

OrvoSettingsOption::Result OrvoSettingsOption::check(std::string_view name,
                                                     std::string_view value) {
    const Keyword *keyword = keywordFor(name);
    if (!keyword)
        return {Verdict::NotASetting, nullptr};
    if (keyword->encoding == Encoding::JobMarker)
        return {Verdict::JobMarker, nullptr};
    if (const char *problem = valueProblem(*keyword, name, value))
        return {Verdict::BadValue, problem};
    return {Verdict::Store, nullptr};
}

bool OrvoSettingsOption::absentReadsAsEmpty(std::string_view name) {
    const Keyword *keyword = keywordFor(name);
    return keyword &&
           (keyword->encoding == Encoding::MultiPart || keyword->encoding == Encoding::Decimal);
}

const OrvoSettingsOption::Keyword *OrvoSettingsOption::keywordFor(std::string_view name) {
    for (const Keyword &keyword : OrvoSettingsKeywords::all) {
        if (!name.starts_with(keyword.name))
            continue;
        std::string_view rest = name.substr(std::string_view(keyword.name).size());
        if (keyword.indexCount > 0 && !takeIndex(rest, keyword.indexCount))
            continue;
        if (keyword.encoding == Encoding::MultiPart && !takePart(rest))
            continue;
        if (rest.empty())
            return &keyword;
    }
    return nullptr;
}

// An index is written in decimal without padding, so "07" is not index 7.
bool OrvoSettingsOption::takeIndex(std::string_view &rest, int count) {
    const auto end = std::find_if_not(rest.begin(), rest.end(), isDigit);
    const std::string_view digits(rest.begin(), end);
    if (digits.empty() || (digits.size() > 1 && digits.front() == '0') || digits.size() > 3)
        return false;
    int index = 0;
    for (char c : digits)
        index = index * 10 + (c - '0');
    if (index >= count)
        return false;
    rest.remove_prefix(digits.size());
    return true;
}

bool OrvoSettingsOption::takePart(std::string_view &rest) {
    if (!rest.starts_with(partPrefix) || rest.size() != partPrefix.size() + 1)
        return false;
    const char part = rest.back();
    if (part < '1' || part >= '1' + OrvoSettingsKeywords::partCount)
        return false;
    rest = {};
    return true;
}

const char *OrvoSettingsOption::valueProblem(const Keyword &keyword, std::string_view name,
                                             std::string_view value) {
    if (name.size() + value.size() + ppdLineFraming > ppdLineLimit)
        return "too long for one PPD line";
    switch (keyword.encoding) {
    case Encoding::Flag:
        return value == "0" || value == "1" ? nullptr : "not 0 or 1";
    case Encoding::Decimal:
        return isDecimal(value) ? nullptr : "not a decimal index";
    case Encoding::Base64:
        return isBase64(value) ? nullptr : "not base64 text";
    case Encoding::MultiPart:
        if (value.size() > std::size_t(OrvoSettingsKeywords::partLength))
            return "longer than one part";
        return isBase64(value) ? nullptr : "not base64 text";
    case Encoding::JobMarker:
        break;
    }
    return "not stored";
}

// Empty clears a slot that a longer, earlier list filled. A chosen folder
// added while no printer folder was selected has the index -1.
bool OrvoSettingsOption::isDecimal(std::string_view value) {
    if (value.starts_with('-'))
        value.remove_prefix(1);
    else if (value.empty())
        return true;
    return !value.empty() && value.size() <= decimalDigitsLimit &&
           std::all_of(value.begin(), value.end(), isDigit);
}

// Base64 with padding, as the utility writes it; empty clears the setting. A
// part of a longer text is a multiple of four characters too, since the parts
// are cut at multiples of four.
bool OrvoSettingsOption::isBase64(std::string_view value) {
    if (value.size() % 4 != 0)
        return false;
    const std::size_t letters = value.find_last_not_of('=') + 1;
    return value.size() - letters <= 2 &&
           std::all_of(value.begin(), value.begin() + letters, isBase64Letter);
}
