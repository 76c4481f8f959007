#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// UTF-8 as the settings keep it: strict, without overlong forms, surrogates
// or code points past U+10FFFF, so that text the window shows and sends back
// is the text that was stored.
class OrvoUtf8 {
public:
    // The code points of valid UTF-8 text; nullopt for anything else.
    static std::optional<std::u32string> codePoints(std::string_view text);
    // The length of text without an unfinished sequence at its very end.
    static std::size_t withoutIncompleteTail(std::string_view text);
    // One code point as UTF-8.
    static std::string encode(char32_t point);

private:
    static int sequenceLength(unsigned char lead);
};
