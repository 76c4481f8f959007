#pragma once

#include "OVSNMPHelper.h"

#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <span>

// What Get Printer Info asks a printer for, in its fixed order: the MAC
// address, the shared folders with their states and the admin login mode, the
// forms, the barcode areas, the colour profiles. The first step that fails
// ends the fetch, and the result says why. The window and the command line's
// `fetch` both run it; it blocks on the network, so the window runs it off
// the GUI thread.
class OVPrinterInfoFetch {
public:
    enum class Step { MacAddress, Folders, Forms, BarcodeAreas, ColorProfiles };
    static constexpr std::array<Step, 5> allSteps{Step::MacAddress, Step::Folders, Step::Forms,
                                                  Step::BarcodeAreas, Step::ColorProfiles};

    // The wake flow the window runs before every step; it answers yes at once
    // when Wake-on-LAN is off. A fetched MAC address is the one woken next.
    struct Wake {
        bool enabled = true;
        std::array<QString, 6> macAddressFields;
        OVSnmpCredentials community; // a community, or SNMPv3 credentials
        bool overRouter = false;
    };
    struct Printer {
        // An empty address fails every step without asking anything.
        QString address;
        OVSnmpCredentials community; // a community, or SNMPv3 credentials
        std::optional<Wake> wake;
    };

    struct FailedStep {
        Step step;
        OVSNMPHelper::Failure failure;
    };

    struct Result {
        // Null unless the step ran and the printer answered with a MAC address.
        QString macAddress;
        std::optional<QStringList> folderNames;
        std::optional<QStringList> folderStates;
        // Asked whenever the folder step reached the printer, even when its
        // lists failed. A printer that does not answer it or lacks it has
        // the mode off; an unreadable answer fails the step and sets nothing.
        std::optional<bool> adminLoginModeEnabled;
        std::optional<QStringList> forms;
        std::optional<QStringList> barcodeAreas;
        std::optional<QStringList> colorProfiles;
        std::optional<FailedStep> failedStep;

        // The folders in use (state "1"); null when the names and states are
        // missing, empty or of different lengths, which leaves a list alone.
        std::optional<QStringList> foldersInUse() const;
    };

    static Result fetch(Printer printer, std::span<const Step> steps);
    // The wake flow alone: yes when the printer is ready or there is nothing
    // to wake.
    static bool wake(const QString &address, const Wake &wake);
    // What a step asks for, in words, for messages.
    static QString stepName(Step step);
};
