#include "OrvoSavers.h"

#include <algorithm>
#include <grp.h>
#include <pwd.h>
#include <unistd.h>

namespace {

constexpr char groupMark = '@';

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// The reentrant lookups need a buffer as large as the system suggests.
std::size_t lookupBufferSize() {
    const long suggested = sysconf(_SC_GETPW_R_SIZE_MAX);
    return suggested > 0 ? std::size_t(suggested) * 4 : 16384;
}

} // namespace

std::optional<OrvoSavers> OrvoSavers::parse(std::string_view text) {
    if (text.size() > textLimit)
        return std::nullopt;
    if (trimmed(text) == everyoneText)
        return OrvoSavers();
    OrvoSavers savers;
    savers.m_everyone = false;
    while (true) {
        const std::size_t comma = text.find(',');
        const std::string_view entry = trimmed(text.substr(0, comma));
        const std::string_view name = entry.starts_with(groupMark) ? entry.substr(1) : entry;
        if (!isName(name) || name == everyoneText)
            return std::nullopt;
        if (std::find(savers.m_names.begin(), savers.m_names.end(), entry) == savers.m_names.end())
            savers.m_names.emplace_back(entry);
        if (comma == std::string_view::npos)
            return savers;
        text.remove_prefix(comma + 1);
    }
}

OrvoSavers OrvoSavers::fromPpdValue(std::string_view value) {
    if (const std::optional<OrvoSavers> savers = parse(value))
        return *savers;
    OrvoSavers nobody;
    nobody.m_everyone = false;
    return nobody;
}

std::string OrvoSavers::text() const {
    if (m_everyone)
        return everyoneText;
    std::string joined;
    for (const std::string &name : m_names)
        joined += (joined.empty() ? "" : ",") + name;
    return joined;
}

bool OrvoSavers::allows(const std::string &user) const {
    if (m_everyone)
        return true;
    return std::any_of(m_names.begin(), m_names.end(), [&](const std::string &name) {
        return name.starts_with(groupMark) ? inGroup(user, name.substr(1)) : name == user;
    });
}

bool OrvoSavers::isName(std::string_view name) {
    constexpr std::string_view nameCharacters = "abcdefghijklmnopqrstuvwxyz"
                                                "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789._-";
    return !name.empty() && name.size() <= nameLimit && name.front() != '-' &&
           name.find_first_not_of(nameCharacters) == std::string_view::npos;
}

// Through the system's group list of the user, so that groups from a
// directory service count as /etc/group does.
bool OrvoSavers::inGroup(const std::string &user, const std::string &groupName) {
    std::vector<char> buffer(lookupBufferSize());
    passwd account{};
    passwd *found = nullptr;
    if (getpwnam_r(user.c_str(), &account, buffer.data(), buffer.size(), &found) != 0 || !found)
        return false;
    const gid_t primary = account.pw_gid;
    struct group entry {};
    struct group *groupFound = nullptr;
    if (getgrnam_r(groupName.c_str(), &entry, buffer.data(), buffer.size(), &groupFound) != 0 ||
        !groupFound)
        return false;
    const gid_t wanted = entry.gr_gid;
    std::vector<gid_t> groups(64);
    int count = int(groups.size());
    while (getgrouplist(user.c_str(), primary, groups.data(), &count) < 0) {
        groups.resize(std::size_t(count) + 64);
        count = int(groups.size());
    }
    return std::find(groups.begin(), groups.begin() + count, wanted) != groups.begin() + count;
}
