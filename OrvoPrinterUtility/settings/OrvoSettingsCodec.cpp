#include "OrvoSettingsCodec.h"

#include "OrvoSettingsRules.h"
#include "OrvoUtf8.h"

#include <cups/http.h>

#include <algorithm>
#include <cstdio>

namespace {

namespace K = OrvoSettingsKeywords;
using Problem = OrvoSettingsVerdict::Problem;

// Far beyond every index range, and far from overflowing.
constexpr long long indexSaturation = 1'000'000'000'000LL;
constexpr int decimalBase = 10;

const char *flag(bool on) {
    return on ? "1" : "0";
}

std::string indexed(const char *keyword, std::size_t index) {
    return keyword + std::to_string(index);
}

std::string partName(const std::string &keyword, int part) {
    char suffix[32];
    std::snprintf(suffix, sizeof suffix, K::partSuffixFormat, part);
    return keyword + suffix;
}

bool isBase64Letter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '+' ||
           c == '/';
}

// Decoded text ends at its first NUL byte, as a C string would.
std::string untilNul(std::string bytes) {
    bytes.resize(std::min(bytes.size(), bytes.find('\0')));
    return bytes;
}

OrvoSettingsVerdict malformed(std::string_view field, const char *detail) {
    return {field, Problem::Malformed, 0, detail};
}

} // namespace

OrvoSettingsCodec::Options OrvoSettingsCodec::encode(const OrvoSettings &s) {
    Options options;
    options.emplace_back(K::UpdatePPDOptions, K::updatePpdOptionsValue);
    options.emplace_back(K::PPDOptionsUpdated, flag(s.optionsUpdated));
    options.emplace_back(K::IsCustomSnmpCommunity, flag(s.customCommunity));
    if (s.customCommunity)
        options.emplace_back(K::SnmpCommunityName, encodeBase64(s.community));
    options.emplace_back(K::SnmpVersion, std::to_string(s.snmpVersion));
    if (s.snmpVersion == 3) {
        options.emplace_back(K::SnmpUserName, encodeBase64(s.snmpUser));
        options.emplace_back(K::SnmpAuthProtocol, encodeBase64(s.snmpAuthProtocol));
        options.emplace_back(K::SnmpPrivProtocol, encodeBase64(s.snmpPrivProtocol));
    }
    options.emplace_back(K::IsWakeOnLan, flag(s.wakeOnLan));
    options.emplace_back(K::PrinterMacAddress, s.wakeOnLan ? encodeBase64(s.macAddress) : "");
    options.emplace_back(K::IsOverTheRouter, flag(s.wakeOnLan && s.overTheRouter));
    if (s.printerAddress)
        options.emplace_back(K::PrinterIPAddress, encodeBase64(*s.printerAddress));
    // The folder lists and their indices, the folder flags, then the other lists.
    const auto lists = OrvoSettings::nameLists();
    for (const OrvoSettingsNameList &list : lists.first(2))
        appendNames(options, list, s);
    appendIndices(options, s.selectedSharedBoxIndex);
    options.emplace_back(K::UsePersonalFolder, flag(s.personalFolder));
    options.emplace_back(K::AdminLoginModeEnabled, flag(s.adminLoginMode));
    for (const OrvoSettingsNameList &list : lists.subspan(2))
        appendNames(options, list, s);
    return options;
}

OrvoSettingsCodec::Options OrvoSettingsCodec::encodeMultiPart(const std::string &keyword,
                                                              std::string_view text) {
    const std::string encoded = encodeBase64(text);
    const std::size_t length = K::partLength;
    const int parts = std::max<int>(K::partCount, int((encoded.size() + length - 1) / length));
    Options options;
    for (int part = 1; part <= parts; ++part) {
        const std::size_t offset = std::size_t(part - 1) * length;
        options.emplace_back(partName(keyword, part),
                             offset < encoded.size() ? encoded.substr(offset, length) : "");
    }
    return options;
}

std::string OrvoSettingsCodec::encodeBase64(std::string_view bytes) {
    std::string encoded((bytes.size() + 2) / 3 * 4 + 1, '\0');
    httpEncode64_2(encoded.data(), int(encoded.size()), bytes.data(), int(bytes.size()));
    encoded.resize(encoded.find('\0'));
    return encoded;
}

