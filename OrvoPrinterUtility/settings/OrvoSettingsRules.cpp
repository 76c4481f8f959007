#include "OrvoSettingsRules.h"

#include "OrvoSettingsCodec.h"
#include "OrvoSettingsJobSize.h"
#include "OrvoUtf8.h"

#include <arpa/inet.h>

#include <algorithm>
#include <map>

namespace {

namespace K = OrvoSettingsKeywords;
using Problem = OrvoSettingsVerdict::Problem;

constexpr std::size_t macAddressLength = 17; // "00:11:22:33:44:55"
constexpr std::size_t macGroupLength = 3;    // two digits and their separator
constexpr std::size_t hostNameLimit = 253;
constexpr std::size_t labelLimit = 63;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isLetterOrDigit(char c) {
    return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isHexDigit(char c) {
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// A zone names an interface: "en0", "eth0.1", "wlp2s0", or its number.
bool isZone(std::string_view zone) {
    return !zone.empty() && std::all_of(zone.begin(), zone.end(), [](char c) {
        return isLetterOrDigit(c) || c == '.' || c == '_' || c == '-';
    });
}

bool isOneOf(std::string_view text, std::span<const char *const> names) {
    return std::find(names.begin(), names.end(), text) != names.end();
}

std::string joined(std::span<const char *const> names) {
    std::string text;
    for (const char *name : names)
        text += (text.empty() ? "" : ", ") + std::string(name);
    return text;
}

bool isLabel(std::string_view label) {
    return !label.empty() && label.size() <= labelLimit && label.front() != '-' &&
           label.back() != '-' && std::all_of(label.begin(), label.end(), [](char c) {
               return isLetterOrDigit(c) || c == '-';
           });
}

} // namespace

OrvoSettingsVerdict OrvoSettingsRules::community(std::string_view text) {
    return restricted(K::SnmpCommunityName, text);
}

OrvoSettingsVerdict OrvoSettingsRules::snmpVersion(long long version) {
    if (version == 1 || version == 3)
        return {};
    return {K::SnmpVersion, Problem::Malformed, 0, "is neither 1 nor 3"};
}

// A user name is typed in a field like the community's and travels in the
// clear in every SNMPv3 message, so it takes the same characters.
OrvoSettingsVerdict OrvoSettingsRules::snmpUser(std::string_view text) {
    if (text.empty())
        return {K::SnmpUserName, Problem::Malformed, 0, "is empty"};
    return restricted(K::SnmpUserName, text);
}

OrvoSettingsVerdict OrvoSettingsRules::snmpAuthProtocol(std::string_view text) {
    if (isOneOf(text, K::snmpAuthProtocols))
        return {};
    return {K::SnmpAuthProtocol, Problem::Malformed, 0,
            "is not one of " + joined(K::snmpAuthProtocols)};
}

OrvoSettingsVerdict OrvoSettingsRules::snmpPrivProtocol(std::string_view text) {
    if (text.empty() || isOneOf(text, K::snmpPrivProtocols))
        return {};
    return {K::SnmpPrivProtocol, Problem::Malformed, 0,
            "is neither empty nor one of " + joined(K::snmpPrivProtocols)};
}

OrvoSettingsVerdict OrvoSettingsRules::restricted(std::string_view field, std::string_view text) {
    static const std::u32string valid = *OrvoUtf8::codePoints(communityCharacters);
    const std::optional<std::u32string> points = OrvoUtf8::codePoints(text);
    if (!points)
        return {field, Problem::Malformed, 0, "is not UTF-8 text"};
    for (char32_t point : *points) {
        if (valid.find(point) == std::u32string::npos)
            return {field, Problem::InvalidCharacter, 0, OrvoUtf8::encode(point)};
    }
    if (long(points->size()) > communityLimit)
        return {field, Problem::TooLong, communityLimit};
    return {};
}

// The SNMPv3 settings count only while version 3 is chosen, as the
// community counts only while a custom one is.
OrvoSettingsVerdict OrvoSettingsRules::snmp(const OrvoSettings &s) {
    if (OrvoSettingsVerdict verdict = snmpVersion(s.snmpVersion);
        !verdict.ok() || s.snmpVersion != 3)
        return verdict;
    for (const OrvoSettingsVerdict &verdict :
         {snmpUser(s.snmpUser), snmpAuthProtocol(s.snmpAuthProtocol),
          snmpPrivProtocol(s.snmpPrivProtocol)}) {
        if (!verdict.ok())
            return verdict;
    }
    return {};
}

OrvoSettingsVerdict OrvoSettingsRules::macAddress(std::string_view text) {
    bool wellFormed = text.empty() || text.size() == macAddressLength;
    for (std::size_t i = 0; wellFormed && i < text.size(); ++i)
        wellFormed =
            i % macGroupLength == macGroupLength - 1 ? text[i] == ':' : isHexDigit(text[i]);
    return wellFormed ? OrvoSettingsVerdict{}
                      : OrvoSettingsVerdict{K::PrinterMacAddress, Problem::NotAMacAddress};
}

OrvoSettingsVerdict OrvoSettingsRules::printerAddress(std::string_view text) {
    if (long(text.size()) > addressLimit)
        return {K::PrinterIPAddress, Problem::TooLong, addressLimit};
    if (text.empty() || isIpLiteral(text) || isHostName(text))
        return {};
    return {K::PrinterIPAddress, Problem::NotAnAddress};
}

OrvoSettingsVerdict OrvoSettingsRules::selectedIndex(long long index) {
    if (index >= -1 && index < K::listLimit)
        return {};
    return {K::SelSharedBoxIndex, Problem::IndexOutOfRange, K::listLimit};
}

OrvoSettingsVerdict OrvoSettingsRules::check(const OrvoSettings &s) {
    if (s.customCommunity) {
        if (OrvoSettingsVerdict verdict = community(s.community); !verdict.ok())
            return verdict;
    }
    if (OrvoSettingsVerdict verdict = snmp(s); !verdict.ok())
        return verdict;
    if (OrvoSettingsVerdict verdict = wakeOnLan(s); !verdict.ok())
        return verdict;
    if (s.printerAddress) {
        if (OrvoSettingsVerdict verdict = printerAddress(*s.printerAddress); !verdict.ok())
            return verdict;
    }
    for (const OrvoSettingsNameList &list : OrvoSettings::nameLists()) {
        if (OrvoSettingsVerdict verdict = names(list, s); !verdict.ok())
            return verdict;
    }
    if (OrvoSettingsVerdict verdict = indices(s); !verdict.ok())
        return verdict;
    return OrvoSettingsJobSize::check(s);
}

// A job's settings are checked as the reader would read them, then each
// option's shape: whatever the reader would ignore, or the PPD could not
// hold, must not be stored, and none of the job is.
std::optional<OrvoSettingsRules::Refusal>
OrvoSettingsRules::checkJob(std::span<const JobOption> options,
                            const OrvoSettingsCodec::Lookup &stored) {
    std::map<std::string, std::string, std::less<>> settings;
    for (const auto &[name, value] : options) {
        if (OrvoSettingsOption::keywordOf(name))
            settings.emplace(name, value);
    }
    const auto inJob = [&](const std::string &keyword) -> const char * {
        const auto found = settings.find(keyword);
        return found == settings.end() ? nullptr : found->second.c_str();
    };
    OrvoSettingsCodec::Decoded decoded = OrvoSettingsCodec::decode(inJob);
    if (!decoded.ignored.empty())
        return Refusal{std::move(decoded.ignored.front().keyword),
                       std::move(decoded.ignored.front().verdict)};
    // A job that touches neither leaves the stored pair as it was.
    if (settings.contains(K::IsWakeOnLan) || settings.contains(K::PrinterMacAddress)) {
        const OrvoSettings result = OrvoSettingsCodec::decode([&](const std::string &keyword) {
                                        const char *value = inJob(keyword);
                                        return value ? value : stored(keyword);
                                    }).settings;
        if (OrvoSettingsVerdict verdict = wakeOnLan(result); !verdict.ok())
            return Refusal{std::string(verdict.field), std::move(verdict)};
    }
    for (const auto &[name, value] : options) {
        OrvoSettingsOption::Result option = OrvoSettingsOption::check(name, value);
        if (option.kind == OrvoSettingsOption::Kind::Malformed)
            return Refusal{std::string(name), std::move(option.verdict)};
    }
    return std::nullopt;
}

// Wake-on-LAN needs the printer's MAC address; without Wake-on-LAN none is sent.
OrvoSettingsVerdict OrvoSettingsRules::wakeOnLan(const OrvoSettings &settings) {
    if (!settings.wakeOnLan)
        return {};
    if (settings.macAddress.empty())
        return {K::PrinterMacAddress, Problem::MacAddressMissing};
    return macAddress(settings.macAddress);
}

OrvoSettingsVerdict OrvoSettingsRules::names(const OrvoSettingsNameList &list,
                                             const OrvoSettings &settings) {
    const std::vector<std::string> &names = settings.*list.names;
    if (names.size() > std::size_t(list.limit))
        return {list.keyword, Problem::TooManyEntries, list.limit};
    const bool tooLong = std::any_of(names.begin(), names.end(), [](const std::string &name) {
        return long(name.size()) > nameByteLimit;
    });
    return tooLong ? OrvoSettingsVerdict{list.keyword, Problem::NameTooLong, nameByteLimit}
                   : OrvoSettingsVerdict{};
}

OrvoSettingsVerdict OrvoSettingsRules::indices(const OrvoSettings &settings) {
    if (settings.selectedSharedBoxIndex.size() > std::size_t(K::listLimit))
        return {K::SelSharedBoxIndex, Problem::TooManyEntries, K::listLimit};
    for (std::int32_t index : settings.selectedSharedBoxIndex) {
        if (OrvoSettingsVerdict verdict = selectedIndex(index); !verdict.ok())
            return verdict;
    }
    return {};
}

bool OrvoSettingsRules::isIpLiteral(std::string_view text) {
    const bool bracketed = text.starts_with('[');
    if (bracketed && (text.size() < 2 || !text.ends_with(']')))
        return false;
    const std::string_view inner = bracketed ? text.substr(1, text.size() - 2) : text;
    const std::size_t percent = inner.find('%');
    if (percent != std::string_view::npos && !isZone(inner.substr(percent + 1)))
        return false;
    const std::string address(inner.substr(0, percent));
    in6_addr v6{};
    if (inet_pton(AF_INET6, address.c_str(), &v6) == 1)
        return true;
    // Brackets and zones belong to IPv6 alone.
    in_addr v4{};
    return !bracketed && percent == std::string_view::npos &&
           inet_pton(AF_INET, address.c_str(), &v4) == 1;
}

// Letters, digits and inner hyphens in dot-separated labels, as DNS names
// are written. A last label of digits alone makes the text a mistyped IPv4
// address ("192.168.0.300"), not a name.
bool OrvoSettingsRules::isHostName(std::string_view text) {
    if (text.ends_with('.'))
        text.remove_suffix(1);
    if (text.empty() || text.size() > hostNameLimit)
        return false;
    std::string_view label;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t dot = std::min(text.find('.', start), text.size());
        label = text.substr(start, dot - start);
        if (!isLabel(label))
            return false;
        start = dot + 1;
    }
    return !std::all_of(label.begin(), label.end(), isDigit);
}
