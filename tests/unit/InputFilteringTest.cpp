// Character filtering and the partial-edit formatter of the input controls.
#include "../widgets/CharacterSets.h"
#include "OVRestrictedStringFormatter.h"
#include "OrvoHelper.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

const QString communitySet = ControlSets::community();

struct FilterCase {
    const char *name;
    QString string;
    QString characters;
    QString expected;
};

class FilterTest : public ::testing::TestWithParam<FilterCase> {};

TEST_P(FilterTest, keepsOnlyMembersOfTheSet) {
    const FilterCase &c = GetParam();
    const QString filtered = OrvoHelper::deleteInvalidCharactersFromString(c.string, c.characters);
    EXPECT_EQ(filtered, c.expected);
    EXPECT_EQ(filtered.isNull(), c.expected.isNull());
    EXPECT_EQ(OrvoHelper::isValidString(c.string, c.characters), c.string == c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Sets, FilterTest,
    ::testing::Values(
        FilterCase{"hyphens", "a-b-c", communitySet, "abc"},
        FilterCase{"space", "ab c", communitySet, "abc"},
        FilterCase{"yenAndZeroWidthSpace", QString(QChar(0x00A5)) + QChar(0x200B) + "Z",
                   communitySet, QString(QChar(0x00A5)) + QChar(0x200B) + "Z"},
        // Full-width Y and the no-break space look alike but are other units.
        FilterCase{"lookalikes", QString(QChar(0xFF39)) + QChar(0x00A0) + "y", communitySet, "y"},
        FilterCase{"noCaseFolding", "aAbB", "ab", "ab"},
        FilterCase{"emptySetRemovesAll", "x", QStringLiteral(""), QStringLiteral("")},
        FilterCase{"nullSetKeepsAll", "x", QString(), "x"},
        FilterCase{"adjacentInvalid", "--a--b!!", "ab", "ab"},
        FilterCase{"surrogateHalvesAreUnits", QStringLiteral("a\U0001F600"),
                   QString(QChar(0xD83D)) + "a", QStringLiteral("a") + QChar(0xD83D)},
        FilterCase{"nul", QString("a") + QChar(0) + "b", "ab", "ab"},
        FilterCase{"emptyString", QStringLiteral(""), "ab", QStringLiteral("")},
        FilterCase{"nullString", QString(), "ab", QString()}),
    [](const auto &info) { return std::string(info.param.name); });

TEST(OrvoHelperTest, communitySetsHaveTheirExactUnits) {
    EXPECT_EQ(communitySet.size(), 76);
    EXPECT_EQ(communitySet.count(QChar(0x200B)), 2);
    EXPECT_EQ(ControlSets::communityInvalid().size(), 21);
    EXPECT_FALSE(OrvoHelper::isValidString("-", communitySet));
    EXPECT_FALSE(OrvoHelper::isValidString(" ", communitySet));
}

TEST(OrvoHelperTest, nullStringsAreValidAndTrimToEmpty) {
    EXPECT_TRUE(OrvoHelper::isValidString(QString(), QStringLiteral("")));
    EXPECT_TRUE(OrvoHelper::deleteCharFromString(QString(), u'a').isNull());
    const QString trimmed = OrvoHelper::stringByRemovingInvalidCharacters(QString(), "ab");
    EXPECT_TRUE(!trimmed.isNull() && trimmed.isEmpty());
    EXPECT_EQ(OrvoHelper::stringByRemovingInvalidCharacters("a-b", "ab"), "ab");
}

struct NumberTextCase {
    QString string;
    bool multipleSeparators;
    bool validFloat;
};

class NumberTextTest : public ::testing::TestWithParam<NumberTextCase> {};

TEST_P(NumberTextTest, separatorChecks) {
    const NumberTextCase &c = GetParam();
    EXPECT_EQ(OrvoHelper::hasMultipleDecimalSeperator(c.string), c.multipleSeparators);
    EXPECT_EQ(OrvoHelper::isValidFloatFormat(c.string), c.validFloat);
}

INSTANTIATE_TEST_SUITE_P(
    Strings, NumberTextTest,
    ::testing::Values(NumberTextCase{"1.2.3", true, false}, NumberTextCase{"1.2", false, true},
                      NumberTextCase{"1,2,3", false, false}, NumberTextCase{"2,0", false, true},
                      NumberTextCase{"1.", false, false}, NumberTextCase{"1,2.3", false, true},
                      NumberTextCase{"12", false, true}, NumberTextCase{QString(), false, true}));

TEST(OrvoHelperTest, intValueReadsLeadingDigitsAndClamps) {
    const std::pair<QString, int> cases[] = {{"120", 120},
                                             {"  -7x", -7},
                                             {"abc", 0},
                                             {"", 0},
                                             {"+5", 5},
                                             {"99999999999", INT_MAX},
                                             {"-99999999999", INT_MIN},
                                             {"2147483647", INT_MAX},
                                             {"-2147483648", INT_MIN}};
    for (const auto &[string, value] : cases) {
        EXPECT_EQ(OrvoHelper::intValue(string), value) << string.toStdString();
    }
}

struct PartialCase {
    const char *name;
    bool numeric;
    QString partial;
    bool accepted;
    QString replacement;
};

class PartialEditTest : public ::testing::TestWithParam<PartialCase> {};

TEST_P(PartialEditTest, acceptsOrReplaces) {
    const PartialCase &c = GetParam();
    auto formatter = OVRestrictedStringFormatter::initWithValidCharacters("0123456789");
    if (c.numeric) {
        formatter->setNumeric();
    }
    QString replacement = QStringLiteral("untouched");
    EXPECT_EQ(formatter->isPartialStringValid(c.partial, &replacement, nullptr), c.accepted);
    EXPECT_EQ(replacement, c.replacement);
    EXPECT_EQ(replacement.isNull(), c.replacement.isNull());
}

INSTANTIATE_TEST_SUITE_P(
    Edits, PartialEditTest,
    ::testing::Values(PartialCase{"aboveRange", true, "500", false, "340"},
                      PartialCase{"belowRange", true, "12", false, "90"},
                      PartialCase{"firstDigitSnaps", true, "1", false, "90"},
                      PartialCase{"inRange", true, "120", true, QString()},
                      PartialCase{"rangeEnds", true, "340", true, QString()},
                      PartialCase{"overflowingDigits", true, "99999999999", false, "340"},
                      PartialCase{"inRangeButLetters", true, "120a", false, QString()},
                      PartialCase{"emptyAccepted", true, "", true, QString()},
                      PartialCase{"textBelowRangeSnaps", true, "abc", false, "90"},
                      PartialCase{"plainValid", false, "12", true, QString()},
                      PartialCase{"plainInvalid", false, "1a", false, QString()}),
    [](const auto &info) { return std::string(info.param.name); });

TEST(OVRestrictedStringFormatterTest, invalidSetIsKeptButDoesNotFilter) {
    auto formatter = OVRestrictedStringFormatter::initWithInvalidCharacters("-");
    EXPECT_TRUE(formatter->validCharacters().isNull());
    EXPECT_EQ(formatter->invalidCharacters(), "-");
    EXPECT_TRUE(formatter->isPartialStringValid("a-b", nullptr, nullptr));
}

TEST(OVRestrictedStringFormatterTest, objectValues) {
    EXPECT_EQ(OVRestrictedStringFormatter::stringForObjectValue(42), "42");
    EXPECT_EQ(OVRestrictedStringFormatter::stringForObjectValue(1.5), "1.5");
    EXPECT_TRUE(OVRestrictedStringFormatter::stringForObjectValue(QStringLiteral("42")).isNull());

    auto formatter = OVRestrictedStringFormatter::initWithValidCharacters("0123456789");
    QVariant value = QStringLiteral("unset");
    EXPECT_TRUE(formatter->getObjectValue(&value, "123", nullptr));
    EXPECT_EQ(value, QStringLiteral("unset")) << "plain mode leaves the object alone";
    EXPECT_TRUE(formatter->getObjectValue(&value, QString(), nullptr));
    EXPECT_EQ(value, QStringLiteral(""));

    formatter->setNumeric();
    formatter->getObjectValue(&value, "123", nullptr);
    EXPECT_EQ(value.typeId(), QMetaType::Int);
    EXPECT_EQ(value.toInt(), 123);
    formatter->getObjectValue(&value, "12a", nullptr);
    EXPECT_EQ(value, QStringLiteral("12a"));
}

} // namespace
