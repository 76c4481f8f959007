#pragma once

#include <QObject>

#include <array>
#include <optional>

class QContextMenuEvent;
class QKeyEvent;
class QLineEdit;
class QMouseEvent;

// Typing and pasting across the six byte fields of a MAC address, as one
// entry: a whole address pasted into any byte (by key, by the field's menu or
// by the middle button) fills all six; a third digit or a separator typed into
// a full byte goes on in the next one.
class OVMacAddressEntry : public QObject {
    Q_OBJECT

public:
    static constexpr int byteCount = 6;
    using Fields = std::array<QLineEdit *, byteCount>;

    OVMacAddressEntry(const Fields &fields, QObject *parent);

    // The six bytes of "00:1B:63:84:45:E6", "00-1b-63-84-45-e6" or
    // "001B638445E6", surrounding blanks allowed; nullopt for anything else.
    static std::optional<std::array<QString, byteCount>> parse(const QString &text);

signals:
    // A paste filled the fields.
    void filled();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool fill(const QString &text);
    bool showMenu(QLineEdit *field, const QContextMenuEvent *event);
    bool middleClick(const QMouseEvent *event);
    bool moveOn(qsizetype field, QKeyEvent *key);

    Fields m_fields;
};
