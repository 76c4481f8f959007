#include "OrvoUtf8.h"

namespace {

constexpr char32_t maxCodePoint = 0x10FFFF;
constexpr char32_t surrogatesFirst = 0xD800;
constexpr char32_t surrogatesLast = 0xDFFF;
// The smallest code point each sequence length may encode.
constexpr char32_t shortestForm[] = {0, 0, 0x80, 0x800, 0x10000};

bool isContinuation(unsigned char byte) {
    return (byte & 0xC0) == 0x80;
}

} // namespace

// 0 for a byte that cannot start a sequence.
int OrvoUtf8::sequenceLength(unsigned char lead) {
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return 2;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 3;
    if (lead >= 0xF0 && lead <= 0xF4)
        return 4;
    return 0;
}

std::optional<std::u32string> OrvoUtf8::codePoints(std::string_view text) {
    static constexpr unsigned char leadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    std::u32string points;
    for (std::size_t i = 0; i < text.size();) {
        const int length = sequenceLength(static_cast<unsigned char>(text[i]));
        if (length == 0 || i + std::size_t(length) > text.size())
            return std::nullopt;
        char32_t point = static_cast<unsigned char>(text[i]) & leadBits[length];
        for (int k = 1; k < length; ++k) {
            const auto byte = static_cast<unsigned char>(text[i + std::size_t(k)]);
            if (!isContinuation(byte))
                return std::nullopt;
            point = (point << 6) | (byte & 0x3F);
        }
        if (point < shortestForm[length] || point > maxCodePoint ||
            (point >= surrogatesFirst && point <= surrogatesLast))
            return std::nullopt;
        points += point;
        i += std::size_t(length);
    }
    return points;
}

std::size_t OrvoUtf8::withoutIncompleteTail(std::string_view text) {
    std::size_t lead = text.size();
    while (lead > 0 && text.size() - lead < 3 &&
           isContinuation(static_cast<unsigned char>(text[lead - 1])))
        --lead;
    if (lead == 0)
        return text.size();
    const int needed = sequenceLength(static_cast<unsigned char>(text[lead - 1]));
    const std::size_t present = text.size() - lead + 1;
    return needed > 1 && present < std::size_t(needed) ? lead - 1 : text.size();
}

std::string OrvoUtf8::encode(char32_t point) {
    static constexpr unsigned char leadMarks[] = {0, 0, 0xC0, 0xE0, 0xF0};
    const int length = point < shortestForm[2]   ? 1
                       : point < shortestForm[3] ? 2
                       : point < shortestForm[4] ? 3
                                                 : 4;
    if (length == 1)
        return std::string(1, char(point));
    std::string bytes(std::size_t(length), '\0');
    for (int k = length - 1; k > 0; --k, point >>= 6)
        bytes[std::size_t(k)] = char(0x80 | (point & 0x3F));
    bytes[0] = char(leadMarks[length] | point);
    return bytes;
}