void OrvoSettingsCodec::appendNames(Options &options, const OrvoSettingsNameList &list,
                                    const OrvoSettings &settings) {
    const std::vector<std::string> &names = settings.*list.names;
    for (std::size_t i = 0; i < std::max(std::size_t(list.limit), names.size()); ++i) {
        const Options parts =
            encodeMultiPart(indexed(list.keyword, i), i < names.size() ? names[i] : "");
        options.insert(options.end(), parts.begin(), parts.end());
    }
}

void OrvoSettingsCodec::appendIndices(Options &options, const std::vector<std::int32_t> &indices) {
    for (std::size_t i = 0; i < std::max(std::size_t(K::listLimit), indices.size()); ++i)
        options.emplace_back(indexed(K::SelSharedBoxIndex, i),
                             i < indices.size() ? std::to_string(indices[i]) : "");
}

OrvoSettingsCodec::Decoded OrvoSettingsCodec::decode(const Lookup &stored) {
    using Rules = OrvoSettingsRules;
    Decoded decoded;
    OrvoSettings &s = decoded.settings;
    const auto plain = [&](const char *keyword) -> std::string_view {
        const char *value = stored(keyword);
        return value ? value : "";
    };
    s.optionsUpdated = plain(K::PPDOptionsUpdated) == "1";
    s.customCommunity = plain(K::IsCustomSnmpCommunity) == "1";
    s.community = decodeChecked(K::SnmpCommunityName, Rules::community, stored, decoded)
                      .value_or(K::defaultCommunity);
    decodeSnmp(stored, decoded);
    // Absent or empty reads as on.
    const std::string_view wake = plain(K::IsWakeOnLan);
    s.wakeOnLan = wake.empty() || wake == "1";
    const auto mac = decodeChecked(K::PrinterMacAddress, Rules::macAddress, stored, decoded);
    if (mac && mac->empty() && wake == "1")
        decoded.ignored.push_back(
            {K::PrinterMacAddress, {K::PrinterMacAddress, Problem::MacAddressMissing}});
    s.macAddress = mac.value_or("");
    s.overTheRouter = plain(K::IsOverTheRouter) == "1";
    s.printerAddress =
        decodeChecked(K::PrinterIPAddress, Rules::printerAddress, stored, decoded).value_or("");
    for (const OrvoSettingsNameList &list : OrvoSettings::nameLists())
        s.*list.names = decodeNames(list, stored, decoded);
    s.selectedSharedBoxIndex = decodeIndices(stored, decoded);
    s.personalFolder = plain(K::UsePersonalFolder) == "1";
    // On unless exactly "0".
    s.adminLoginMode = plain(K::AdminLoginModeEnabled) != "0";
    return decoded;
}

// Absent or empty, the version reads as 1.
void OrvoSettingsCodec::decodeSnmp(const Lookup &stored, Decoded &decoded) {
    using Rules = OrvoSettingsRules;
    OrvoSettings &s = decoded.settings;
    if (const char *version = stored(K::SnmpVersion); version && *version) {
        const std::optional<long long> number = decodeIndex(version);
        const OrvoSettingsVerdict verdict =
            number ? Rules::snmpVersion(*number)
                   : OrvoSettingsVerdict{K::SnmpVersion, Problem::Malformed, 0,
                                         "is not a decimal number"};
        if (verdict.ok())
            s.snmpVersion = int(*number);
        else
            decoded.ignored.push_back({K::SnmpVersion, verdict});
    }
    s.snmpUser = decodeChecked(K::SnmpUserName, Rules::snmpUser, stored, decoded).value_or("");
    s.snmpAuthProtocol =
        decodeChecked(K::SnmpAuthProtocol, Rules::snmpAuthProtocol, stored, decoded)
            .value_or(s.snmpAuthProtocol);
    s.snmpPrivProtocol =
        decodeChecked(K::SnmpPrivProtocol, Rules::snmpPrivProtocol, stored, decoded)
            .value_or(s.snmpPrivProtocol);
}

std::optional<std::string>
OrvoSettingsCodec::decodeChecked(const char *keyword, OrvoSettingsVerdict (*rule)(std::string_view),
                                 const Lookup &stored, Decoded &decoded) {
    const char *value = stored(keyword);
    if (!value)
        return std::nullopt;
    const std::optional<std::string> text = decodeText(value);
    const OrvoSettingsVerdict verdict =
        text ? rule(*text) : malformed(keyword, "is not base64 of UTF-8 text");
    if (verdict.ok())
        return text;
    decoded.ignored.push_back({keyword, verdict});
    return std::nullopt;
}

