#pragma once

#include <QList>
#include <QMessageBox>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <memory>

class QPushButton;
class QProxyStyle;

// The utility's message box: a message, up to three buttons and an
// informative text, laid out with the first button rightmost in every style and
// answering the classic three-way result whatever order the buttons came in.
class OVAlert : public QMessageBox {
    Q_OBJECT

public:
    static constexpr int defaultReturn = 1;
    static constexpr int alternateReturn = 0;
    static constexpr int otherReturn = -1;
    static constexpr const char *defaultButtonTitle = "OK";
    // The informative-text format of a plain message.
    static constexpr const char *plainMessageFormat = "%@";

    // Answers the index (0-based, in panel order) of the button a person would
    // press, or anything else for no button. Lets tests run alerts unattended.
    using Responder = std::function<int(const OVAlert &)>;

    // Null titles are left out; a null default title becomes "OK". The
    // informative text is `format` with each "%@" replaced by the next
    // argument.
    static std::unique_ptr<OVAlert> alertWithMessageText(const QString &messageText,
                                                         const QString &defaultButton,
                                                         const QString &alternateButton,
                                                         const QString &otherButton,
                                                         const QString &informativeTextWithFormat,
                                                         const QStringList &arguments = {});

    ~OVAlert() override;

    int runModal();
    // Shows the alert without taking the keyboard from the window below, for
    // a message on what was just typed: the keys after it still reach the
    // field. It deletes itself once closed.
    static QPointer<OVAlert> showWithoutBlocking(std::unique_ptr<OVAlert> alert);

    // Part of the fixed interface; nothing in the utility calls the getter.
    bool isSecondButtonOther() const { return m_isSecondButtonOther; }
    void setIsSecondButtonOther(bool isOther) { m_isSecondButtonOther = isOther; }
    // Button titles in panel order: default, other, alternate.
    QStringList buttonTitles() const;
    QList<QPushButton *> panelButtons() const { return m_buttons; }

    // An empty responder restores the real modal dialog.
    static void setResponder(Responder responder);

private:
    OVAlert();
    void addPanelButton(const QString &title);
    int resultForButtonIndex(qsizetype index) const;

    QList<QPushButton *> m_buttons;
    bool m_isSecondButtonOther = false;
    std::unique_ptr<QProxyStyle> m_buttonBoxStyle;
};
