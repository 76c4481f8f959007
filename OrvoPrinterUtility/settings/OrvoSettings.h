#pragma once

#include "OrvoSettingsKeywords.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

struct OrvoSettingsNameList;

// Every setting the utility keeps for a queue, texts in UTF-8: what one save
// sends and what one reading of the PPD yields. Plain C++, so that the driver
// filter, which runs under cupsd without Qt, applies the same rules.
struct OrvoSettings {
    bool optionsUpdated = false;
    bool customCommunity = false;
    std::string community = OrvoSettingsKeywords::defaultCommunity;
    // 1: SNMP v1 with the community; 3: SNMPv3 as the user below, with
    // privacy unless the privacy protocol is "". No passphrase is a setting.
    int snmpVersion = 1;
    std::string snmpUser;
    std::string snmpAuthProtocol = OrvoSettingsKeywords::snmpAuthProtocols[0];
    std::string snmpPrivProtocol = OrvoSettingsKeywords::snmpPrivProtocols[0];
    bool wakeOnLan = true;
    // Six two-digit hexadecimal numbers joined by ':', or "" for none.
    std::string macAddress;
    bool overTheRouter = false;
    // nullopt: the save sends no address, and the stored one stays.
    std::optional<std::string> printerAddress = std::string();
    std::vector<std::string> sharedBoxNames;
    std::vector<std::string> selectedSharedBoxNames;
    std::vector<std::int32_t> selectedSharedBoxIndex;
    bool personalFolder = false;
    bool adminLoginMode = true;
    std::vector<std::string> formNames;
    std::vector<std::string> barcodeAreaNames;
    std::vector<std::string> colorProfileNames;

    bool operator==(const OrvoSettings &) const = default;

    // The five lists of names, in the order the update job carries them.
    static std::span<const OrvoSettingsNameList> nameLists();
};

// A list of names kept under one indexed multi-part keyword.
struct OrvoSettingsNameList {
    const char *keyword;
    std::vector<std::string> OrvoSettings::*names;
    int limit;
};
