#pragma once

#include <QByteArray>
#include <QDialog>
#include <QString>

class OVRestrictedTextField;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

// How the window asks the printer: SNMP v1 with the community of the row
// beside the button that opens this dialog, or SNMPv3 as a user with its
// protocols and passphrases. The user name takes the community's characters
// and alerts as the community field does; the passphrases never echo.
class OVSnmpSecurityDialog : public QDialog {
    Q_OBJECT

public:
    // Net-SNMP makes no key from a shorter passphrase.
    static constexpr int passphraseMinimum = 8;

    struct Choice {
        bool v3 = false;
        QString user;
        QString authProtocol;
        // "" for none: authentication without privacy.
        QString privProtocol;
        QByteArray authPassphrase;
        QByteArray privPassphrase;
        bool remember = true;

        bool complete() const {
            return !v3 || (!user.isEmpty() && !authPassphrase.isEmpty() &&
                           (privProtocol.isEmpty() || !privPassphrase.isEmpty()));
        }
        // No passphrase given too short for a key; the user named for v3.
        bool acceptable() const {
            const auto fits = [](const QByteArray &p) {
                return p.isEmpty() || p.size() >= passphraseMinimum;
            };
            return !v3 || (!user.isEmpty() && fits(authPassphrase) && fits(privPassphrase));
        }
    };

    // prompt: why the dialog opens on its own (before a fetch that lacks a
    // passphrase), which then takes OK only with every passphrase given.
    OVSnmpSecurityDialog(const Choice &choice, const QString &prompt, QWidget *parent);

    Choice choice() const;

private:
    void addVersionChoice(const Choice &choice);
    void addUserFields(const Choice &choice);
    QLineEdit *addPassphrase(const char *label, const char *objectName, const QByteArray &text);
    void updateControls();

    bool m_needsPassphrases;
    QRadioButton *m_v1 = nullptr;
    QRadioButton *m_v3 = nullptr;
    OVRestrictedTextField *m_user = nullptr;
    QComboBox *m_authProtocol = nullptr;
    QComboBox *m_privProtocol = nullptr;
    QLineEdit *m_authPassphrase = nullptr;
    QLineEdit *m_privPassphrase = nullptr;
    QCheckBox *m_remember = nullptr;
    QPushButton *m_okButton = nullptr;
};
