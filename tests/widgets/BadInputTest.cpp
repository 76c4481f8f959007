// Hostile input into every field: huge pastes, lone and paired surrogates,
// NUL and mixed scripts. A field may refuse it but must end up holding text
// that obeys its own rules.
#include "CharacterSets.h"
#include "ControlTestSupport.h"
#include "OVCustomRestrictedTextField.h"
#include "OVRestrictedTextField.h"
#include "OrvoHelper.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace {

struct FieldKind {
    const char *name;
    std::function<std::unique_ptr<QLineEdit>()> make;
    QString validCharacters;
    int maxLength;
};

std::unique_ptr<QLineEdit> communityField() {
    auto field = std::make_unique<OVRestrictedTextField>();
    field->setValidCharacters(ControlSets::community());
    field->setInvalidCharacters(ControlSets::communityInvalid());
    field->setMaxLength(ControlSets::communityMaxLength);
    field->showMessageIfInvalid(true);
    field->setNotifyEditing(true);
    return field;
}

std::unique_ptr<QLineEdit> numericField() {
    auto field = std::make_unique<OVRestrictedTextField>();
    field->setNumeric();
    field->restrictMinValue(1);
    field->restrictMaxValue(999);
    return field;
}

std::unique_ptr<QLineEdit> macField() {
    auto field = std::make_unique<OVCustomRestrictedTextField>();
    field->setValidCharacters(ControlSets::hexadecimal());
    field->setMaxEditableTextLength(2);
    field->setSendNotification(true);
    return field;
}

std::unique_ptr<QLineEdit> trimmingField() {
    auto field = std::make_unique<OVCustomRestrictedTextField>();
    field->setValidCharacters(ControlSets::community());
    field->setAllowAutoTrim();
    return field;
}

const FieldKind kinds[] = {
    {"community", communityField, ControlSets::community(), ControlSets::communityMaxLength},
    {"numeric", numericField, "0123456789", -1},
    {"mac", macField, ControlSets::hexadecimal(), 2},
    {"trimming", trimmingField, ControlSets::community(), -1},
};

QString megabyteOfMixedText() {
    const QString unit = QStringLiteral("ab-12 Ωж中文ا") + QStringLiteral("\U0001F600") + QChar(0) +
                         QChar(0x00A5) + QChar(0x200B);
    QString text;
    while (text.size() < 1024 * 1024) {
        text += unit;
    }
    return text;
}

const QString hostileInputs[] = {
    QStringLiteral("\U0001F600\U0001F4A9"), QString(QChar(0xD83D)) + "a" + QChar(0xDE00),
    QString("a") + QChar(0) + "b",          QStringLiteral("abcЖжΩ中文العربية"),
    QString(QChar(0xFFFF)) + QChar(0xFEFF),
};

void expectObeysRules(const QLineEdit &field, const FieldKind &kind) {
    EXPECT_TRUE(OrvoHelper::isValidString(field.text(), kind.validCharacters))
        << kind.name << ": " << field.text().left(40).toStdString();
    if (kind.maxLength >= 0) {
        EXPECT_LE(field.text().size(), kind.maxLength) << kind.name;
    }
}

TEST(BadInputTest, fieldsKeepTheirRules) {
    AlertRecorder alerts;
    for (const FieldKind &kind : kinds) {
        for (const QString &input : hostileInputs) {
            auto typed = kind.make();
            typeText(typed.get(), QStringLiteral("12") + input);
            expectObeysRules(*typed, kind);
            auto pasted = kind.make();
            paste(pasted.get(), input);
            expectObeysRules(*pasted, kind);
        }
    }
}

TEST(BadInputTest, megabytePaste) {
    AlertRecorder alerts;
    const QString huge = megabyteOfMixedText();
    for (const FieldKind &kind : kinds) {
        auto field = kind.make();
        typeText(field.get(), "12");
        paste(field.get(), huge);
        expectObeysRules(*field, kind);
        QTest::keyClick(field.get(), Qt::Key_Return);
        expectObeysRules(*field, kind);
    }
}

} // namespace
