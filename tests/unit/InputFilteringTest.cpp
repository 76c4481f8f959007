// Character filtering and the partial-edit formatter of the input controls.
#include "../widgets/CharacterSets.h"
#include "OVRestrictedStringFormatter.h"
#include "OrvoHelper.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

TEST(OrvoHelperTest, filteringKeepsOnlyMembersOfTheSet) {
    const QString community = ControlSets::community();
    const QString yenZwsp = QString(QChar(0x00A5)) + QChar(0x200B);
    const struct {
        QString string, characters, expected;
    } cases[] = {
        {"a-b c", community, "abc"},
        {yenZwsp + "Z", community, yenZwsp + "Z"},
        // Full-width Y and the no-break space look alike but are other units.
        {QString(QChar(0xFF39)) + QChar(0x00A0) + "y", community, "y"},
        {"x", QStringLiteral(""), QStringLiteral("")},
        {"x", QString(), "x"},
        {QStringLiteral("a\U0001F600"), QString(QChar(0xD83D)) + "a", "a" + QString(QChar(0xD83D))},
        {QString("a") + QChar(0) + "b", "ab", "ab"},
        {QString(), "ab", QString()},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.string.toStdString());
        const QString filtered =
            OrvoHelper::deleteInvalidCharactersFromString(c.string, c.characters);
        EXPECT_EQ(filtered, c.expected);
        EXPECT_EQ(filtered.isNull(), c.expected.isNull());
        EXPECT_EQ(OrvoHelper::isValidString(c.string, c.characters), c.string == c.expected);
    }
    EXPECT_FALSE(OrvoHelper::stringByRemovingInvalidCharacters(QString(), "ab").isNull());
}

TEST(OrvoHelperTest, numberTexts) {
    const std::tuple<QString, bool, bool> cases[] = {{"1.2.3", true, false},
                                                     {"2,0", false, true},
                                                     {"1.", false, false},
                                                     {"1,2.3", false, true},
                                                     {"1,2,3", false, false}};
    for (const auto &[string, multipleSeparators, validFloat] : cases) {
        EXPECT_EQ(OrvoHelper::hasMultipleDecimalSeperator(string), multipleSeparators);
        EXPECT_EQ(OrvoHelper::isValidFloatFormat(string), validFloat) << string.toStdString();
    }
    const std::pair<QString, int> ints[] = {
        {"  -7x", -7}, {"abc", 0}, {"99999999999", INT_MAX}, {"-99999999999", INT_MIN}};
    for (const auto &[string, value] : ints)
        EXPECT_EQ(OrvoHelper::intValue(string), value) << string.toStdString();
}

// Numeric partial edits snap into 90–340; a non-digit is refused as is.
TEST(OVRestrictedStringFormatterTest, partialEdits) {
    const struct {
        bool numeric;
        QString partial;
        bool accepted;
        QString replacement;
    } cases[] = {{true, "500", false, "340"},      {true, "12", false, "90"},
                 {true, "340", true, QString()},   {true, "99999999999", false, "340"},
                 {true, "120a", false, QString()}, {true, "", true, QString()},
                 {true, "abc", false, "90"},       {false, "12", true, QString()},
                 {false, "1a", false, QString()}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.partial.toStdString());
        auto formatter = OVRestrictedStringFormatter::initWithValidCharacters("0123456789");
        if (c.numeric)
            formatter->setNumeric();
        QString replacement = "untouched";
        EXPECT_EQ(formatter->isPartialStringValid(c.partial, &replacement, nullptr), c.accepted);
        EXPECT_EQ(replacement, c.replacement);
        EXPECT_EQ(replacement.isNull(), c.replacement.isNull());
    }
    auto formatter = OVRestrictedStringFormatter::initWithValidCharacters("0123456789");
    QVariant value = QStringLiteral("unset");
    formatter->getObjectValue(&value, "123", nullptr);
    EXPECT_EQ(value, QStringLiteral("unset")) << "plain mode leaves the object alone";
    formatter->setNumeric();
    formatter->getObjectValue(&value, "123", nullptr);
    EXPECT_EQ(value, QVariant(123));
    formatter->getObjectValue(&value, "12a", nullptr);
    EXPECT_EQ(value, QVariant(QStringLiteral("12a")));
}

} // namespace
