#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Who may save settings on a queue: every user who may print there (the
// default), or the users and groups ("@group") an administrator named with
// `setup --savers`. Kept in the queue's PPD as one attribute that only setup
// writes; it is no settings keyword, so no update job can change it. The
// filter decides with it on the server; the window and the command line ask
// it first, so that a refused user learns so before anything is sent. Plain
// C++ so the filter needs no Qt.
class OrvoSavers {
public:
    // What `--savers` takes for everyone, and what a queue without the attribute means.
    static constexpr char everyoneText[] = "all";
    // Keeps the PPD line within the 255 bytes a PPD line may have.
    static constexpr std::size_t textLimit = 200;
    // The longest user or group name taken; longer ones are not names useradd makes.
    static constexpr std::size_t nameLimit = 32;

    OrvoSavers() = default; // everyone

    // The list as `--savers` takes it: "all", or names and @groups separated
    // by commas (spaces around them allowed). Names hold letters, digits,
    // '.', '_' and '-' and do not start with '-', so that no list can break
    // the PPD line or read as an option. nullopt for anything else.
    static std::optional<OrvoSavers> parse(std::string_view text);
    // The list as the PPD holds it. A value that is no list (edited by hand,
    // or cut) lets no one save: the administrator meant to restrict.
    static OrvoSavers fromPpdValue(std::string_view value);

    bool everyone() const { return m_everyone; }
    // "all", or the names joined by ','; empty for a list no one is in.
    std::string text() const;
    // Whether the user may save: named, or a member of a named group as this
    // machine's user database says (primary group included). A user this
    // machine does not know is in no group.
    bool allows(const std::string &user) const;

private:
    static bool isName(std::string_view name);
    static bool inGroup(const std::string &user, const std::string &groupName);

    bool m_everyone = true;
    std::vector<std::string> m_names; // "@" before a group's name
};
