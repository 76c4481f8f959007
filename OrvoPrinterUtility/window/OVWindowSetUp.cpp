#include "OVWindowSetUp.h"

#include "OVCustomRestrictedTextField.h"
#include "OVPrinterUtilityHelper.h"
#include "OVRestrictedTextField.h"
#include "OVWindowTexts.h"
#include "OrvoSettingsKeywords.h"
#include "ui_MainUtilityWindiw.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace {
using namespace OVWindowTexts;

const QString communityValidCharacters =
    QStringLiteral(",./:;@[\\") + QChar(0x00A5) + QStringLiteral("]^_0123456789abcdefghijklmn") +
    QChar(0x200B) + QStringLiteral("opqrstuvwxyzABCDEFGHIJKLMN") + QChar(0x200B) +
    QStringLiteral("OPQRSTUVWXYZ");
const QString communityInvalidCharacters = QStringLiteral("!\"#%%&'()*+-<=>?`{|}~");
const QString hexDigits = QStringLiteral("0123456789ABCDEFabcdef");
constexpr int communityMaxLength = 32;
constexpr int macFieldMaxLength = 2;
constexpr int ipAddressMaxLength = 39;

QString localized(const char *key) {
    return OVPrinterUtilityHelper::getLocalizedStringFor(QString::fromUtf8(key));
}
} // namespace

void OVWindowSetUp::setUpWindowTitle(QWidget *window,
                                     const std::optional<QVariantMap> &dictionary) {
    if (!dictionary) {
        window->setWindowTitle(localized(DefaultTitle));
        return;
    }
    const auto modelName = dictionary->constFind(ModelNameKey);
    if (modelName != dictionary->constEnd())
        window->setWindowTitle(modelName->toString() + localized(UtilitySuffix));
}

void OVWindowSetUp::setUpTexts(Ui::MainUtilityWindiw &c) {
    c.okButton->setText(localized(OK));
    c.closeButton->setText(localized(Close));
    c.introTextLabel->setText(localized(IntroText));
    c.snmpCommunityCheck->setText(localized(SnmpCommunityName));
    c.wakeOnLANCheck->setText(localized(WakeOnLan));
    c.macAddressLabel->setText(localized(MacAddressLabel));
    c.overstepTheRouter->setText(localized(OverTheRouter));
    c.printerIPAddressLabel->setText(localized(IPAddressLabel));
    c.printerGetPrinterInfoButton->setText(localized(GetPrinterInfo));
    c.progressIndicatorText->setText(localized(GettingInformation));
    c.meinTabView->setTabText(c.meinTabView->indexOf(c.folderTabViewItem), localized(FolderTab));
    c.meinTabView->setTabText(c.meinTabView->indexOf(c.formTabViewItem), localized(FormTab));
    c.meinTabView->setTabText(c.meinTabView->indexOf(c.barcodeAreaDefinitionTabViewItem),
                              localized(BarcodeTab));
    c.meinTabView->setTabText(c.meinTabView->indexOf(c.colorProfileTabViewItem),
                              localized(ColorProfileTab));
    c.formLabel->setText(localized(FormTab));
    c.barcodeAreaDefinitionLabel->setText(localized(BarcodeTab));
    c.colorProfileLabel->setText(localized(ColorProfileTab));
    for (QPushButton *button :
         {c.folderGetPrinterInfoButton, c.formGetPrinterInfoButton,
          c.barcodeAreaDefinitionGetPrinterInfoButton, c.colorProfileGetPrinterInfoButton})
        button->setText(localized(GetPrinterInfo));
    for (QPushButton *button : {c.folderClearButton, c.formClearButton,
                                c.barcodeAreaDefinitionClearButton, c.colorProfileClearButton})
        button->setText(localized(Clear));
}

void OVWindowSetUp::setUpSettingsFields(Ui::MainUtilityWindiw &c) {
    c.snmpCommunityCheck->setChecked(false);
    c.snmpCommunityText->setValidCharacters(communityValidCharacters);
    c.snmpCommunityText->setInvalidCharacters(communityInvalidCharacters);
    c.snmpCommunityText->setMaxLength(communityMaxLength);
    c.snmpCommunityText->showMessageIfInvalid(true);
    c.snmpCommunityText->setInvalidMessageString(localized(ProhibitCharacter), QString(""));
    c.snmpCommunityText->setText(OrvoSettingsKeywords::DefaultCommunity);
    c.snmpCommunityText->setEnabled(false);
    c.wakeOnLANCheck->setChecked(true);
    for (OVCustomRestrictedTextField *field :
         {c.macAddressText1, c.macAddressText2, c.macAddressText3, c.macAddressText4,
          c.macAddressText5, c.macAddressText6}) {
        field->setValidCharacters(hexDigits);
        field->setMaxEditableTextLength(macFieldMaxLength);
        field->setText("00");
        field->setSendNotification(true);
    }
    c.overstepTheRouter->setChecked(false);
    c.printerIPAddressText->setMaxEditableTextLength(ipAddressMaxLength);
    c.printerIPAddressText->setText(QString(""));
}

void OVWindowSetUp::setUpFolderTab(Ui::MainUtilityWindiw &c) {
    c.folderSharedFolderLabel->setText(localized(SharedFolderInPrinter));
    c.folderRegisterFolderLabel->setText(localized(RegisterFolder));
    c.folderAddButton->setText(localized(Add));
    c.folderDeleteButton->setText(localized(Delete));
    c.folderPersonalFolderCheck->setText(localized(UsePersonalFolder));
    c.folderPersonalFolderCheck->setEnabled(false);
    c.folderPersonalFolderCheck->setChecked(false);
}

void OVWindowSetUp::setTabOrder(Ui::MainUtilityWindiw &c) {
    const bool allControls =
        QGuiApplication::styleHints()->tabFocusBehavior() == Qt::TabFocusAllControls;
    QList<QWidget *> chain;
    if (allControls)
        chain = {c.snmpCommunityCheck, c.snmpCommunityText,    c.wakeOnLANCheck,
                 c.macAddressText1,    c.macAddressText2,      c.macAddressText3,
                 c.macAddressText4,    c.macAddressText5,      c.macAddressText6,
                 c.overstepTheRouter,  c.printerIPAddressText, c.printerGetPrinterInfoButton,
                 c.meinTabView,        c.closeButton,          c.okButton};
    else
        chain = {c.snmpCommunityText, c.macAddressText1, c.macAddressText2, c.macAddressText3,
                 c.macAddressText4,   c.macAddressText5, c.macAddressText6, c.printerIPAddressText};
    for (qsizetype i = 0; i + 1 < chain.size(); ++i)
        QWidget::setTabOrder(chain[i], chain[i + 1]);
    QWidget::setTabOrder(chain.last(), chain.first());
    chain.first()->setFocus();
}
