#include "OVMacAddressEntry.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>

namespace {
constexpr qsizetype digitsPerByte = 2;

bool isSeparator(const QString &text) {
    return text == u':' || text == u'-' || text == u' ' || text == u'.';
}
} // namespace

OVMacAddressEntry::OVMacAddressEntry(const Fields &fields, QObject *parent)
    : QObject(parent)
    , m_fields(fields) {
    for (QLineEdit *field : m_fields)
        field->installEventFilter(this);
}

std::optional<std::array<QString, OVMacAddressEntry::byteCount>>
OVMacAddressEntry::parse(const QString &text) {
    static const QRegularExpression form(
        QStringLiteral("^[0-9A-Fa-f]{2}(?:([:-])[0-9A-Fa-f]{2}(?:\\1[0-9A-Fa-f]{2}){4}|"
                       "[0-9A-Fa-f]{10})$"));
    const QString trimmed = text.trimmed();
    if (!form.match(trimmed).hasMatch())
        return std::nullopt;
    const QString digits = QString(trimmed).remove(u':').remove(u'-').toUpper();
    std::array<QString, byteCount> bytes;
    for (int i = 0; i < byteCount; ++i)
        bytes[i] = digits.mid(i * digitsPerByte, digitsPerByte);
    return bytes;
}

bool OVMacAddressEntry::eventFilter(QObject *watched, QEvent *event) {
    const qsizetype field = std::find(m_fields.begin(), m_fields.end(), watched) - m_fields.begin();
    if (event->type() != QEvent::KeyPress || field == byteCount)
        return QObject::eventFilter(watched, event);
    auto *key = static_cast<QKeyEvent *>(event);
    if (key->matches(QKeySequence::Paste))
        return paste();
    return moveOn(field, key);
}

// Anything else pasted is left to the field, whose rules refuse it.
bool OVMacAddressEntry::paste() {
    const auto bytes = parse(QApplication::clipboard()->text());
    if (!bytes)
        return false;
    for (int i = 0; i < byteCount; ++i)
        m_fields[i]->setText((*bytes)[i]);
    emit filled();
    return true;
}

// A separator moves on from any byte; a digit only from a full one with the
// cursor at its end and nothing selected, and it goes into the next byte.
bool OVMacAddressEntry::moveOn(qsizetype field, QKeyEvent *key) {
    QLineEdit *current = m_fields[field];
    const QString typed = key->text();
    const bool separator = isSeparator(typed);
    const bool fullByte = current->text().size() >= digitsPerByte && !current->hasSelectedText() &&
                          current->cursorPosition() == current->text().size();
    const bool digitBeyond = fullByte && !typed.isEmpty() && typed.at(0).isLetterOrNumber();
    if (field + 1 == byteCount || !(separator || digitBeyond))
        return separator;
    QLineEdit *next = m_fields[field + 1];
    next->setFocus(Qt::TabFocusReason);
    next->selectAll();
    if (digitBeyond) {
        QKeyEvent again(key->type(), key->key(), key->modifiers(), typed);
        QApplication::sendEvent(next, &again);
    }
    return true;
}
