#pragma once

#include "OrvoSettings.h"
#include "OrvoSettingsCodec.h"
#include "OrvoSettingsOption.h"
#include "OrvoSettingsVerdict.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

// What a valid setting is, for every front end alike: the window's OK, the
// command line's save, the driver filter with a job any user may have sent,
// and the reader with what a PPD holds. Each rule takes UTF-8 text and names
// its setting's keyword in its verdict.
class OrvoSettingsRules {
public:
    // The characters the community field takes. The yen sign and the two
    // zero-width spaces belong to the set on purpose.
    static constexpr char communityCharacters[] =
        ",./:;@[\\\u00A5]^_0123456789abcdefghijklmn\u200BopqrstuvwxyzABCDEFGHIJKLMN\u200B"
        "OPQRSTUVWXYZ";
    static constexpr long communityLimit = 32;
    // Bytes of one name that six parts of base64 hold.
    static constexpr long nameByteLimit =
        long(OrvoSettingsKeywords::partCount) * OrvoSettingsKeywords::partLength / 4 * 3;
    // The longest address whose base64 still fits on one PPD line.
    static constexpr long addressLimit =
        long(OrvoSettingsOption::ppdLineLimit - OrvoSettingsOption::ppdLineFraming -
             (sizeof OrvoSettingsKeywords::PrinterIPAddress - 1)) /
        4 * 3;

    // Only the community field's characters, at most communityLimit of them.
    static OrvoSettingsVerdict community(std::string_view text);
    // 1 (the community) or 3 (the SNMPv3 user).
    static OrvoSettingsVerdict snmpVersion(long long version);
    // The community's characters and limit; never empty.
    static OrvoSettingsVerdict snmpUser(std::string_view text);
    // One of OrvoSettingsKeywords::snmpAuthProtocols.
    static OrvoSettingsVerdict snmpAuthProtocol(std::string_view text);
    // One of OrvoSettingsKeywords::snmpPrivProtocols, or "" for none.
    static OrvoSettingsVerdict snmpPrivProtocol(std::string_view text);
    // Six two-digit hexadecimal numbers joined by ':', or "" for none.
    static OrvoSettingsVerdict macAddress(std::string_view text);
    // "", an IPv4 or IPv6 literal (an IPv6 one in brackets or not, with or
    // without a zone), or a host name.
    static OrvoSettingsVerdict printerAddress(std::string_view text);
    // A row of the printer's folders, or -1: chosen while none was selected.
    static OrvoSettingsVerdict selectedIndex(long long index);

    // The first rule the settings break, in the order the window shows its
    // fields, then whether one update job carries them all. Only what the
    // update job sends is checked: no community without a custom one, no MAC
    // address without Wake-on-LAN.
    static OrvoSettingsVerdict check(const OrvoSettings &settings);

    // Why an update job's options must not reach the PPD at all: an option of
    // a settings keyword that is malformed, a setting that breaks its rule, or
    // Wake-on-LAN and MAC address options that, over the stored settings
    // (`stored`), leave Wake-on-LAN on without a valid MAC address.
    struct Refusal {
        std::string keyword; // the option's name, or the setting's keyword
        OrvoSettingsVerdict verdict;
    };
    using JobOption = std::pair<std::string_view, std::string_view>;
    static std::optional<Refusal> checkJob(std::span<const JobOption> options,
                                           const OrvoSettingsCodec::Lookup &stored);

private:
    static OrvoSettingsVerdict wakeOnLan(const OrvoSettings &settings);
    static OrvoSettingsVerdict names(const OrvoSettingsNameList &list,
                                     const OrvoSettings &settings);
    static OrvoSettingsVerdict indices(const OrvoSettings &settings);
    static OrvoSettingsVerdict restricted(std::string_view field, std::string_view text);
    static OrvoSettingsVerdict snmp(const OrvoSettings &settings);
    static bool isIpLiteral(std::string_view text);
    static bool isHostName(std::string_view text);
};
