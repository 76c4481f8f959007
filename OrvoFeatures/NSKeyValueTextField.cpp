#include "NSKeyValueTextField.h"

#include <QDebug>

#include <algorithm>

NSKeyValueTextField::NSKeyValueTextField(QWidget *parent)
    : QLineEdit(parent)
    , m_latestText(text()) {
    connect(this, &QLineEdit::textChanged, this, &NSKeyValueTextField::trackText);
    connect(this, &QLineEdit::textEdited, this, &NSKeyValueTextField::onTextEdited);
}

void NSKeyValueTextField::setName(const QString &name, qint32 elementID,
                                  const QString &parentElement) {
    if (elementID < 0) {
        qWarning().noquote() << wrongControlIdMessage;
    }
    m_elementName = name;
    m_elementID = elementID;
    m_parentElement = parentElement;
}

void NSKeyValueTextField::setKeyArray(const QStringList &keyArray, const QList<qint32> &valArray) {
    m_valueDict.clear();
    const qsizetype count = std::min(keyArray.size(), valArray.size());
    for (qsizetype i = 0; i < count; ++i) {
        m_valueDict.insert(keyArray.at(i), valArray.at(i));
    }
}

qint32 NSKeyValueTextField::getSelectedValue() const {
    if (m_selectedStringValue.isNull()) {
        return 0;
    }
    return std::max(0, m_valueDict.value(m_selectedStringValue, 0));
}

void NSKeyValueTextField::userDidEdit(const QString &) {}

void NSKeyValueTextField::restoreText(const QString &text) {
    const qsizetype shrink = this->text().size() - text.size();
    const qsizetype cursor = std::clamp<qsizetype>(cursorPosition() - shrink, 0, text.size());
    setText(text);
    setCursorPosition(int(cursor));
}

bool NSKeyValueTextField::followKeyViewChain(KeyCommand command) {
    if (command == KeyCommand::Other) {
        return false;
    }
    QLineEdit::focusNextPrevChild(command == KeyCommand::InsertTab);
    return true;
}

bool NSKeyValueTextField::focusNextPrevChild(bool next) {
    return textView(next ? KeyCommand::InsertTab : KeyCommand::InsertBacktab) ||
           QLineEdit::focusNextPrevChild(next);
}

bool NSKeyValueTextField::changesFirstResponder(const QFocusEvent *event) {
    return event->reason() != Qt::ActiveWindowFocusReason &&
           event->reason() != Qt::PopupFocusReason;
}

bool NSKeyValueTextField::textView(KeyCommand) {
    return false;
}

void NSKeyValueTextField::trackText() {
    // Reads the field rather than the signal's argument: a change announced
    // after the field already restored its text must not count as new text.
    if (text() == m_latestText) {
        return;
    }
    m_previousText = m_latestText;
    m_latestText = text();
}

void NSKeyValueTextField::onTextEdited(const QString &text) {
    const QString before = m_latestText == text ? m_previousText : m_latestText;
    userDidEdit(before);
}
