#include "OVCustomRestrictedTextField.h"

#include "OVNotificationCenter.h"
#include "OrvoHelper.h"

OVCustomRestrictedTextField::OVCustomRestrictedTextField(QWidget *parent)
    : NSKeyValueTextField(parent) {
    connect(this, &QLineEdit::returnPressed, this, [this] { textDidEndEditing(OVNotification{}); });
}

void OVCustomRestrictedTextField::postNotificationWithString(const QString &methodName) {
    if (!m_bSendNotification) {
        return;
    }
    OVNotificationCenter::defaultCenter().postNotification(
        QString::fromLatin1(notification), this,
        {{QString::fromLatin1(methodNameKey), methodName}});
}

void OVCustomRestrictedTextField::sendEndEditingNotification() {
    postNotificationWithString(QString::fromLatin1(textDidEndEditingMethod));
}

bool OVCustomRestrictedTextField::becomeFirstResponder() {
    if (m_bSendNotification) {
        OVNotificationCenter::defaultCenter().postNotification(
            QString::fromLatin1(becomeNotification), this);
    }
    return true;
}

void OVCustomRestrictedTextField::textDidChange(const OVNotification &) {
    if (!m_validCharacters.isNull() && !OrvoHelper::isValidString(text(), m_validCharacters)) {
        if (!m_bAlloWAutoTrim) {
            restoreText(m_oldString.isNull() ? QStringLiteral("") : m_oldString);
            return;
        }
        restoreText(OrvoHelper::stringByRemovingInvalidCharacters(text(), m_validCharacters));
    }
    if (m_maxEditableTextLength >= 0 && text().size() > m_maxEditableTextLength) {
        if (m_oldString.isNull()) {
            m_oldString = QStringLiteral("");
        }
        restoreText(m_oldString);
        return;
    }
    m_oldString = text();
    postNotificationWithString(QString::fromLatin1(textDidChangeMethod));
}

void OVCustomRestrictedTextField::textDidEndEditing(const OVNotification &) {
    sendEndEditingNotification();
}

void OVCustomRestrictedTextField::userDidEdit(const QString &previousText) {
    // The window fills these fields in code, which no edit sees: the text shown
    // before this key is what a refused key puts back, so a stray key never
    // empties a MAC byte or an address loaded from the PPD or the printer.
    m_oldString = previousText;
    textDidChange(OVNotification{});
}

bool OVCustomRestrictedTextField::textView(KeyCommand doCommandBySelector) {
    return followKeyViewChain(doCommandBySelector);
}

void OVCustomRestrictedTextField::focusInEvent(QFocusEvent *event) {
    NSKeyValueTextField::focusInEvent(event);
    if (changesFirstResponder(event)) {
        becomeFirstResponder();
    }
}

void OVCustomRestrictedTextField::focusOutEvent(QFocusEvent *event) {
    if (changesFirstResponder(event)) {
        textDidEndEditing(OVNotification{});
    }
    NSKeyValueTextField::focusOutEvent(event);
}
