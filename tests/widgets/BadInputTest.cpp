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
    std::function<std::unique_ptr<QLineEdit>()> make;
    QString validCharacters;
    int maxLength;
};

const FieldKind kinds[] = {
    {[] {
         auto field = std::make_unique<OVRestrictedTextField>();
         field->setValidCharacters(ControlSets::community());
         field->setInvalidCharacters(ControlSets::communityInvalid());
         field->setMaxLength(ControlSets::communityMaxLength);
         field->showMessageIfInvalid(true);
         return std::unique_ptr<QLineEdit>(std::move(field));
     },
     ControlSets::community(), ControlSets::communityMaxLength},
    {[] {
         auto field = std::make_unique<OVRestrictedTextField>();
         field->setNumeric();
         field->restrictMaxValue(999);
         return std::unique_ptr<QLineEdit>(std::move(field));
     },
     "0123456789", -1},
    {[] {
         auto field = std::make_unique<OVCustomRestrictedTextField>();
         field->setValidCharacters(ControlSets::hexadecimal());
         field->setMaxEditableTextLength(2);
         return std::unique_ptr<QLineEdit>(std::move(field));
     },
     ControlSets::hexadecimal(), 2},
    {[] {
         auto field = std::make_unique<OVCustomRestrictedTextField>();
         field->setValidCharacters(ControlSets::community());
         field->setAllowAutoTrim();
         return std::unique_ptr<QLineEdit>(std::move(field));
     },
     ControlSets::community(), -1},
};

QString megabyteOfMixedText() {
    const QString unit = QStringLiteral("ab-12 Ωж中文ا\U0001F600") + QChar(0) + QChar(0x200B);
    QString text;
    while (text.size() < 1024 * 1024) {
        text += unit;
    }
    return text;
}

TEST(BadInputTest, fieldsKeepTheirRules) {
    AlertRecorder alerts;
    const QString inputs[] = {
        QStringLiteral("\U0001F600\U0001F4A9"), QString(QChar(0xD83D)) + "a" + QChar(0xDE00),
        QString("a") + QChar(0) + "b", QStringLiteral("abcЖΩ中文العربية"), megabyteOfMixedText()};
    for (const FieldKind &kind : kinds) {
        for (const QString &input : inputs) {
            auto typed = kind.make();
            typeText(typed.get(), "12" + input.left(64));
            auto pasted = kind.make();
            typeText(pasted.get(), "12");
            paste(pasted.get(), input);
            QTest::keyClick(pasted.get(), Qt::Key_Return);
            for (const QLineEdit *field : {typed.get(), pasted.get()}) {
                EXPECT_TRUE(OrvoHelper::isValidString(field->text(), kind.validCharacters))
                    << field->text().left(40).toStdString();
                EXPECT_LE(field->text().size(), kind.maxLength < 0 ? 32767 : kind.maxLength);
            }
        }
    }
}

} // namespace
