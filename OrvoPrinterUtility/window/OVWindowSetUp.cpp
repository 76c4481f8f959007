#include "OVWindowSetUp.h"

#include "OVChooserTexts.h"
#include "OVCustomRestrictedTextField.h"
#include "OVPrinterUtilityHelper.h"
#include "OVRestrictedTextField.h"
#include "OVWindowTexts.h"
#include "OrvoSettingsKeywords.h"
#include "OrvoSettingsRules.h"
#include "ui_MainUtilityWindiw.h"

#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>
#include <QStyleHints>

namespace {
using namespace OVWindowTexts;

const QString communityInvalidCharacters = QStringLiteral("!\"#%%&'()*+-<=>?`{|}~");
const QString hexDigits = QStringLiteral("0123456789ABCDEFabcdef");
constexpr int macFieldMaxLength = 2;
constexpr int ipAddressMaxLength = 39;

QString localized(const char *key) {
    return OVPrinterUtilityHelper::getLocalizedStringFor(QString::fromUtf8(key));
}

// The characters the community may hold besides letters and digits, as the
// field's message lists them; the invisible U+200B would only puzzle there.
QString communitySymbols() {
    QStringList symbols;
    for (const QChar c : QString::fromUtf8(OrvoSettingsRules::communityCharacters))
        if (!c.isLetterOrNumber() && c != QChar(0x200B))
            symbols << QString(c);
    return symbols.join(u' ');
}

void setUpToolTips(Ui::MainUtilityWindiw &c) {
    c.printerGetPrinterInfoButton->setToolTip(localized(getPrinterInfoTip));
    for (QPushButton *button :
         {c.folderGetPrinterInfoButton, c.formGetPrinterInfoButton,
          c.barcodeAreaDefinitionGetPrinterInfoButton, c.colorProfileGetPrinterInfoButton})
        button->setToolTip(localized(getListTip));
    c.overstepTheRouter->setToolTip(localized(overTheRouterTip));
    c.folderPersonalFolderCheck->setToolTip(localized(personalFolderTip));
}

// A label's text as the name assistive technology reads for its field.
QString spokenLabel(const char *key) {
    return OVChooserTexts::withoutMnemonic(localized(key));
}

// "Add ->" read aloud would end in "dash greater than": the arrows only point
// at the list the button moves a folder to, which the layout already shows.
QString withoutArrows(QString text) {
    static const QRegularExpression arrows(QStringLiteral("\\s*(->|<-)\\s*"));
    return text.remove(arrows);
}

// The fields a label or check box names, which have no text of their own to
// be read by.
void setUpAccessibleNames(Ui::MainUtilityWindiw &c) {
    c.snmpCommunityText->setAccessibleName(spokenLabel(SnmpCommunityName));
    const QList<QLineEdit *> macFields = {c.macAddressText1, c.macAddressText2, c.macAddressText3,
                                          c.macAddressText4, c.macAddressText5, c.macAddressText6};
    for (qsizetype i = 0; i < macFields.size(); ++i)
        macFields[i]->setAccessibleName(localized(macAddressByte).arg(i + 1));
    c.printerIPAddressText->setAccessibleName(spokenLabel(ipAddressLabel));
    c.formTable->setAccessibleName(spokenLabel(formTab));
    c.barcodeAreaDefinitionTable->setAccessibleName(spokenLabel(barcodeTab));
    c.colorProfileTable->setAccessibleName(spokenLabel(colorProfileTab));
}

// The settings above the tabs.
QList<QWidget *> settingsChain(Ui::MainUtilityWindiw &c) {
    return {c.snmpCommunityCheck,
            c.snmpCommunityText,
            c.snmpSecurityButton,
            c.wakeOnLANCheck,
            c.macAddressText1,
            c.macAddressText2,
            c.macAddressText3,
            c.macAddressText4,
            c.macAddressText5,
            c.macAddressText6,
            c.overstepTheRouter,
            c.printerIPAddressText,
            c.printerGetPrinterInfoButton};
}

// Tab visits the controls of the page on show after the tab bar, in reading
// order; Qt skips those of the hidden pages.
QList<QWidget *> tabPageChain(Ui::MainUtilityWindiw &c) {
    return {c.folderSharedFolderTable,
            c.folderAddButton,
            c.folderDeleteButton,
            c.folderSelectedFolderTable,
            c.folderPersonalFolderCheck,
            c.folderGetPrinterInfoButton,
            c.folderClearButton,
            c.formTable,
            c.formGetPrinterInfoButton,
            c.formClearButton,
            c.barcodeAreaDefinitionTable,
            c.barcodeAreaDefinitionGetPrinterInfoButton,
            c.barcodeAreaDefinitionClearButton,
            c.colorProfileTable,
            c.colorProfileGetPrinterInfoButton,
            c.colorProfileClearButton};
}
} // namespace

