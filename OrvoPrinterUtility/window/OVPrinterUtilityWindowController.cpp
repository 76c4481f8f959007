#include "OVPrinterUtilityWindowController.h"

#include "OVControlsLock.h"
#include "OVCustomRestrictedTextField.h"
#include "OVInputHold.h"
#include "OVLaunchEvent.h"
#include "OVMessageBar.h"
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
    , m_window(std::make_unique<QWidget>())
    , m_ui(std::make_unique<Ui::MainUtilityWindiw>())
    , m_messageBar(new OVMessageBar(m_window.get())) {
    m_ui->setupUi(m_window.get());
    m_ui->mainLayout->insertWidget(m_ui->mainLayout->indexOf(m_ui->meinTabView), m_messageBar);
    m_window->installEventFilter(this);
    resetLaunchState();
    connectActions();
}

// Observers registered with this controller as context leave with it, and
// so do the callbacks of its background calls.
OVPrinterUtilityWindowController::~OVPrinterUtilityWindowController() = default;

QWidget *OVPrinterUtilityWindowController::mainWindowObject() const {
    return m_window.get();
}
Ui::MainUtilityWindiw &OVPrinterUtilityWindowController::controls() const {
    return *m_ui;
}

OVTableViewDataSource *OVPrinterUtilityWindowController::registerFolderTableViewDataSource() const {
    return m_registerFolderTableViewDataSource.get();
}
OVTableViewDataSource *OVPrinterUtilityWindowController::selectedFolderTableViewDataSource() const {
    return m_selectedFolderTableViewDataSource.get();
}
OVTableViewDataSource *OVPrinterUtilityWindowController::formTableViewDataSource() const {
    return m_formTableViewDataSource.get();
}
OVTableViewDataSource *
OVPrinterUtilityWindowController::barcodeAreaDefinitionTableViewDataSource() const {
    return m_barcodeAreaDefinitionTableViewDataSource.get();
}
OVTableViewDataSource *OVPrinterUtilityWindowController::colorProfileTableViewDataSource() const {
    return m_colorProfileTableViewDataSource.get();
}

void OVPrinterUtilityWindowController::setInformationDictionary(
    std::optional<QVariantMap> dictionary) {
    std::lock_guard lock(dictionaryMutex);
    informationDictionary() = std::move(dictionary);
}

void OVPrinterUtilityWindowController::resetLaunchState() {
    m_printerId = QString("");
    m_bAdminLoginModeEnabled = false;
    m_isPpdOptionsUpdated = false;
}

// ---- start-up and closing ---------------------------------------------------

void OVPrinterUtilityWindowController::applicationDidFinishLaunching(const QStringList &arguments) {
    m_printerId = OVLaunchEvent::printerIDFromArguments(arguments);
    loadControls();
}

// A wake flow under way would keep the closing window for minutes: its sleeps
// end now, and what it finds is no longer shown.
void OVPrinterUtilityWindowController::windowWillClose(const QString &identifier) {
    if (identifier != windowIdentifier)
        return;
    m_closing = true;
    OVSleep::setInterrupted(true);
    closeButtonClicked(m_ui->closeButton);
}

bool OVPrinterUtilityWindowController::eventFilter(QObject *watched, QEvent *event) {
    if (watched == m_window.get() && event->type() == QEvent::Close)
        windowWillClose(m_window->objectName());
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
    OVWindowSetUp::setUpWindowTitle(m_window.get(), dictionary);
    OVWindowSetUp::setUpTexts(*m_ui);
    OVWindowSetUp::setUpSettingsFields(*m_ui);
    showProgress(false);
    OVWindowSetUp::setUpFolderTab(*m_ui);
    m_bAdminLoginModeEnabled = false;
    createDataSources();
    OVNotificationCenter::defaultCenter().addObserver(
        OVCustomRestrictedTextField::notification,
        [this](const OVNotification &) { receiveTextFieldNotification(); }, this);
    loadDefaultFolderValues();
    loadDefaultSelectedFolderValues();
    loadOptionsFromPPD();
}

void OVPrinterUtilityWindowController::createDataSources() {
    for (auto *dataSource :
         {&m_registerFolderTableViewDataSource, &m_selectedFolderTableViewDataSource,
          &m_formTableViewDataSource, &m_barcodeAreaDefinitionTableViewDataSource,
          &m_colorProfileTableViewDataSource})
        *dataSource = std::make_unique<OVTableViewDataSource>();
    m_folders = OVFolderSelection();
}

void OVPrinterUtilityWindowController::connectActions() {
    using C = OVPrinterUtilityWindowController;
    const QList<QAbstractButton *> fetches = fetchButtons();
    const Action fetchActions[] = {
        &C::getPrinterInfoButtonClicked, &C::folderGetPrinterInfoButtonClicked,
        &C::formGetPrinterInfoButtonClicked, &C::barcodeAreaDefinitionGetPrinterInfoButtonClicked,
        &C::colorProfileGetPrinterInfoButtonClicked};
    Ui::MainUtilityWindiw &c = *m_ui;
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
                [this, button = button, action = action] { runAction(button, action, false); });
    connect(m_messageBar, &OVMessageBar::actionTriggered, this,
            &OVPrinterUtilityWindowController::messageBarActionTriggered);
}

QList<QAbstractButton *> OVPrinterUtilityWindowController::fetchButtons() const {
    Ui::MainUtilityWindiw &c = *m_ui;
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
    if (m_actionRunning)
        return;
    std::optional<OVInputHold> hold;
    if (isFetch)
        hold.emplace(m_window.get(), fetchButtons());
    m_actionRunning = true;
    (this->*action)(button);
    m_actionRunning = false;
    // The window system keeps input back while a step runs; it reaches the
    // hold here, before the hold ends.
    if (hold)
        QCoreApplication::processEvents();
}

void OVPrinterUtilityWindowController::constraintsSnmpItems() {
    m_ui->snmpCommunityText->setEnabled(m_ui->snmpCommunityCheck->isChecked());
}

void OVPrinterUtilityWindowController::constraintsWakeOnLanItems() {
    Ui::MainUtilityWindiw &c = *m_ui;
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
    Ui::MainUtilityWindiw &c = *m_ui;
    return {c.macAddressText1, c.macAddressText2, c.macAddressText3,
            c.macAddressText4, c.macAddressText5, c.macAddressText6};
}

QByteArray OVPrinterUtilityWindowController::getSnmpCommunityFromUI() const {
    const QString text = m_ui->snmpCommunityText->text();
    if (!m_ui->snmpCommunityCheck->isChecked() || text.isEmpty())
        return QByteArray(OrvoSettingsKeywords::defaultCommunity);
    // UTF-8, as the wake flow sends it: the field accepts characters outside
    // Latin-1 (U+200B), which must reach the printer as typed.
    return text.toUtf8();
}

void OVPrinterUtilityWindowController::setTabOrder() {
    OVWindowSetUp::setTabOrder(*m_ui, {m_messageBar->actionButton()});
}