// Empty entries are skipped, so gaps close up.
std::vector<std::string> OrvoSettingsCodec::decodeNames(const OrvoSettingsNameList &list,
                                                        const Lookup &stored, Decoded &decoded) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < std::size_t(list.limit); ++i) {
        const std::string keyword = indexed(list.keyword, i);
        const std::optional<std::string> name = decodeMultiPart(keyword, stored);
        if (!name)
            decoded.ignored.push_back(
                {keyword, malformed(list.keyword, "is not base64 of UTF-8 text in whole parts")});
        else if (!name->empty())
            names.push_back(*name);
    }
    return names;
}

std::vector<std::int32_t> OrvoSettingsCodec::decodeIndices(const Lookup &stored, Decoded &decoded) {
    std::vector<std::int32_t> indices;
    for (std::size_t i = 0; i < std::size_t(K::listLimit); ++i) {
        const std::string keyword = indexed(K::SelSharedBoxIndex, i);
        const char *value = stored(keyword);
        if (!value || !*value)
            continue;
        const std::optional<long long> index = decodeIndex(value);
        const OrvoSettingsVerdict verdict =
            index ? OrvoSettingsRules::selectedIndex(*index)
                  : malformed(K::SelSharedBoxIndex, "is not a decimal index");
        if (verdict.ok())
            indices.push_back(std::int32_t(*index));
        else
            decoded.ignored.push_back({keyword, verdict});
    }
    return indices;
}

std::optional<std::string> OrvoSettingsCodec::decodeText(std::string_view stored) {
    std::optional<std::string> bytes = decodeBase64(stored);
    if (!bytes)
        return std::nullopt;
    std::string text = untilNul(std::move(*bytes));
    return OrvoUtf8::codePoints(text) ? std::optional(text) : std::nullopt;
}

std::optional<std::string> OrvoSettingsCodec::decodeMultiPart(const std::string &keyword,
                                                              const Lookup &stored) {
    std::string joined;
    bool ended = false;
    for (int part = 1; part <= K::partCount; ++part) {
        const char *value = stored(partName(keyword, part));
        const std::string_view text = value ? value : "";
        if (!text.empty() && (ended || joined.size() % K::partLength != 0 ||
                              text.size() > std::size_t(K::partLength)))
            return std::nullopt;
        ended = ended || text.empty();
        joined += text;
    }
    std::optional<std::string> bytes = decodeBase64(joined);
    if (!bytes)
        return std::nullopt;
    std::string text = untilNul(std::move(*bytes));
    // The 900-byte limit of a name could cut its last character when names
    // were stored cut: only that character is dropped.
    text.resize(OrvoUtf8::withoutIncompleteTail(text));
    return OrvoUtf8::codePoints(text) ? std::optional(text) : std::nullopt;
}

std::optional<long long> OrvoSettingsCodec::decodeIndex(std::string_view stored) {
    const bool negative = stored.starts_with('-');
    const std::string_view digits = stored.substr(negative ? 1 : 0);
    const bool wellFormed =
        !digits.empty() && (digits == "0" || digits.front() != '0') &&
        std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!wellFormed || (negative && digits == "0"))
        return std::nullopt;
    long long value = 0;
    for (char c : digits)
        value = std::min(indexSaturation, value * decimalBase + (c - '0'));
    return negative ? -value : value;
}

bool OrvoSettingsCodec::isBase64(std::string_view text) {
    if (text.size() % 4 != 0)
        return false;
    const std::size_t letters = text.find_last_not_of('=') + 1;
    return text.size() - letters <= 2 &&
           std::all_of(text.begin(), text.begin() + long(letters), isBase64Letter);
}

std::optional<std::string> OrvoSettingsCodec::decodeBase64(std::string_view text) {
    if (!isBase64(text))
        return std::nullopt;
    const std::string input(text);
    std::string bytes(text.size() / 4 * 3 + 4, '\0');
    int length = int(bytes.size());
    if (!httpDecode64_2(bytes.data(), &length, input.c_str()))
        return std::nullopt;
    bytes.resize(std::size_t(std::clamp(length, 0, int(bytes.size()))));
    return bytes;
}
