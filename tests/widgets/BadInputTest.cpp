// Hostile input into every field: huge pastes, lone and paired surrogates,
// NUL and mixed scripts. A field may refuse it but must end up holding text
// that obeys its own rules.
#include "CharacterSets.h"
#include "ControlTestSupport.h"
#include "OVCustomRestrictedTextField.h"
#include "OVRestrictedTextField.h"
#include "OrvoHelper.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

std::unique_ptr<QLineEdit> makeField(int kind) {
    if (kind < 2) {
        auto field = std::make_unique<OVRestrictedTextField>();
        if (kind == 0) {
            field->setValidCharacters(ControlSets::community());
            field->setInvalidCharacters(ControlSets::communityInvalid());
            field->setMaxLength(ControlSets::communityMaxLength);
            field->showMessageIfInvalid(true);
        } else {
            field->setNumeric();
            field->restrictMaxValue(999);
        }
        return field;
    }
    auto field = std::make_unique<OVCustomRestrictedTextField>();
    field->setValidCharacters(kind == 2 ? ControlSets::hexadecimal() : ControlSets::community());
    if (kind == 2)
        field->setMaxEditableTextLength(2);
    else
        field->setAllowAutoTrim();
    return field;
}

TEST(BadInputTest, fieldsKeepTheirRules) {
    const std::pair<QString, int> rules[] = {{ControlSets::community(), 32},
                                             {"0123456789", 32767},
                                             {ControlSets::hexadecimal(), 2},
                                             {ControlSets::community(), 32767}};
    const QString unit = QStringLiteral("ab-12 Ωж中文ا\U0001F600") + QChar(0) + QChar(0x200B);
    const QString megabyte = unit.repeated(1024 * 1024 / unit.size() + 1);
    const QString inputs[] = {
        QStringLiteral("\U0001F600\U0001F4A9"), QString(QChar(0xD83D)) + "a" + QChar(0xDE00),
        QString("a") + QChar(0) + "b", QStringLiteral("abcЖΩ中文العربية"), megabyte};
    AlertRecorder alerts;
    for (int kind = 0; kind < 4; ++kind) {
        for (const QString &input : inputs) {
            const auto typed = makeField(kind), pasted = makeField(kind);
            typeText(typed.get(), "12" + input.left(64));
            typeText(pasted.get(), "12");
            paste(pasted.get(), input);
            QTest::keyClick(pasted.get(), Qt::Key_Return);
            for (const QLineEdit *field : {typed.get(), pasted.get()}) {
                EXPECT_TRUE(OrvoHelper::isValidString(field->text(), rules[kind].first))
                    << kind << ": " << field->text().left(40).toStdString();
                EXPECT_LE(field->text().size(), rules[kind].second);
            }
        }
    }
}

} // namespace
