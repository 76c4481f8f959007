#include "JobOptions.h"

#include <utility>

JobOptions::~JobOptions() {
    cupsFreeOptions(optionCount, options);
}

JobOptions::JobOptions(JobOptions &&other) noexcept
    : optionCount(std::exchange(other.optionCount, 0))
    , options(std::exchange(other.options, nullptr)) {}

void JobOptions::add(const std::string &name, const std::string &value) {
    optionCount = cupsAddOption(name.c_str(), value.c_str(), optionCount, &options);
}

void JobOptions::add(const std::map<std::string, std::string> &pairs) {
    for (const auto &[name, value] : pairs)
        add(name, value);
}

std::size_t JobOptions::filterTextLength() const {
    std::size_t length = 0;
    for (int i = 0; i < optionCount; ++i) {
        const std::string value = options[i].value;
        length += std::char_traits<char>::length(options[i].name) + (i > 0);
        if (value != "True")
            length += 1 + value.size();
    }
    return length;
}
