#include "OrvoSettingsOption.h"

#include "OrvoSettingsCodec.h"
#include "OrvoSettingsRules.h"

#include <algorithm>

namespace {

using OrvoSettingsKeywords::Encoding;
using Problem = OrvoSettingsVerdict::Problem;

constexpr std::string_view partPrefix = "_Part";
// Longer numbers in a name are no index or part the utility writes.
constexpr std::size_t numberDigitsLimit = 9;
constexpr int decimalBase = 10;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

OrvoSettingsOption::Result OrvoSettingsOption::check(std::string_view name,
                                                     std::string_view value) {
    const Form form = formOf(name);
    if (!form.keyword)
        return {Kind::NotASetting, {}};
    const std::string_view field = form.keyword->name;
    if (form.beyondList)
        return {Kind::Malformed, {field, Problem::TooManyEntries, form.keyword->indexCount}};
    if (form.beyondParts)
        return {Kind::Malformed, {field, Problem::NameTooLong, OrvoSettingsRules::nameByteLimit}};
    if (form.keyword->encoding == Encoding::JobMarker)
        return {Kind::JobMarker, {}};
    OrvoSettingsVerdict problem = valueProblem(*form.keyword, name, value);
    return {problem.ok() ? Kind::Setting : Kind::Malformed, std::move(problem)};
}

const OrvoSettingsKeywords::Keyword *OrvoSettingsOption::keywordOf(std::string_view name) {
    const Form form = formOf(name);
    return form.beyondList || form.beyondParts ? nullptr : form.keyword;
}

OrvoSettingsOption::Form OrvoSettingsOption::formOf(std::string_view name) {
    for (const Keyword &keyword : OrvoSettingsKeywords::all) {
        if (!name.starts_with(keyword.name))
            continue;
        std::string_view rest = name.substr(std::string_view(keyword.name).size());
        Form form{&keyword};
        long number = 0;
        if (keyword.indexCount > 0) {
            if (!takeNumber(rest, number))
                continue;
            form.beyondList = number >= keyword.indexCount;
        }
        if (keyword.encoding == Encoding::MultiPart) {
            if (!rest.starts_with(partPrefix))
                continue;
            rest.remove_prefix(partPrefix.size());
            if (!takeNumber(rest, number) || number == 0)
                continue;
            form.beyondParts = number > OrvoSettingsKeywords::partCount;
        }
        if (rest.empty())
            return form;
    }
    return {};
}

// A number is written in decimal without padding, so "07" is not 7.
bool OrvoSettingsOption::takeNumber(std::string_view &rest, long &number) {
    const auto end = std::find_if_not(rest.begin(), rest.end(), isDigit);
    const std::string_view digits(rest.begin(), end);
    if (digits.empty() || (digits.size() > 1 && digits.front() == '0') ||
        digits.size() > numberDigitsLimit)
        return false;
    number = 0;
    for (char c : digits)
        number = number * decimalBase + (c - '0');
    rest.remove_prefix(digits.size());
    return true;
}

// Empty clears a setting or a list slot that a longer, earlier list filled.
OrvoSettingsVerdict OrvoSettingsOption::valueProblem(const Keyword &keyword, std::string_view name,
                                                     std::string_view value) {
    const auto malformed = [&](const char *detail) {
        return OrvoSettingsVerdict{keyword.name, Problem::Malformed, 0, detail};
    };
    if (name.size() + value.size() + ppdLineFraming > ppdLineLimit)
        return malformed("is too long for one PPD line");
    switch (keyword.encoding) {
    case Encoding::Flag:
        return value == "0" || value == "1" ? OrvoSettingsVerdict{} : malformed("is not 0 or 1");
    case Encoding::Decimal:
        return value.empty() || OrvoSettingsCodec::decodeIndex(value)
                   ? OrvoSettingsVerdict{}
                   : malformed("is not a decimal index");
    case Encoding::MultiPart:
        if (value.size() > std::size_t(OrvoSettingsKeywords::partLength))
            return malformed("is longer than one part");
        [[fallthrough]];
    case Encoding::Base64:
        return OrvoSettingsCodec::isBase64(value) ? OrvoSettingsVerdict{}
                                                  : malformed("is not base64 text");
    case Encoding::JobMarker:
        break;
    }
    return malformed("is not stored");
}
