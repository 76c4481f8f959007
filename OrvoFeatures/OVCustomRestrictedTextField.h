#pragma once

#include "NSKeyValueTextField.h"
#include "OVNotification.h"

// The lighter restricted field for short entries such as MAC-address octets:
// a valid set, a maximum editable length, optional trimming of invalid
// characters, and events that name the editing phase.
class OVCustomRestrictedTextField : public NSKeyValueTextField {
    Q_OBJECT

public:
    static constexpr const char *notification = "OVCustomRestrictedTextFieldNotification";
    static constexpr const char *becomeNotification =
        "OVCustomRestrictedTextFieldBecomeNotification";
    static constexpr const char *methodNameKey = "MethodName";
    static constexpr const char *textDidChangeMethod = "textDidChange";
    static constexpr const char *textDidEndEditingMethod = "textDidEndEditing";

    explicit OVCustomRestrictedTextField(QWidget *parent = nullptr);

    void setValidCharacters(const QString &validCharacters) { m_validCharacters = validCharacters; }
    QString validCharacters() const { return m_validCharacters; }
    QString oldString() const { return m_oldString; }
    // Part of the fixed interface; nothing in the utility calls setOldString
    // or maxEditableTextLength.
    void setOldString(const QString &oldString) { m_oldString = oldString; }
    // Negative: no limit.
    void setMaxEditableTextLength(qint32 length) { m_maxEditableTextLength = length; }
    qint32 maxEditableTextLength() const { return m_maxEditableTextLength; }
    void setSendNotification(bool send) { m_bSendNotification = send; }
    // There is deliberately no way to turn trimming off again.
    void setAllowAutoTrim() { m_bAlloWAutoTrim = true; }

    void postNotificationWithString(const QString &methodName);
    void sendEndEditingNotification();

    bool becomeFirstResponder();
    void textDidChange(const OVNotification &notification);
    void textDidEndEditing(const OVNotification &notification);

protected:
    void userDidEdit(const QString &previousText) override;
    bool textView(KeyCommand doCommandBySelector) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QString m_validCharacters;
    QString m_oldString;
    qint32 m_maxEditableTextLength = -1;
    bool m_bSendNotification = false;
    bool m_bAlloWAutoTrim = false;
};
