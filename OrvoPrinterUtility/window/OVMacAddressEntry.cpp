#include "OVMacAddressEntry.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>

#include <memory>

namespace {
constexpr qsizetype digitsPerByte = 2;

bool isSeparator(const QString &text) {
    return text == u':' || text == u'-' || text == u' ' || text == u'.';
}

// The field's menu tells its actions apart only by their texts, in the field's
// own translation, with the shortcut after a tab where the desktop shows one.
QAction *pasteAction(const QMenu &menu) {
    const QString paste = QLineEdit::tr("&Paste");
    for (QAction *action : menu.actions()) {
        if (action->text().section(u'\t', 0, 0) == paste)
            return action;
    }
    return nullptr;
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
    if (field == byteCount)
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::KeyPress: {
        auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::Paste))
            return fill(QApplication::clipboard()->text());
        return moveOn(field, key);
    }
    case QEvent::ContextMenu:
        return showMenu(m_fields[field], static_cast<QContextMenuEvent *>(event));
    case QEvent::MouseButtonRelease:
        return middleClick(static_cast<QMouseEvent *>(event));
    default:
        return QObject::eventFilter(watched, event);
    }
}

// Anything else pasted is left to the field, whose rules refuse it.
bool OVMacAddressEntry::fill(const QString &text) {
    const auto bytes = parse(text);
    if (!bytes)
        return false;
    for (int i = 0; i < byteCount; ++i)
        m_fields[i]->setText((*bytes)[i]);
    emit filled();
    return true;
}

// The field's own menu, whose Paste takes a whole address as the key does.
bool OVMacAddressEntry::showMenu(QLineEdit *field, const QContextMenuEvent *event) {
    const std::unique_ptr<QMenu> menu(field->createStandardContextMenu());
    if (QAction *paste = pasteAction(*menu)) {
        disconnect(paste, &QAction::triggered, nullptr, nullptr);
        connect(paste, &QAction::triggered, field, [this, field] {
            if (!fill(QApplication::clipboard()->text()))
                field->paste();
        });
    }
    menu->exec(event->globalPos());
    return true;
}

// The middle button pastes the selection where the system has one.
bool OVMacAddressEntry::middleClick(const QMouseEvent *event) {
    const QClipboard *clipboard = QApplication::clipboard();
    return event->button() == Qt::MiddleButton && clipboard->supportsSelection() &&
           fill(clipboard->text(QClipboard::Selection));
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
