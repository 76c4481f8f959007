#include "OVPrinterUtilityWindowController.h"

#include "OVControlsLock.h"
#include "OVCustomRestrictedTextField.h"
#include "OVInputHold.h"
#include "OVLaunchEvent.h"
#include "OVNotificationCenter.h"
#include "OVPrinterUtilityHelper.h"
#include "OVSleep.h"
#include "OVStoredSettings.h"
#include "OVTableViewDataSource.h"
#include "OVWindowSetUp.h"
#include "OrvoSettingsKeywords.h"
#include "ui_MainUtilityWindiw.h"

#include <QCloseEvent>
#include <QCoreApplication>

#include <mutex>

namespace {

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

// Observers registered with this controller as context leave with it, and
// so do the callbacks of its background calls.
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

// A wake flow under way would keep the closing window for minutes: its sleeps
// end now, and what it finds is no longer shown.
void OVPrinterUtilityWindowController::windowWillClose(const QString &identifier) {
    if (identifier != windowIdentifier)
        return;
    closing_ = true;
    OVSleep::setInterrupted(true);
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

// ---- set-up and controls ----------------------------------------------------

void OVPrinterUtilityWindowController::loadControls() {
    std::optional<QVariantMap> dictionary;
    {
        std::lock_guard lock(dictionaryMutex);
        dictionary = informationDictionary();
    }
    OVWindowSetUp::setUpWindowTitle(window_.get(), dictionary);
    OVWindowSetUp::setUpTexts(*ui_);
    OVWindowSetUp::setUpSettingsFields(*ui_);
    showProgress(false);
    OVWindowSetUp::setUpFolderTab(*ui_);
    bAdminLoginModeEnabled_ = false;
    createDataSources();
    OVNotificationCenter::defaultCenter().addObserver(
        OVCustomRestrictedTextField::Notification,
        [this](const OVNotification &) { receiveTextFieldNotification(); }, this);
    loadDefaultFolderValues();
    loadDefaultSelectedFolderValues();
    loadOptionsFromPPD();
}

void OVPrinterUtilityWindowController::createDataSources() {
    for (auto *dataSource :
         {&registerFolderTableViewDataSource_, &selectedFolderTableViewDataSource_,
          &formTableViewDataSource_, &barcodeAreaDefinitionTableViewDataSource_,
          &colorProfileTableViewDataSource_})
        *dataSource = std::make_unique<OVTableViewDataSource>();
    folders_ = OVFolderSelection();
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

void OVPrinterUtilityWindowController::setTabOrder() {
    OVWindowSetUp::setTabOrder(*ui_);
}
