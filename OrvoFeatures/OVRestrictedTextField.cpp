#include "OVRestrictedTextField.h"

#include "OVAlert.h"
#include "OVNotificationCenter.h"
#include "OrvoHelper.h"

OVRestrictedTextField::OVRestrictedTextField(QWidget *parent)
    : NSKeyValueTextField(parent) {
    connect(this, &QLineEdit::returnPressed, this,
            [this] { controlTextDidEndEditing(OVNotification{}); });
}

OVRestrictedTextField::~OVRestrictedTextField() = default;

void OVRestrictedTextField::setValidCharacters(const QString &validCharacters) {
    if (m_numeric) {
        m_restrictedStringFormatter =
            OVRestrictedStringFormatter::initWithValidCharacters(validCharacters);
    }
    m_validCharacters = validCharacters;
}

void OVRestrictedTextField::setInvalidCharacters(const QString &invalidCharacters) {
    m_invalidCharacters = invalidCharacters;
}

void OVRestrictedTextField::setNumeric() {
    m_numeric = true;
    setValidCharacters(QString::fromLatin1(numericCharacters));
    m_restrictedStringFormatter->setNumeric();
}

void OVRestrictedTextField::setInvalidMessageString(const QString &invalidMessage,
                                                    const QString &titleString) {
    m_invalidMessage = invalidMessage;
    m_invalidTitle = titleString;
}

namespace {
QString naming(const QString &text, QChar refused) {
    return text.contains(QLatin1String("%1")) ? text.arg(refused) : text;
}
} // namespace

// One message at a time: the latest refusal replaces an earlier one.
void OVRestrictedTextField::showMessage(QChar refused) {
    auto alert = OVAlert::alertWithMessageText(
        naming(m_invalidTitle, refused), QString::fromLatin1(OVAlert::defaultButtonTitle),
        QString(), QString(), QString::fromLatin1(OVAlert::plainMessageFormat),
        {naming(m_invalidMessage, refused)});
    alert->setIcon(QMessageBox::Critical);
    if (m_shownMessage)
        m_shownMessage->close();
    m_shownMessage = OVAlert::showWithoutBlocking(std::move(alert));
}

void OVRestrictedTextField::textDidBeginEditing(const OVNotification &) {
    beginEditing(text());
}

void OVRestrictedTextField::textDidChange(const OVNotification &) {
    removeInvalidCharacters();
    if (!m_validCharacters.isNull() && !OrvoHelper::isValidString(text(), m_validCharacters)) {
        if (!m_oldString.isNull()) {
            restoreText(m_oldString);
        }
        return;
    }
    if (m_maxLength != -1) {
        if (text().size() > m_maxLength) {
            if (!m_oldString.isNull()) {
                restoreText(m_oldString);
            }
        } else {
            // Only a limited field moves its restore point along; an unlimited
            // one restores the text it had when editing began.
            m_oldString = text();
        }
    }
    postDidEditing();
}

void OVRestrictedTextField::textDidEndEditing(const OVNotification &) {
    m_editing = false;
    if (m_numeric) {
        clampToRange();
        if (m_stepper) {
            m_stepper->setValue(OrvoHelper::intValue(text()));
        }
    }
    postDidEditing();
}

void OVRestrictedTextField::controlTextDidEndEditing(const OVNotification &notification) {
    textDidEndEditing(notification);
}

bool OVRestrictedTextField::resignFirstResponder() {
    textDidEndEditing(OVNotification{QStringLiteral(""), {}, {}});
    return true;
}

void OVRestrictedTextField::userDidEdit(const QString &previousText) {
    if (!m_editing) {
        // Editing begins with the first change, from the text shown before it.
        beginEditing(previousText);
    }
    if (applyFormatter(previousText)) {
        textDidChange(OVNotification{});
    }
}

bool OVRestrictedTextField::textView(KeyCommand doCommandBySelector) {
    return followKeyViewChain(doCommandBySelector);
}

void OVRestrictedTextField::focusInEvent(QFocusEvent *event) {
    NSKeyValueTextField::focusInEvent(event);
    if (changesFirstResponder(event)) {
        textDidBeginEditing(OVNotification{});
    }
}

void OVRestrictedTextField::focusOutEvent(QFocusEvent *event) {
    if (changesFirstResponder(event)) {
        resignFirstResponder();
    }
    NSKeyValueTextField::focusOutEvent(event);
}

void OVRestrictedTextField::beginEditing(const QString &textBeforeEditing) {
    m_editing = true;
    m_oldString = textBeforeEditing;
}

bool OVRestrictedTextField::applyFormatter(const QString &previousText) {
    if (!m_restrictedStringFormatter) {
        return true;
    }
    QString replacement;
    if (m_restrictedStringFormatter->isPartialStringValid(text(), &replacement, nullptr)) {
        return true;
    }
    if (replacement.isNull()) {
        restoreText(previousText);
        return false;
    }
    setText(replacement);
    return true;
}

void OVRestrictedTextField::removeInvalidCharacters() {
    if (m_invalidCharacters.isNull()) {
        return;
    }
    QString cleaned = text();
    QChar refused;
    for (const QChar c : std::as_const(m_invalidCharacters)) {
        if (refused.isNull() && cleaned.contains(c))
            refused = c;
        cleaned = OrvoHelper::deleteCharFromString(cleaned, c);
    }
    // Without an alert the typed text deliberately stays; the valid set then
    // decides.
    if (cleaned != text() && m_bShowMessage) {
        restoreText(cleaned);
        showMessage(refused);
    }
}

void OVRestrictedTextField::clampToRange() {
    const int value = OrvoHelper::intValue(text());
    if (value < m_minValue) {
        setText(QString::number(m_minValue));
    } else if (value > m_maxValue) {
        setText(QString::number(m_maxValue));
    }
}

void OVRestrictedTextField::postDidEditing() {
    if (m_bNotifyEditing) {
        OVNotificationCenter::defaultCenter().postNotification(
            QString::fromLatin1(didEditingNotification), this);
    }
}
