#include "OVPrinterUtilityWindowController.h"

#include "OVAlert.h"
#include "OVBackgroundTask.h"
#include "OVCustomRestrictedTextField.h"
#include "OVInputHold.h"
#include "OVLaunchEvent.h"
#include "OVNotificationCenter.h"
#include "OVPrinterUtilityHelper.h"
#include "OVQueueSetup.h"
#include "OVRestrictedTextField.h"
#include "OVSNMPHelper.h"
#include "OVSaveSizeCheck.h"
#include "OVSettingsSnapshot.h"
#include "OVStoredSettings.h"
#include "OVTableViewDataSource.h"
#include "OVUpdateJob.h"
#include "OVWakeOnLanHelper.h"
#include "OVWindowTexts.h"
#include "OrvoSNMPHelper.h"
#include "OrvoSettingsKeywords.h"
#include "ui_MainUtilityWindiw.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QStyleHints>

#include <mutex>
#include <unistd.h>

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

std::mutex dictionaryMutex;
std::optional<QVariantMap> &informationDictionary() {
    static std::optional<QVariantMap> dictionary;
    return dictionary;
}
} // namespace

OVPrinterUtilityWindowController::OVPrinterUtilityWindowController(QObject *parent)
    : QObject(parent)
    , window_(std::make_unique<QWidget>())
    , ui_(std::make_unique<Ui::MainUtilityWindiw>()) {
    ui_->setupUi(window_.get());
    window_->installEventFilter(this);
    resetLaunchState();
    connectActions();
}

// Observers registered with this controller as context leave with it.
OVPrinterUtilityWindowController::~OVPrinterUtilityWindowController() = default;

QWidget *OVPrinterUtilityWindowController::mainWindowObject() const {
    return window_.get();
}
Ui::MainUtilityWindiw &OVPrinterUtilityWindowController::controls() const {
    return *ui_;
}

OVTableViewDataSource *OVPrinterUtilityWindowController::registerFolderTableViewDataSource() const {
    return registerFolderTableViewDataSource_.get();
}
OVTableViewDataSource *OVPrinterUtilityWindowController::selectedFolderTableViewDataSource() const {
    return selectedFolderTableViewDataSource_.get();
}
OVTableViewDataSource *OVPrinterUtilityWindowController::formTableViewDataSource() const {
    return formTableViewDataSource_.get();
}
OVTableViewDataSource *
OVPrinterUtilityWindowController::barcodeAreaDefinitionTableViewDataSource() const {
    return barcodeAreaDefinitionTableViewDataSource_.get();
}
OVTableViewDataSource *OVPrinterUtilityWindowController::colorProfileTableViewDataSource() const {
    return colorProfileTableViewDataSource_.get();
}

void OVPrinterUtilityWindowController::setInformationDictionary(
    std::optional<QVariantMap> dictionary) {
    std::lock_guard lock(dictionaryMutex);
    informationDictionary() = std::move(dictionary);
}

void OVPrinterUtilityWindowController::resetLaunchState() {
    printerID_ = QString("");
    bAdminLoginModeEnabled_ = false;
    isPPDOptionsUpdated_ = false;
}

// ---- start-up and closing ---------------------------------------------------

void OVPrinterUtilityWindowController::applicationDidFinishLaunching(const QStringList &arguments) {
    printerID_ = OVLaunchEvent::printerIDFromArguments(arguments);
    loadControls();
}

void OVPrinterUtilityWindowController::windowWillClose(const QString &identifier) {
    if (identifier == windowIdentifier)
        closeButtonClicked(ui_->closeButton);
}

bool OVPrinterUtilityWindowController::eventFilter(QObject *watched, QEvent *event) {
    if (watched == window_.get() && event->type() == QEvent::Close)
        windowWillClose(window_->objectName());
    return QObject::eventFilter(watched, event);
}

QString OVPrinterUtilityWindowController::localized(const char *key) const {
    return OVPrinterUtilityHelper::getLocalizedStringFor(QString::fromUtf8(key));
}

// ---- controls ---------------------------------------------------------------

