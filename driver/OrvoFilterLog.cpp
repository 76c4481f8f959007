#include "OrvoFilterLog.h"

namespace {

constexpr const char *levelPrefix(OrvoFilterLog::Level level) {
    switch (level) {
    case OrvoFilterLog::Level::Debug:
        return "DEBUG: ";
    case OrvoFilterLog::Level::Warning:
        return "WARNING: ";
    case OrvoFilterLog::Level::Error:
        return "ERROR: ";
    }
    return "";
}

} // namespace

OrvoFilterLog::OrvoFilterLog(std::FILE *out)
    : m_out(out) {}

void OrvoFilterLog::write(Level level, std::string_view text) {
    std::string line = levelPrefix(level);
    line.append(text).append("\n");
    std::fwrite(line.data(), 1, line.size(), m_out);
    std::fflush(m_out);
}

void OrvoFilterLog::refused(Level level, std::string_view name, std::string_view why) {
    if (++m_refusedCount > listedLimit)
        return;
    std::string text = "Refused option \"";
    text.append(printable(name)).append("\": ").append(why);
    write(level, text);
}

void OrvoFilterLog::refusedJob(std::string_view name, std::string_view why) {
    std::string text = "Refused the update job, nothing stored: ";
    text.append(printable(name)).append(" ").append(why);
    write(Level::Error, text);
}

void OrvoFilterLog::summary(std::size_t stored) {
    write(Level::Debug, "Stored " + std::to_string(stored) + " settings, refused " +
                            std::to_string(m_refusedCount) + " options");
    if (m_refusedCount > listedLimit)
        write(Level::Warning, std::to_string(m_refusedCount - listedLimit) +
                                  " more refused options are not listed");
}

std::string OrvoFilterLog::printable(std::string_view name) {
    std::string text;
    for (char c : name.substr(0, nameLimit))
        text += (c > ' ' && c < 0x7f && c != '"' && c != '\\') ? c : '?';
    if (name.size() > nameLimit)
        text += "...";
    return text;
}