// Several windows may be open at once, one per queue: the queue in the title
// tells them apart.
void OVWindowSetUp::setUpWindowTitle(QWidget *window, const std::optional<QVariantMap> &dictionary,
                                     const QString &queue) {
    QString title = window->windowTitle();
    if (!dictionary) {
        title = localized(defaultTitle);
    } else if (const auto modelName = dictionary->constFind(modelNameKey);
               modelName != dictionary->constEnd()) {
        title = modelName->toString() + localized(utilitySuffix);
    }
    if (!queue.isEmpty())
        title += QStringLiteral(" — ") + queue;
    window->setWindowTitle(title);
}

void OVWindowSetUp::makeScrollable(Ui::MainUtilityWindiw &c) {
    auto *content = new QWidget;
    auto *contentLayout = new QVBoxLayout(content);
    contentLayout->setContentsMargins(0, 0, 0, 0);
    while (c.mainLayout->count() > 1 && c.mainLayout->itemAt(0)->layout() != c.bottomLayout) {
        QLayoutItem *item = c.mainLayout->takeAt(0);
        if (QLayout *layout = item->layout()) {
            layout->setParent(nullptr);
            contentLayout->addLayout(layout);
            continue;
        }
        contentLayout->addWidget(item->widget());
        delete item;
    }
    auto *scroll = new QScrollArea;
    scroll->setObjectName("settingsScrollArea");
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    // Tab reaches the controls inside; the area itself is no stop.
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content);
    c.mainLayout->insertWidget(0, scroll, 1);
}

void OVWindowSetUp::fitIntoScreen(QWidget *window) {
    const QScreen *screen = window->screen();
    if (!screen)
        return;
    const QSize frame = window->frameGeometry().size() - window->geometry().size();
    window->resize(window->size().boundedTo(screen->availableGeometry().size() - frame));
}

void OVWindowSetUp::setUpTexts(Ui::MainUtilityWindiw &c) {
    c.okButton->setText(localized(ok));
    c.closeButton->setText(localized(closeButton));
    c.cancelButton->setText(localized(OVChooserTexts::cancel));
    c.introTextLabel->setText(localized(introText));
    c.snmpCommunityCheck->setText(localized(SnmpCommunityName));
    c.snmpSecurityButton->setText(localized(snmpSecurityButton));
    c.wakeOnLANCheck->setText(localized(wakeOnLan));
    c.macAddressLabel->setText(localized(macAddressLabel));
    c.overstepTheRouter->setText(localized(overTheRouter));
    c.printerIPAddressLabel->setText(localized(ipAddressLabel));
    c.printerGetPrinterInfoButton->setText(localized(getPrinterInfo));
    c.progressIndicatorText->setText(localized(gettingInformation));
    c.meinTabView->setTabText(c.meinTabView->indexOf(c.folderTabViewItem), localized(folderTab));
    c.meinTabView->setTabText(c.meinTabView->indexOf(c.formTabViewItem), localized(formTab));
    c.meinTabView->setTabText(c.meinTabView->indexOf(c.barcodeAreaDefinitionTabViewItem),
                              localized(barcodeTab));
    c.meinTabView->setTabText(c.meinTabView->indexOf(c.colorProfileTabViewItem),
                              localized(colorProfileTab));
    c.formLabel->setText(localized(formTab));
    c.barcodeAreaDefinitionLabel->setText(localized(barcodeTab));
    c.colorProfileLabel->setText(localized(colorProfileTab));
    for (QPushButton *button :
         {c.folderGetPrinterInfoButton, c.formGetPrinterInfoButton,
          c.barcodeAreaDefinitionGetPrinterInfoButton, c.colorProfileGetPrinterInfoButton})
        button->setText(localized(getPrinterInfo));
    for (QPushButton *button : {c.folderClearButton, c.formClearButton,
                                c.barcodeAreaDefinitionClearButton, c.colorProfileClearButton}) {
        button->setText(localized(clear));
        button->setToolTip(localized(clearTip));
    }
    setUpToolTips(c);
    setUpAccessibleNames(c);
}

