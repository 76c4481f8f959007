#pragma once

#include "OrvoSettings.h"
#include "OrvoSettingsVerdict.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// How settings become the update job's options and come back from the values
// the PPD stores under the same keywords (flags "1"/"0", decimal indices,
// base64 of UTF-8 text, long names over six "_Part%d" keywords).
class OrvoSettingsCodec {
public:
    using Option = std::pair<std::string, std::string>; // keyword, value
    using Options = std::vector<Option>;
    // A keyword's stored value; null when there is none.
    using Lookup = std::function<const char *(const std::string &keyword)>;
    struct Ignored {
        std::string keyword; // as stored, index included
        OrvoSettingsVerdict verdict;
    };
    struct Decoded {
        OrvoSettings settings;
        std::vector<Ignored> ignored;
    };

    // The update job's options, in the order the job carries them. Every list
    // slot up to its limit is written, so that a shorter list clears the
    // entries of a longer one. Entries and parts beyond the limits are
    // written too: what may be sent is for OrvoSettingsRules to say.
    static Options encode(const OrvoSettings &settings);
    // The "_Part%d" options of one name: six, or as many as its base64 needs.
    static Options encodeMultiPart(const std::string &keyword, std::string_view text);
    static std::string encodeBase64(std::string_view bytes);

    // Every setting from its stored values. A value the encoder could not
    // have written, or one its setting's rule refuses, reads as absent (the
    // setting's default) and is listed as ignored.
    static Decoded decode(const Lookup &stored);
    // The text of one base64 value, up to a NUL byte; nullopt when the value
    // is not base64 as the encoder writes it or the text is not UTF-8.
    static std::optional<std::string> decodeText(std::string_view stored);
    // One name from its parts; "" when none is stored, nullopt when the parts
    // are not as the encoder writes them (each full but the last, no gaps).
    static std::optional<std::string> decodeMultiPart(const std::string &keyword,
                                                      const Lookup &stored);
    // An index as the encoder writes it (decimal without leading zeros);
    // nullopt otherwise. A long number stays far outside every range.
    static std::optional<long long> decodeIndex(std::string_view stored);

    // Base64 with padding, its length a multiple of four; "" too.
    static bool isBase64(std::string_view text);

private:
    static std::optional<std::string> decodeBase64(std::string_view text);
    static void appendNames(Options &options, const OrvoSettingsNameList &list,
                            const OrvoSettings &settings);
    static void appendIndices(Options &options, const std::vector<std::int32_t> &indices);
    static std::vector<std::string> decodeNames(const OrvoSettingsNameList &list,
                                                const Lookup &stored, Decoded &decoded);
    static std::vector<std::int32_t> decodeIndices(const Lookup &stored, Decoded &decoded);
    static void decodeSnmp(const Lookup &stored, Decoded &decoded);
    static std::optional<std::string> decodeChecked(const char *keyword,
                                                    OrvoSettingsVerdict (*rule)(std::string_view),
                                                    const Lookup &stored, Decoded &decoded);
};
