#pragma once

#include <QFocusEvent>
#include <QLineEdit>
#include <QList>
#include <QMap>
#include <QStringList>

// A text field that also carries the identity of the setting it edits and a
// table from selectable strings to integer values. It is the base of the
// restricted fields and gives them one hook per user edit (keystroke, paste,
// drop, undo), with the text shown before that edit.
class NSKeyValueTextField : public QLineEdit {
    Q_OBJECT

public:
    // Commands a field receives from the keyboard besides plain typing.
    enum class KeyCommand { InsertTab, InsertBacktab, Other };

    static constexpr const char *wrongControlIdMessage = "Wrong control ID";

    explicit NSKeyValueTextField(QWidget *parent = nullptr);

    // Part of the fixed interface; nothing in the utility calls the element
    // accessors, selectedStringValue, valueDict or setSelectedValueList.
    QString getElementName() const { return m_elementName; }
    void setElementName(const QString &elementName) { m_elementName = elementName; }
    qint32 getElementID() const { return m_elementID; }
    void setElementID(qint32 elementID) { m_elementID = elementID; }
    QString getParentElement() const { return m_parentElement; }
    void setParentElement(const QString &parentElement) { m_parentElement = parentElement; }
    QString selectedStringValue() const { return m_selectedStringValue; }
    void setSelectedStringValue(const QString &value) { m_selectedStringValue = value; }
    QMap<QString, qint32> valueDict() const { return m_valueDict; }

    // A negative ID is logged as a wrong control ID and stored all the same.
    void setName(const QString &name, qint32 elementID, const QString &parentElement);
    // Keys beyond the end of `valArray` are left out; a repeated key keeps the
    // later value.
    void setKeyArray(const QStringList &keyArray, const QList<qint32> &valArray);
    // 0 unless the selected string is a key with a non-negative value.
    qint32 getSelectedValue() const;
    bool setSelectedValueList(const QVariant &) { return true; }

protected:
    // Called after each user edit; `previousText` is what the field showed
    // before it.
    virtual void userDidEdit(const QString &previousText);
    // Replaces the text during an edit, leaving the cursor where the user's
    // insertion began when the text shrinks back.
    void restoreText(const QString &text);
    // Moves focus along the window's key-view (focus) chain; true when the
    // command was a tab command.
    bool followKeyViewChain(KeyCommand command);
    // Tab and Back-tab come here instead of Qt's own focus handling.
    bool focusNextPrevChild(bool next) override;
    // Focus moving inside the window, as opposed to the window itself being
    // deactivated or a popup opening, which leaves the field in charge.
    static bool changesFirstResponder(const QFocusEvent *event);
    // What the field does with a keyboard command; the base leaves it alone.
    virtual bool textView(KeyCommand doCommandBySelector);

private:
    void trackText();
    void onTextEdited(const QString &text);

    QString m_elementName;
    qint32 m_elementID = -1;
    QString m_parentElement;
    QString m_selectedStringValue;
    QMap<QString, qint32> m_valueDict;
    // The two latest texts, so the text before an edit is known whichever of
    // textChanged and textEdited Qt emits first.
    QString m_latestText;
    QString m_previousText;
};
