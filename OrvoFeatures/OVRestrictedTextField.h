#pragma once

#include "NSKeyValueTextField.h"
#include "OVNotification.h"
#include "OVRestrictedStringFormatter.h"

#include <QPointer>
#include <QSpinBox>

#include <memory>

class OVAlert;

// A text field that undoes, on every keystroke or paste, what breaks its
// rules: characters outside the valid set, characters of the invalid set
// (optionally with an alert), and text beyond the length limit. As a number it
// is held to a minimum and maximum when editing ends and keeps a stepper in
// step.
class OVRestrictedTextField : public NSKeyValueTextField {
    Q_OBJECT

public:
    static constexpr const char *didEditingNotification = "OVRestrictedTextFieldDidEditing";
    static constexpr const char *numericCharacters = "0123456789";

    explicit OVRestrictedTextField(QWidget *parent = nullptr);
    ~OVRestrictedTextField() override;

    void setValidCharacters(const QString &validCharacters);
    QString validCharacters() const { return m_validCharacters; }
    void setInvalidCharacters(const QString &invalidCharacters);
    QString invalidCharacters() const { return m_invalidCharacters; }
    void setNumeric();
    void restrictMinValue(qint32 minValue) { m_minValue = minValue; }
    qint32 minValue() const { return m_minValue; }
    void restrictMaxValue(qint32 maxValue) { m_maxValue = maxValue; }
    qint32 maxValue() const { return m_maxValue; }
    // The field's own limit, in UTF-16 code units; -1 for none. Qt's hard
    // limit is left alone so an over-long edit reaches the check and is undone
    // instead of being cut silently.
    void setMaxLength(qint32 maxLength) { m_maxLength = maxLength; }
    qint32 maxLength() const { return m_maxLength; }
    void setNotifyEditing(bool notify) { m_bNotifyEditing = notify; }
    void showMessageIfInvalid(bool show) { m_bShowMessage = show; }
    // A "%1" in either text names the refused character.
    void setInvalidMessageString(const QString &invalidMessage, const QString &titleString);
    QString invalidMessage() const { return m_invalidMessage; }
    // Part of the fixed interface; nothing in the utility calls invalidTitle,
    // restrictedStringFormatter, setOldString or textShouldBeginEditing.
    QString invalidTitle() const { return m_invalidTitle; }
    void syncWithStepper(QSpinBox *stepper) { m_stepper = stepper; }
    QSpinBox *stepper() const { return m_stepper; }
    const OVRestrictedStringFormatter *restrictedStringFormatter() const {
        return m_restrictedStringFormatter.get();
    }
    QString oldString() const { return m_oldString; }
    void setOldString(const QString &oldString) { m_oldString = oldString; }

    // The keys typed while it shows still reach the field.
    void showMessage(QChar refused = QChar());

    bool textShouldBeginEditing(const OVNotification &) { return true; }
    void textDidBeginEditing(const OVNotification &notification);
    void textDidChange(const OVNotification &notification);
    void textDidEndEditing(const OVNotification &notification);
    void controlTextDidEndEditing(const OVNotification &notification);
    bool resignFirstResponder();

protected:
    void userDidEdit(const QString &previousText) override;
    bool textView(KeyCommand doCommandBySelector) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void beginEditing(const QString &textBeforeEditing);
    // false when the formatter refused the edit and the field took back the
    // text it had.
    bool applyFormatter(const QString &previousText);
    void removeInvalidCharacters();
    void clampToRange();
    void postDidEditing();

    QString m_validCharacters;
    QString m_invalidCharacters;
    std::unique_ptr<OVRestrictedStringFormatter> m_restrictedStringFormatter;
    QString m_oldString = QStringLiteral("");
    bool m_numeric = false;
    qint32 m_minValue = 0;
    qint32 m_maxValue = 0;
    qint32 m_maxLength = -1;
    QPointer<QSpinBox> m_stepper;
    bool m_bNotifyEditing = false;
    bool m_bShowMessage = false;
    QString m_invalidMessage = QStringLiteral("");
    QString m_invalidTitle;
    QPointer<OVAlert> m_shownMessage;
    bool m_editing = false;
};
