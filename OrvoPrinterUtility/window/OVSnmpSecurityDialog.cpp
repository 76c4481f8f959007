#include "OVSnmpSecurityDialog.h"

#include "OVChooserTexts.h"
#include "OVMnemonics.h"
#include "OVRestrictedTextField.h"
#include "OVWindowSetUp.h"
#include "OVWindowTexts.h"
#include "OrvoSettingsKeywords.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <span>

using namespace OVWindowTexts;
using OVChooserTexts::localized;

namespace {

// The protocols by the names the queue settings give them; none (an empty
// name) first when noneText is given.
QComboBox *protocolBox(QWidget *parent, const char *objectName,
                       std::span<const char *const> protocols, const QString &chosen,
                       const char *noneText = nullptr) {
    auto *box = new QComboBox(parent);
    box->setObjectName(QString::fromLatin1(objectName));
    if (noneText)
        box->addItem(localized(noneText), QString(""));
    for (const char *protocol : protocols)
        box->addItem(QString::fromLatin1(protocol), QString::fromLatin1(protocol));
    const int index = box->findData(chosen);
    box->setCurrentIndex(index < 0 ? 0 : index);
    return box;
}

} // namespace

OVSnmpSecurityDialog::OVSnmpSecurityDialog(const Choice &choice, const QString &prompt,
                                           QWidget *parent)
    : QDialog(parent)
    , m_needsPassphrases(!prompt.isEmpty()) {
    setObjectName(QStringLiteral("snmpSecurityDialog"));
    setWindowTitle(OVChooserTexts::withoutMnemonic(localized(snmpSecurityButton)));
    auto *form = new QFormLayout(this);
    if (m_needsPassphrases) {
        auto *explanation = new QLabel(prompt, this);
        explanation->setObjectName(QStringLiteral("explanation"));
        explanation->setWordWrap(true);
        form->addRow(explanation);
    }
    addVersionChoice(choice);
    addUserFields(choice);
    auto *buttons = new QDialogButtonBox(this);
    m_okButton = buttons->addButton(localized(ok), QDialogButtonBox::AcceptRole);
    m_okButton->setDefault(true);
    buttons->addButton(localized(OVChooserTexts::cancel), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    for (QLineEdit *field : {static_cast<QLineEdit *>(m_user), m_authPassphrase, m_privPassphrase})
        connect(field, &QLineEdit::textChanged, this, &OVSnmpSecurityDialog::updateControls);
    connect(m_v3, &QRadioButton::toggled, this, &OVSnmpSecurityDialog::updateControls);
    connect(m_privProtocol, &QComboBox::currentIndexChanged, this,
            &OVSnmpSecurityDialog::updateControls);
    updateControls();
    OVMnemonics::assign(this);
}

void OVSnmpSecurityDialog::addVersionChoice(const Choice &choice) {
    m_v1 = new QRadioButton(localized(snmpVersion1), this);
    m_v1->setObjectName(QStringLiteral("snmpVersion1"));
    m_v3 = new QRadioButton(localized(snmpVersion3), this);
    m_v3->setObjectName(QStringLiteral("snmpVersion3"));
    (choice.v3 ? m_v3 : m_v1)->setChecked(true);
    auto *form = static_cast<QFormLayout *>(layout());
    form->addRow(m_v1);
    form->addRow(m_v3);
}

void OVSnmpSecurityDialog::addUserFields(const Choice &choice) {
    auto *form = static_cast<QFormLayout *>(layout());
    m_user = new OVRestrictedTextField(this);
    m_user->setObjectName(QStringLiteral("snmpUser"));
    OVWindowSetUp::restrictToCommunityCharacters(m_user, snmpUserCharacter);
    m_user->setText(choice.user);
    m_user->setAccessibleName(OVChooserTexts::withoutMnemonic(localized(snmpUserLabel)));
    form->addRow(localized(snmpUserLabel), m_user);
    m_authProtocol = protocolBox(this, "snmpAuthProtocol", OrvoSettingsKeywords::snmpAuthProtocols,
                                 choice.authProtocol);
    form->addRow(localized(snmpAuthProtocolLabel), m_authProtocol);
    m_authPassphrase =
        addPassphrase(snmpAuthPassphrase, "snmpAuthPassphrase", choice.authPassphrase);
    m_privProtocol = protocolBox(this, "snmpPrivProtocol", OrvoSettingsKeywords::snmpPrivProtocols,
                                 choice.privProtocol, snmpNoPrivacy);
    form->addRow(localized(snmpPrivProtocolLabel), m_privProtocol);
    m_privPassphrase =
        addPassphrase(snmpPrivPassphrase, "snmpPrivPassphrase", choice.privPassphrase);
    m_remember = new QCheckBox(localized(snmpRemember), this);
    m_remember->setObjectName(QStringLiteral("snmpRemember"));
    m_remember->setChecked(choice.remember);
    form->addRow(m_remember);
}

QLineEdit *OVSnmpSecurityDialog::addPassphrase(const char *label, const char *objectName,
                                               const QByteArray &text) {
    auto *field = new QLineEdit(this);
    field->setObjectName(QString::fromLatin1(objectName));
    field->setEchoMode(QLineEdit::Password);
    field->setPlaceholderText(localized(snmpPassphraseHint).arg(passphraseMinimum));
    field->setText(QString::fromUtf8(text));
    field->setAccessibleName(OVChooserTexts::withoutMnemonic(localized(label)));
    static_cast<QFormLayout *>(layout())->addRow(localized(label), field);
    return field;
}

// The user's fields count only for SNMPv3, and the privacy passphrase only
// with privacy.
void OVSnmpSecurityDialog::updateControls() {
    const bool v3 = m_v3->isChecked();
    for (QWidget *control :
         {static_cast<QWidget *>(m_user), static_cast<QWidget *>(m_authProtocol),
          static_cast<QWidget *>(m_authPassphrase), static_cast<QWidget *>(m_privProtocol),
          static_cast<QWidget *>(m_remember)})
        control->setEnabled(v3);
    m_privPassphrase->setEnabled(v3 && !m_privProtocol->currentData().toString().isEmpty());
    const Choice now = choice();
    m_okButton->setEnabled(now.acceptable() && (!m_needsPassphrases || now.complete()));
}

OVSnmpSecurityDialog::Choice OVSnmpSecurityDialog::choice() const {
    Choice choice;
    choice.v3 = m_v3->isChecked();
    choice.user = m_user->text();
    choice.authProtocol = m_authProtocol->currentData().toString();
    choice.privProtocol = m_privProtocol->currentData().toString();
    choice.authPassphrase = m_authPassphrase->text().toUtf8();
    if (!choice.privProtocol.isEmpty())
        choice.privPassphrase = m_privPassphrase->text().toUtf8();
    choice.remember = m_remember->isChecked();
    return choice;
}
