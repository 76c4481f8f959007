#include "OVPrinterUtilityWindowController.h"

#include "OVAlert.h"
#include "OVBackgroundTask.h"
#include "OVControlsLock.h"
#include "OVCustomRestrictedTextField.h"
#include "OVInputHold.h"
#include "OVLaunchEvent.h"
#include "OVNotificationCenter.h"
#include "OVPrinterUtilityHelper.h"
#include "OVSaveSizeCheck.h"
#include "OVSettingsSnapshot.h"
#include "OVSleep.h"
#include "OVStoredSettings.h"
#include "OVTableViewDataSource.h"
#include "OVWindowLog.h"
#include "OVWindowSetUp.h"
#include "OVWindowTexts.h"
#include "OrvoSettingsKeywords.h"
#include "ui_MainUtilityWindiw.h"

#include <QCloseEvent>
#include <QCoreApplication>

#include <mutex>

namespace {
using namespace OVWindowTexts;
using Step = OVPrinterInfoFetch::Step;

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

// ---- controls ---------------------------------------------------------------

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

// The steps after the stored settings are in.
void OVPrinterUtilityWindowController::finishLoading(
    const std::optional<OVSettingsSnapshot> &settings) {
    if (loading_)
        loading_->release();
    loading_.reset();
    ui_->progressIndicatorText->setText(localized(GettingInformation));
    showProgress(false);
    if (settings)
        applySettings(*settings);
    initAddDeleteState();
    registerFolderTableViewDataSource_->selectFirstRow();
    loadFormValues();
    loadBarcodeAreaDefinitionValues();
    loadColorProfileValues();
    setTabOrder();
    emit settingsLoaded();
}

QList<QWidget *> OVPrinterUtilityWindowController::settingsControls() const {
    Ui::MainUtilityWindiw &c = *ui_;
    QList<QWidget *> controls = {c.snmpCommunityCheck,   c.snmpCommunityText,
                                 c.wakeOnLANCheck,       c.overstepTheRouter,
                                 c.printerIPAddressText, c.printerGetPrinterInfoButton,
                                 c.meinTabView,          c.okButton};
    for (QLineEdit *field : macAddressFields())
        controls << field;
    return controls;
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
    folders_.clear();
    showSelectedFolders();
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

// The window shows at once with its settings off while the print server is
// asked. A missing server, queue, PPD or attribute is never an error: the
// window keeps its defaults.
void OVPrinterUtilityWindowController::loadOptionsFromPPD() {
    if (!loading_)
        loading_ = std::make_unique<OVControlsLock>(settingsControls());
    ui_->progressIndicatorText->setText(localized(LoadingSettings));
    showProgress(true);
    OVBackgroundTask::run(
        this,
        [printerID = printerID_]() -> std::optional<OVSettingsSnapshot> {
            OVSettingsSnapshot settings;
            const auto status = OVStoredSettings::load(printerID, settings);
            qCDebug(orvoWindow) << "settings of" << printerID << "loaded:" << int(status);
            if (status != OVStoredSettings::Status::Loaded)
                return std::nullopt;
            return settings;
        },
        [this](const std::optional<OVSettingsSnapshot> &settings) { finishLoading(settings); });
}

void OVPrinterUtilityWindowController::applySettings(const OVSettingsSnapshot &s) {
    Ui::MainUtilityWindiw &c = *ui_;
    c.snmpCommunityCheck->setChecked(s.snmpCommunityCheck);
    c.snmpCommunityText->setText(s.snmpCommunityText);
    constraintsSnmpItems();
    c.wakeOnLANCheck->setChecked(s.wakeOnLANCheck);
    for (int i = 0; i < macFieldCount; ++i)
        macAddressFields()[i]->setText(s.macAddressFields[i]);
    constraintsWakeOnLanItems();
    c.overstepTheRouter->setChecked(s.overstepTheRouter);
    c.printerIPAddressText->setText(s.printerIPAddressText);
    applyFolderSettings(s);
    applyListSettings(s);
}

void OVPrinterUtilityWindowController::applyFolderSettings(const OVSettingsSnapshot &s) {
    isPPDOptionsUpdated_ = s.isPPDOptionsUpdated;
    folders_.load(s);
    showRegisterFolders();
    registerFolderTableViewDataSource_->selectLastRow();
    showSelectedFolders();
    ui_->folderPersonalFolderCheck->setChecked(s.folderPersonalFolderCheck);
    bAdminLoginModeEnabled_ = s.bAdminLoginModeEnabled;
    ui_->folderPersonalFolderCheck->setEnabled(bAdminLoginModeEnabled_);
}

void OVPrinterUtilityWindowController::applyListSettings(const OVSettingsSnapshot &s) {
    showList(formTableViewDataSource_.get(), ui_->formTable, s.formNames);
    showList(barcodeAreaDefinitionTableViewDataSource_.get(), ui_->barcodeAreaDefinitionTable,
             s.barcodeAreaDefinitionNames);
    showList(colorProfileTableViewDataSource_.get(), ui_->colorProfileTable, s.colorProfileNames);
}

void OVPrinterUtilityWindowController::showList(OVTableViewDataSource *dataSource,
                                                QTableView *table, const QStringList &list) {
    dataSource->setElementsArray(list);
    bindTable(dataSource, table);
    dataSource->selectFirstRow();
}

void OVPrinterUtilityWindowController::showRegisterFolders() {
    registerFolderTableViewDataSource_->setElementsArray(folders_.allSharedBoxNames());
    loadFolderValues();
}

void OVPrinterUtilityWindowController::showSelectedFolders() {
    selectedFolderTableViewDataSource_->setElementsArray(folders_.selectedSharedBoxNames());
    loadSelectedFolderValues();
    selectedFolderTableViewDataSource_->selectLastRow();
}

// ---- saving -----------------------------------------------------------------

void OVPrinterUtilityWindowController::okButtonClicked(QObject *) {
    if (saving_)
        return;
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
    saveOptionsToPPD();
}

// On a queue that is not set up the settings would be lost: say so and keep
// the window open with everything set. Otherwise the job is on its way.
void OVPrinterUtilityWindowController::saved(OVSettingsSave::Outcome outcome) {
    saving_ = false;
    if (outcome == OVSettingsSave::Outcome::Submitted) {
        closeButtonClicked(ui_->closeButton);
        return;
    }
    OVAlert::alertWithMessageText(localized(QueueNotSetUp).arg(printerID_), localized(OK),
                                  QString(), QString(), OVAlert::PlainMessageFormat, {})
        ->runModal();
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
    saving_ = true;
    OVSettingsSave::save(this, settingsSnapshot(), printerID_,
                         [this](OVSettingsSave::Outcome outcome) { saved(outcome); });
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
    s.allSharedBoxNames = folders_.allSharedBoxNames();
    s.selectedSharedBoxNames = folders_.selectedSharedBoxNames();
    s.selectedSharedBoxIndex = folders_.selectedSharedBoxIndex();
    s.folderPersonalFolderCheck = c.folderPersonalFolderCheck->isChecked();
    s.bAdminLoginModeEnabled = bAdminLoginModeEnabled_;
    s.formNames = formTableViewDataSource_->getElementsArray();
    s.barcodeAreaDefinitionNames = barcodeAreaDefinitionTableViewDataSource_->getElementsArray();
    s.colorProfileNames = colorProfileTableViewDataSource_->getElementsArray();
    return s;
}

// ---- folder selection -------------------------------------------------------

void OVPrinterUtilityWindowController::folderAddButtonClicked(QObject *) {
    folders_.add(registerFolderTableViewDataSource_->getSelectedRow(),
                 registerFolderTableViewDataSource_->getSelectedRowValue());
    showSelectedFolders();
}

void OVPrinterUtilityWindowController::folderDeleteButtonClicked(QObject *) {
    folders_.remove(selectedFolderTableViewDataSource_->getSelectedRow());
    selectedFolderTableViewDataSource_->setElementsArray(folders_.selectedSharedBoxNames());
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
    OVSettingsSnapshot shown;
    shown.allSharedBoxNames = registerFolderTableViewDataSource_->getElementsArray();
    shown.selectedSharedBoxNames = selectedFolderTableViewDataSource_->getElementsArray();
    shown.selectedSharedBoxIndex = folders_.selectedSharedBoxIndex();
    folders_.load(shown);
}

void OVPrinterUtilityWindowController::updateSelectedArrayStrings() {
    folders_.updateSelectedArrayStrings();
    showSelectedFolders();
}