void OVWindowSetUp::setUpSettingsFields(Ui::MainUtilityWindiw &c) {
    c.snmpCommunityCheck->setChecked(false);
    restrictToCommunityCharacters(c.snmpCommunityText, communityCharacter);
    c.snmpCommunityText->setText(OrvoSettingsKeywords::defaultCommunity);
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

// The characters and length the settings' rules allow, so the field refuses
// as it types what OK would refuse.
void OVWindowSetUp::restrictToCommunityCharacters(OVRestrictedTextField *field,
                                                  const char *refused) {
    field->setValidCharacters(QString::fromUtf8(OrvoSettingsRules::communityCharacters));
    field->setInvalidCharacters(communityInvalidCharacters);
    field->setMaxLength(int(OrvoSettingsRules::communityLimit));
    field->showMessageIfInvalid(true);
    field->setInvalidMessageString(localized(communityAllowed).arg(communitySymbols()),
                                   localized(refused));
}

void OVWindowSetUp::setUpFolderTab(Ui::MainUtilityWindiw &c) {
    c.folderSharedFolderLabel->setText(localized(sharedFolderInPrinter));
    c.folderRegisterFolderLabel->setText(localized(registerFolder));
    c.folderAddButton->setText(localized(add));
    c.folderDeleteButton->setText(localized(deleteButton));
    c.folderPersonalFolderCheck->setText(localized(UsePersonalFolder));
    c.folderSharedFolderTable->setAccessibleName(spokenLabel(sharedFolderInPrinter));
    c.folderSelectedFolderTable->setAccessibleName(spokenLabel(registerFolder));
    c.folderAddButton->setAccessibleName(withoutArrows(c.folderAddButton->text()));
    c.folderDeleteButton->setAccessibleName(withoutArrows(c.folderDeleteButton->text()));
    c.folderPersonalFolderCheck->setEnabled(false);
    c.folderPersonalFolderCheck->setChecked(false);
}

void OVWindowSetUp::setTabOrder(Ui::MainUtilityWindiw &c, const QList<QWidget *> &aboveTabs) {
    const bool allControls =
        QGuiApplication::styleHints()->tabFocusBehavior() == Qt::TabFocusAllControls;
    QList<QWidget *> chain;
    if (allControls)
        // The tab widget hands its focus to its tab bar.
        chain = settingsChain(c) + aboveTabs + QList<QWidget *>{c.meinTabView} + tabPageChain(c) +
                QList<QWidget *>{c.cancelButton, c.closeButton, c.okButton};
    else
        chain = {c.snmpCommunityText, c.macAddressText1, c.macAddressText2, c.macAddressText3,
                 c.macAddressText4,   c.macAddressText5, c.macAddressText6, c.printerIPAddressText};
    for (qsizetype i = 0; i + 1 < chain.size(); ++i)
        QWidget::setTabOrder(chain[i], chain[i + 1]);
    QWidget::setTabOrder(chain.last(), chain.first());
    chain.first()->setFocus();
}