void OVPrinterUtilityWindowController::loadControls() {
    setUpWindowTitle();
    setUpTexts();
    setUpSettingsFields();
    showProgress(false);
    setUpFolderTab();
    createDataSources();
    OVNotificationCenter::defaultCenter().addObserver(
        OVCustomRestrictedTextField::Notification,
        [this](const OVNotification &) { receiveTextFieldNotification(); }, this);
    loadDefaultFolderValues();
    loadDefaultSelectedFolderValues();
    loadOptionsFromPPD();
    initAddDeleteState();
    registerFolderTableViewDataSource_->selectFirstRow();
    loadFormValues();
    loadBarcodeAreaDefinitionValues();
    loadColorProfileValues();
    setTabOrder();
}

void OVPrinterUtilityWindowController::setUpWindowTitle() {
    std::optional<QVariantMap> dictionary;
    {
        std::lock_guard lock(dictionaryMutex);
        dictionary = informationDictionary();
    }
    if (!dictionary) {
        window_->setWindowTitle(localized(DefaultTitle));
        return;
    }
    const auto modelName = dictionary->constFind(ModelNameKey);
    if (modelName != dictionary->constEnd())
        window_->setWindowTitle(modelName->toString() + localized(UtilitySuffix));
}

void OVPrinterUtilityWindowController::setUpTexts() {
    Ui::MainUtilityWindiw &c = *ui_;
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

void OVPrinterUtilityWindowController::setUpSettingsFields() {
    Ui::MainUtilityWindiw &c = *ui_;
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

void OVPrinterUtilityWindowController::setUpFolderTab() {
    Ui::MainUtilityWindiw &c = *ui_;
    c.folderSharedFolderLabel->setText(localized(SharedFolderInPrinter));
    c.folderRegisterFolderLabel->setText(localized(RegisterFolder));
    c.folderAddButton->setText(localized(Add));
    c.folderDeleteButton->setText(localized(Delete));
    c.folderPersonalFolderCheck->setText(localized(UsePersonalFolder));
    c.folderPersonalFolderCheck->setEnabled(false);
    c.folderPersonalFolderCheck->setChecked(false);
    bAdminLoginModeEnabled_ = false;
}

void OVPrinterUtilityWindowController::createDataSources() {
    for (auto *dataSource :
         {&registerFolderTableViewDataSource_, &selectedFolderTableViewDataSource_,
          &formTableViewDataSource_, &barcodeAreaDefinitionTableViewDataSource_,
          &colorProfileTableViewDataSource_})
        *dataSource = std::make_unique<OVTableViewDataSource>();
    allSharedBoxNames_.clear();
    selectedSharedBoxNames_.clear();
    selectedSharedBoxIndex_.clear();
}

void OVPrinterUtilityWindowController::connectActions() {
    using C = OVPrinterUtilityWindowController;
    const QList<QAbstractButton *> fetches = fetchButtons();
    const Action fetchActions[] = {
        &C::getPrinterInfoButtonClicked, &C::folderGetPrinterInfoButtonClicked,
        &C::formGetPrinterInfoButtonClicked, &C::barcodeAreaDefinitionGetPrinterInfoButtonClicked,
        &C::colorProfileGetPrinterInfoButtonClicked};
    Ui::MainUtilityWindiw &c = *ui_;
    const std::pair<QAbstractButton *, Action> others[] = {
        {c.okButton, &C::okButtonClicked},
        {c.closeButton, &C::closeButtonClicked},
        {c.folderAddButton, &C::folderAddButtonClicked},
        {c.folderDeleteButton, &C::folderDeleteButtonClicked},
        {c.folderClearButton, &C::folderClearButtonClicked},
        {c.formClearButton, &C::formClearButtonClicked},
        {c.barcodeAreaDefinitionClearButton, &C::barcodeAreaDefinitionClearButtonClicked},
        {c.colorProfileClearButton, &C::colorProfileClearButtonClicked},
        {c.snmpCommunityCheck, &C::customSnmpCommunityClicked},
        {c.wakeOnLANCheck, &C::wakeOnLANCheckClicked}};
    for (qsizetype i = 0; i < fetches.size(); ++i)
        connect(fetches[i], &QAbstractButton::clicked, this,
                [this, button = fetches[i], action = fetchActions[i]] {
                    runAction(button, action, true);
                });
    for (const auto &[button, action] : others)
        connect(button, &QAbstractButton::clicked, this,
                [this, button, action] { runAction(button, action, false); });
}

QList<QAbstractButton *> OVPrinterUtilityWindowController::fetchButtons() const {
    Ui::MainUtilityWindiw &c = *ui_;
    return {c.printerGetPrinterInfoButton, c.folderGetPrinterInfoButton, c.formGetPrinterInfoButton,
            c.barcodeAreaDefinitionGetPrinterInfoButton, c.colorProfileGetPrinterInfoButton};
}

// Only one action runs at a time: the printer arrays are shared, and each
// step of a fetch must see the controls as they were when it began. During a
// fetch the user's input to the window is held; a click or key on a fetch
// button is dropped for good, so no second fetch starts, then or afterwards.
// The rest (typing, OK, Close) takes effect, in order, once the fetch is over.
void OVPrinterUtilityWindowController::runAction(QAbstractButton *button, Action action,
                                                 bool isFetch) {
    if (actionRunning_)
        return;
    std::optional<OVInputHold> hold;
    if (isFetch)
        hold.emplace(window_.get(), fetchButtons());
    actionRunning_ = true;
    (this->*action)(button);
    actionRunning_ = false;
    // The window system keeps input back while a step runs; it reaches the
    // hold here, before the hold ends.
    if (hold)
        QCoreApplication::processEvents();
}

void OVPrinterUtilityWindowController::constraintsSnmpItems() {
    ui_->snmpCommunityText->setEnabled(ui_->snmpCommunityCheck->isChecked());
}

void OVPrinterUtilityWindowController::constraintsWakeOnLanItems() {
    Ui::MainUtilityWindiw &c = *ui_;
    const bool wake = c.wakeOnLANCheck->isChecked();
    bool anyMacText = false;
    for (QLineEdit *field : macAddressFields()) {
        field->setEnabled(wake);
        anyMacText = anyMacText || !field->text().isEmpty();
    }
    c.overstepTheRouter->setEnabled(wake && anyMacText);
}

bool OVPrinterUtilityWindowController::setMacAddressStr(const QString &macAddress) {
    const auto fields = macAddressFields();
    std::array<QString, macFieldCount> texts;
    for (int i = 0; i < macFieldCount; ++i)
        texts[i] = fields[i]->text();
    if (!OVStoredSettings::setMacAddressStr(texts, macAddress))
        return false;
    for (int i = 0; i < macFieldCount; ++i)
        fields[i]->setText(texts[i]);
    return true;
}

std::array<QLineEdit *, OVPrinterUtilityWindowController::macFieldCount>
OVPrinterUtilityWindowController::macAddressFields() const {
    Ui::MainUtilityWindiw &c = *ui_;
    return {c.macAddressText1, c.macAddressText2, c.macAddressText3,
            c.macAddressText4, c.macAddressText5, c.macAddressText6};
}

QByteArray OVPrinterUtilityWindowController::getSnmpCommunityFromUI() const {
    const QString text = ui_->snmpCommunityText->text();
    if (!ui_->snmpCommunityCheck->isChecked() || text.isEmpty())
        return QByteArray(OrvoSettingsKeywords::DefaultCommunity);
    // UTF-8, as the wake flow sends it: the field accepts characters outside
    // Latin-1 (U+200B), which must reach the printer as typed.
    return text.toUtf8();
}

QString OVPrinterUtilityWindowController::queryCommunity() const {
    return QString::fromUtf8(getSnmpCommunityFromUI());
}

QByteArray OVPrinterUtilityWindowController::queryAddress() const {
    return ui_->printerIPAddressText->text().toUtf8();
}

// With "tab focus reaches all controls" every control is in the chain;
// otherwise Tab moves between the text fields only.
void OVPrinterUtilityWindowController::setTabOrder() {
    Ui::MainUtilityWindiw &c = *ui_;
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

// ---- loading ----------------------------------------------------------------

void OVPrinterUtilityWindowController::loadDefaultFolderValues() {
    QStringList names;
    for (int n = 1; n <= OVStoredSettings::defaultFolderCount; ++n)
        names << OVStoredSettings::defaultFolderName(n);
    loadFolderValues();
    registerFolderTableViewDataSource_->setElementsArray(names);
    registerFolderTableViewDataSource_->selectFirstRow();
    OVNotificationCenter::defaultCenter().addObserver(
        OVTableViewDataSource::SelectionChangedNotification,
        [this](const OVNotification &) { receiveTableViewNotification(); }, this);
}

void OVPrinterUtilityWindowController::loadDefaultSelectedFolderValues() {
    selectedSharedBoxIndex_ = {0};
    selectedFolderTableViewDataSource_->setElementsArray(
        QStringList{OVStoredSettings::defaultFolderName(1)});
    loadSelectedFolderValues();
    selectedFolderTableViewDataSource_->selectLastRow();
}

void OVPrinterUtilityWindowController::bindTable(OVTableViewDataSource *dataSource,
                                                 QTableView *table) {
    dataSource->setTableView(table);
}

void OVPrinterUtilityWindowController::loadFolderValues() {
    bindTable(registerFolderTableViewDataSource_.get(), ui_->folderSharedFolderTable);
    registerFolderTableViewDataSource_->selectFirstRow();
}

void OVPrinterUtilityWindowController::loadSelectedFolderValues() {
    bindTable(selectedFolderTableViewDataSource_.get(), ui_->folderSelectedFolderTable);
    selectedFolderTableViewDataSource_->selectFirstRow();
}

void OVPrinterUtilityWindowController::loadFormValues() {
    bindTable(formTableViewDataSource_.get(), ui_->formTable);
}

void OVPrinterUtilityWindowController::loadBarcodeAreaDefinitionValues() {
    bindTable(barcodeAreaDefinitionTableViewDataSource_.get(), ui_->barcodeAreaDefinitionTable);
}

void OVPrinterUtilityWindowController::loadColorProfileValues() {
    bindTable(colorProfileTableViewDataSource_.get(), ui_->colorProfileTable);
}

// A missing server, queue, PPD or attribute is never an error: the window
// keeps its defaults.
void OVPrinterUtilityWindowController::loadOptionsFromPPD() {
    OVStoredSettings::withQueuePPD(printerID_, [this](ppd_file_t *ppd) { readSettings(ppd); });
}

void OVPrinterUtilityWindowController::readSettings(ppd_file_t *ppd) {
    Ui::MainUtilityWindiw &c = *ui_;
    c.snmpCommunityCheck->setChecked(OrvoSNMPHelper::isCustomSnmpCommunity(ppd));
    c.snmpCommunityText->setText(OrvoSNMPHelper::snmpCommunityName(ppd));
    constraintsSnmpItems();
    c.wakeOnLANCheck->setChecked(OrvoSNMPHelper::isWakeOnLan(ppd));
    setMacAddressStr(OrvoSNMPHelper::getPrinterMacAddress(ppd));
    constraintsWakeOnLanItems();
    c.overstepTheRouter->setChecked(OrvoSNMPHelper::isOverTheRouter(ppd));
    c.printerIPAddressText->setText(OrvoSNMPHelper::getPrinterIPAddress(ppd));
    readFolderSettings(ppd);
    readListSettings(ppd);
}

void OVPrinterUtilityWindowController::readFolderSettings(ppd_file_t *ppd) {
    const QStringList shared = OrvoSNMPHelper::getSharedBoxDetailsArray(ppd);
    if (!shared.isEmpty()) {
        registerFolderTableViewDataSource_->setElementsArray(shared);
        loadFolderValues();
        registerFolderTableViewDataSource_->selectLastRow();
    } else {
        loadDefaultFolderValues();
    }
    isPPDOptionsUpdated_ = OrvoSNMPHelper::isPPDOptionsUpdated(ppd);
    const QStringList chosen = isPPDOptionsUpdated_
                                   ? OrvoSNMPHelper::getSelectedSharedBoxDetailsArray(ppd)
                                   : QStringList{OVStoredSettings::defaultFolderName(1)};
    selectedFolderTableViewDataSource_->setElementsArray(chosen);
    loadSelectedFolderValues();
    selectedFolderTableViewDataSource_->selectLastRow();
    const QList<qint32> indices = OrvoSNMPHelper::getSelectedSharedBoxIndexArray(ppd);
    if (!indices.isEmpty())
        selectedSharedBoxIndex_ = indices;
    updateStringArrays();
    ui_->folderPersonalFolderCheck->setChecked(OrvoSNMPHelper::isPersonalFolderSelected(ppd));
    bAdminLoginModeEnabled_ = OrvoSNMPHelper::isAdminLoginModeEnabled(ppd);
    ui_->folderPersonalFolderCheck->setEnabled(bAdminLoginModeEnabled_);
    if (!bAdminLoginModeEnabled_)
        ui_->folderPersonalFolderCheck->setChecked(false);
}

void OVPrinterUtilityWindowController::readListSettings(ppd_file_t *ppd) {
    showList(formTableViewDataSource_.get(), ui_->formTable,
             OrvoSNMPHelper::getFormDetailsArray(ppd));
    loadFormValues();
    showList(barcodeAreaDefinitionTableViewDataSource_.get(), ui_->barcodeAreaDefinitionTable,
             OrvoSNMPHelper::getBarcodeAreaDefinitionDetailsArray(ppd));
    loadBarcodeAreaDefinitionValues();
    showList(colorProfileTableViewDataSource_.get(), ui_->colorProfileTable,
             OrvoSNMPHelper::getColorProfileDetailsArray(ppd));
    loadColorProfileValues();
}

void OVPrinterUtilityWindowController::showList(OVTableViewDataSource *dataSource,
                                                QTableView *table, const QStringList &list) {
    dataSource->setElementsArray(list);
    bindTable(dataSource, table);
    dataSource->selectFirstRow();
}

// ---- saving -----------------------------------------------------------------

void OVPrinterUtilityWindowController::okButtonClicked(QObject *) {
    updateStringArrays();
    isPPDOptionsUpdated_ = true;
    // cupsd hands all job options to the filter in one argument, which the
    // kernel limits to 128 KiB: a save that could not reach the driver keeps
    // the window open and says which lists to shorten, instead of closing
    // with the settings lost.
    const QStringList tooLong = OVSaveSizeCheck::listsToShorten(settingsSnapshot());
    if (!tooLong.isEmpty()) {
        showTooLongMessage(tooLong);
        return;
    }
    // On a queue that is not set up the update job would be printed, and the
    // settings lost: say so and keep the window open with everything set.
    if (OVQueueSetup::state(printerID_) == OVQueueSetup::State::NotSetUp) {
        OVAlert::alertWithMessageText(localized(QueueNotSetUp).arg(printerID_), localized(OK),
                                      QString(), QString(), OVAlert::PlainMessageFormat, {})
            ->runModal();
        return;
    }
    saveOptionsToPPD();
    closeButtonClicked(ui_->closeButton);
}

void OVPrinterUtilityWindowController::showTooLongMessage(const QStringList &listKeys) {
    QStringList names;
    for (const QString &key : listKeys)
        names << "\u2022 " + OVPrinterUtilityHelper::getLocalizedStringFor(key);
    const QString text = localized(SettingsTooLong);
    auto alert = OVAlert::alertWithMessageText(text, localized(OK), QString(), QString(),
                                               OVAlert::PlainMessageFormat, {names.join('\n')});
    alert->runModal();
}

void OVPrinterUtilityWindowController::closeButtonClicked(QObject *) {
    emit applicationShouldTerminate();
}

void OVPrinterUtilityWindowController::saveOptionsToPPD() {
    OVUpdateJob::saveOptionsToPPD(settingsSnapshot(), printerID_);
}

OVSettingsSnapshot OVPrinterUtilityWindowController::settingsSnapshot() const {
    Ui::MainUtilityWindiw &c = *ui_;
    OVSettingsSnapshot s;
    s.isPPDOptionsUpdated = isPPDOptionsUpdated_;
    s.snmpCommunityCheck = c.snmpCommunityCheck->isChecked();
    s.snmpCommunityText = c.snmpCommunityText->text();
    s.wakeOnLANCheck = c.wakeOnLANCheck->isChecked();
    for (int i = 0; i < macFieldCount; ++i)
        s.macAddressFields[i] = macAddressFields()[i]->text();
    s.overstepTheRouter = c.overstepTheRouter->isChecked();
    s.printerIPAddressText = c.printerIPAddressText->text();
    s.allSharedBoxNames = allSharedBoxNames_;
    s.selectedSharedBoxNames = selectedSharedBoxNames_;
    s.selectedSharedBoxIndex = selectedSharedBoxIndex_;
    s.folderPersonalFolderCheck = c.folderPersonalFolderCheck->isChecked();
    s.bAdminLoginModeEnabled = bAdminLoginModeEnabled_;
    s.formNames = formTableViewDataSource_->getElementsArray();
    s.barcodeAreaDefinitionNames = barcodeAreaDefinitionTableViewDataSource_->getElementsArray();
    s.colorProfileNames = colorProfileTableViewDataSource_->getElementsArray();
    return s;
}

// ---- folder selection -------------------------------------------------------

void OVPrinterUtilityWindowController::folderAddButtonClicked(QObject *) {
    const qint32 row = registerFolderTableViewDataSource_->getSelectedRow();
    selectedFolderTableViewDataSource_->addElement(
        registerFolderTableViewDataSource_->getSelectedRowValue());
    loadSelectedFolderValues();
    selectedFolderTableViewDataSource_->selectLastRow();
    selectedSharedBoxIndex_.append(row);
}

void OVPrinterUtilityWindowController::folderDeleteButtonClicked(QObject *) {
    const qint32 row = selectedFolderTableViewDataSource_->getSelectedRow();
    if (row >= 0 && row < selectedSharedBoxIndex_.size())
        selectedSharedBoxIndex_.removeAt(row);
    selectedFolderTableViewDataSource_->removeSelectedRow();
}

void OVPrinterUtilityWindowController::folderClearButtonClicked(QObject *) {
    loadDefaultFolderValues();
    loadDefaultSelectedFolderValues();
    selectedFolderTableViewDataSource_->unselectAllRow();
    ui_->folderAddButton->setEnabled(shouldEnableAdd());
    ui_->folderPersonalFolderCheck->setChecked(false);
    isPPDOptionsUpdated_ = false;
}

void OVPrinterUtilityWindowController::initAddDeleteState() {
    ui_->folderAddButton->setEnabled(shouldEnableAdd());
    ui_->folderDeleteButton->setEnabled(shouldEnableDelete());
}

bool OVPrinterUtilityWindowController::shouldEnableAdd() const {
    if (static_cast<qint32>(registerFolderTableViewDataSource_->count()) < 1)
        return false;
    return !selectedFolderTableViewDataSource_->isItemExist(
        registerFolderTableViewDataSource_->getSelectedRowValue());
}

bool OVPrinterUtilityWindowController::shouldEnableDelete() const {
    if (static_cast<qint32>(selectedFolderTableViewDataSource_->count()) < 1)
        return false;
    return !selectedFolderTableViewDataSource_->getSelectedRowValue().isNull();
}

void OVPrinterUtilityWindowController::receiveTableViewNotification() {
    initAddDeleteState();
}

void OVPrinterUtilityWindowController::receiveTextFieldNotification() {
    constraintsWakeOnLanItems();
}

void OVPrinterUtilityWindowController::updateStringArrays() {
    allSharedBoxNames_ = registerFolderTableViewDataSource_->getElementsArray();
    selectedSharedBoxNames_ = selectedFolderTableViewDataSource_->getElementsArray();
}

void OVPrinterUtilityWindowController::updateSelectedArrayStrings() {
    if (selectedSharedBoxIndex_.size() == selectedSharedBoxNames_.size()) {
        for (qsizetype i = 0; i < selectedSharedBoxIndex_.size(); ++i) {
            const qint32 n = selectedSharedBoxIndex_[i];
            if (n >= 0 && n < allSharedBoxNames_.size())
                selectedSharedBoxNames_[i] = allSharedBoxNames_[n];
        }
    }
    selectedFolderTableViewDataSource_->setElementsArray(selectedSharedBoxNames_);
    loadSelectedFolderValues();
    selectedFolderTableViewDataSource_->selectLastRow();
}

// ---- fetching from the printer ----------------------------------------------

void OVPrinterUtilityWindowController::showProgress(bool show) {
    ui_->progressIndicatorText->setHidden(!show);
    ui_->progressIndicatorText->repaint();
    ui_->progressIndicator->setHidden(!show);
}

void OVPrinterUtilityWindowController::showFailedMessage() {
    const QString text = localized(FailedToObtain);
    auto alert = OVAlert::alertWithMessageText(text, localized(OK), QString(), QString(),
                                               OVAlert::PlainMessageFormat, {text});
    alert->runModal();
}

bool OVPrinterUtilityWindowController::wakeOnLanWrapper() {
    Ui::MainUtilityWindiw &c = *ui_;
    const QString address = c.printerIPAddressText->text();
    const QString mac = macAddressFromFields();
    const QString community = c.snmpCommunityCheck->isChecked()
                                  ? c.snmpCommunityText->text()
                                  : QString(OrvoSettingsKeywords::DefaultCommunity);
    const bool wake = c.wakeOnLANCheck->isChecked();
    const bool overRouter = c.overstepTheRouter->isChecked();
    return OVBackgroundTask::wait([&] {
        return OVWakeOnLanHelper::SnmpWakeUpOnLan(address, mac, community, wake, overRouter);
    });
}

QString OVPrinterUtilityWindowController::macAddressFromFields() const {
    QStringList texts;
    for (const QLineEdit *field : macAddressFields())
        texts << field->text();
    return texts.join(':');
}

bool OVPrinterUtilityWindowController::passesFetchGuard() {
    showProgress(true);
    return ui_->printerIPAddressText->text() != QString("") && wakeOnLanWrapper();
}

void OVPrinterUtilityWindowController::failFetch() {
    showProgress(false);
    showFailedMessage();
    bError_ = true;
}

void OVPrinterUtilityWindowController::getPrinterInfoButtonClicked(QObject *) {
    showProgress(true);
    bError_ = false;
    Ui::MainUtilityWindiw &c = *ui_;
    const std::pair<void (OVPrinterUtilityWindowController::*)(QObject *), QObject *> steps[] = {
        {&OVPrinterUtilityWindowController::getPrinterInfoMacAddress, nullptr},
        {&OVPrinterUtilityWindowController::folderGetPrinterInfoButtonClicked,
         c.folderGetPrinterInfoButton},
        {&OVPrinterUtilityWindowController::formGetPrinterInfoButtonClicked,
         c.formGetPrinterInfoButton},
        {&OVPrinterUtilityWindowController::barcodeAreaDefinitionGetPrinterInfoButtonClicked,
         c.barcodeAreaDefinitionGetPrinterInfoButton},
        {&OVPrinterUtilityWindowController::colorProfileGetPrinterInfoButtonClicked,
         c.colorProfileGetPrinterInfoButton}};
    for (const auto &[step, sender] : steps) {
        if (bError_)
            break;
        (this->*step)(sender);
    }
    showProgress(false);
}

void OVPrinterUtilityWindowController::getPrinterInfoMacAddress(QObject *) {
    if (!passesFetchGuard()) {
        failFetch();
        return;
    }
    const QByteArray address = queryAddress();
    const QString community = queryCommunity();
    const QString mac = OVBackgroundTask::wait(
        [&] { return OVSNMPHelper::getMacAddress(address.constData(), community); });
    if (mac.isNull()) {
        failFetch();
        return;
    }
    if (setMacAddressStr(mac))
        constraintsWakeOnLanItems();
    showProgress(false);
}

void OVPrinterUtilityWindowController::folderGetPrinterInfoButtonClicked(QObject *) {
    if (!passesFetchGuard()) {
        failFolderFetch();
        return;
    }
    const QByteArray address = queryAddress();
    const char *host = address.constData();
    // The community is read afresh for every query, on this thread.
    const auto community = [this] { return queryCommunity(); };
    const int total = OVBackgroundTask::wait(
        [&, c = community()] { return OVSNMPHelper::snmpGetSharedBoxEntryForIPAddress(host, c); });
    const auto names = OVBackgroundTask::wait([&, c = community()] {
        return OVSNMPHelper::getValidatedSharedBoxNameArrayForIPAddress(host, c, total);
    });
    const auto states = OVBackgroundTask::wait([&, c = community()] {
        return OVSNMPHelper::getValidatedSharedBoxStateArrayForIPAddress(host, c, total);
    });
    applyFolderList(names, states);
    bAdminLoginModeEnabled_ = OVBackgroundTask::wait(
        [&, c = community()] { return OVSNMPHelper::getAdminLoginModeEnabled(host, c); });
    ui_->folderPersonalFolderCheck->setEnabled(bAdminLoginModeEnabled_);
    showProgress(false);
    if (!names || !states)
        failFolderFetch();
}

// Only folders in use (state "1") are offered; lists of different lengths
// are left alone without a message.
void OVPrinterUtilityWindowController::applyFolderList(const std::optional<QStringList> &names,
                                                       const std::optional<QStringList> &states) {
    if (!names || !states || names->isEmpty() || states->isEmpty() ||
        names->size() != states->size())
        return;
    QStringList inUse;
    for (qsizetype i = 0; i < states->size(); ++i) {
        if (states->at(i) == QLatin1String("1"))
            inUse << names->at(i);
    }
    allSharedBoxNames_ = inUse;
    registerFolderTableViewDataSource_->setElementsArray(inUse);
    updateStringArrays();
    updateSelectedArrayStrings();
}

void OVPrinterUtilityWindowController::failFolderFetch() {
    failFetch();
    loadDefaultFolderValues();
    loadDefaultSelectedFolderValues();
}

void OVPrinterUtilityWindowController::fetchList(ListQuery query,
                                                 OVTableViewDataSource *dataSource) {
    if (!passesFetchGuard()) {
        failFetch();
        return;
    }
    const QByteArray address = queryAddress();
    const QString community = queryCommunity();
    const auto list = OVBackgroundTask::wait([&] { return query(address.constData(), community); });
    if (!list) {
        failFetch();
        return;
    }
    if (!list->isEmpty()) {
        dataSource->setElementsArray(*list);
        dataSource->selectFirstRow();
    }
    showProgress(false);
}

void OVPrinterUtilityWindowController::formGetPrinterInfoButtonClicked(QObject *) {
    fetchList(&OVSNMPHelper::getValidatedFormNameArrayForIPAddress, formTableViewDataSource_.get());
}

void OVPrinterUtilityWindowController::barcodeAreaDefinitionGetPrinterInfoButtonClicked(QObject *) {
    fetchList(&OVSNMPHelper::getValidatedBarcodeAreaNameArrayForIPAddress,
              barcodeAreaDefinitionTableViewDataSource_.get());
}

void OVPrinterUtilityWindowController::colorProfileGetPrinterInfoButtonClicked(QObject *) {
    fetchList(&OVSNMPHelper::getValidatedColorProfileForIPAddress,
              colorProfileTableViewDataSource_.get());
}

void OVPrinterUtilityWindowController::formClearButtonClicked(QObject *) {
    formTableViewDataSource_->setElementsArray(std::nullopt);
}

void OVPrinterUtilityWindowController::barcodeAreaDefinitionClearButtonClicked(QObject *) {
    barcodeAreaDefinitionTableViewDataSource_->setElementsArray(std::nullopt);
}

void OVPrinterUtilityWindowController::colorProfileClearButtonClicked(QObject *) {
    colorProfileTableViewDataSource_->setElementsArray(std::nullopt);
}

void OVPrinterUtilityWindowController::customSnmpCommunityClicked(QObject *) {
    constraintsSnmpItems();
}

void OVPrinterUtilityWindowController::wakeOnLANCheckClicked(QObject *) {
    constraintsWakeOnLanItems();
}
