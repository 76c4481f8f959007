#include "OVPrinterUtilityWindowController.h"

#include "OVCustomRestrictedTextField.h"
#include "OVLaunchEvent.h"
#include "OVMacAddressEntry.h"
#include "OVMessageBar.h"
#include "OVMnemonics.h"
#include "OVNotificationCenter.h"
#include "OVPrinterUtilityHelper.h"
#include "OVStoredSettings.h"
#include "OVTableViewDataSource.h"
#include "OVWindowSetUp.h"
#include "OVWindowTexts.h"
#include "OrvoSettingsKeywords.h"
#include "ui_MainUtilityWindiw.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

#include <mutex>

using namespace OVWindowTexts;

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
    OVWindowSetUp::makeScrollable(*m_ui);
    m_window->installEventFilter(this);
    resetLaunchState();
    connectActions();
    connect(new OVMacAddressEntry(macAddressFields(), this), &OVMacAddressEntry::filled, this,
            &OVPrinterUtilityWindowController::constraintsWakeOnLanItems);
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
    m_shownSettings.reset();
}

// ---- start-up and closing ---------------------------------------------------

void OVPrinterUtilityWindowController::applicationDidFinishLaunching(const QStringList &arguments) {
    m_printerId = OVLaunchEvent::printerIDFromArguments(arguments);
    loadControls();
}

// A task under way would keep the closing window for up to its limit, a
// wake flow for minutes: it ends now, and what it finds is not shown.
void OVPrinterUtilityWindowController::windowWillClose(const QString &identifier) {
    if (identifier == windowIdentifier)
        closeButtonClicked(m_ui->closeButton);
}

// The window is a dialog: Return presses OK (or the button that has the
// focus), Escape presses Close, and closing it is Close, which may be refused.
bool OVPrinterUtilityWindowController::eventFilter(QObject *watched, QEvent *event) {
    if (watched != m_window.get())
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::Close) {
        windowWillClose(m_window->objectName());
        event->setAccepted(m_state == State::Closing);
        return !event->isAccepted();
    }
    // Once shown, the window's frame is known, and the screen it is on.
    if (event->type() == QEvent::Show)
        OVWindowSetUp::fitIntoScreen(m_window.get());
    if (event->type() == QEvent::KeyPress)
        return pressDialogKey(static_cast<QKeyEvent *>(event)->key());
    return QObject::eventFilter(watched, event);
}

bool OVPrinterUtilityWindowController::pressDialogKey(int key) {
    QAbstractButton *button = nullptr;
    if (key == Qt::Key_Escape)
        button = m_ui->closeButton;
    else if (key == Qt::Key_Return || key == Qt::Key_Enter)
        button = qobject_cast<QPushButton *>(QApplication::focusWidget());
    else
        return false;
    if (!button)
        button = m_ui->okButton;
    if (button->isEnabled() && button->isVisible())
        button->click();
    return true;
}

// What the user changed since the settings were shown: fetched values
// count too, as they are not stored until OK.
bool OVPrinterUtilityWindowController::hasUnsavedChanges() const {
    if (!m_shownSettings)
        return false;
    OVSettingsSnapshot now = settingsSnapshot();
    now.isPPDOptionsUpdated = m_shownSettings->isPPDOptionsUpdated;
    return now != *m_shownSettings;
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
    OVWindowSetUp::setUpWindowTitle(m_window.get(), dictionary, m_printerId);
    OVWindowSetUp::setUpTexts(*m_ui);
    OVWindowSetUp::setUpSettingsFields(*m_ui);
    enter(State::Loading);
    OVWindowSetUp::setUpFolderTab(*m_ui);
    OVMnemonics::assign(m_window.get());
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
    Ui::MainUtilityWindiw &c = *m_ui;
    const std::pair<QAbstractButton *, Action> actions[] = {
        {c.printerGetPrinterInfoButton, &C::getPrinterInfoButtonClicked},
        {c.folderGetPrinterInfoButton, &C::folderGetPrinterInfoButtonClicked},
        {c.formGetPrinterInfoButton, &C::formGetPrinterInfoButtonClicked},
        {c.barcodeAreaDefinitionGetPrinterInfoButton,
         &C::barcodeAreaDefinitionGetPrinterInfoButtonClicked},
        {c.colorProfileGetPrinterInfoButton, &C::colorProfileGetPrinterInfoButtonClicked},
        {c.okButton, &C::okButtonClicked},
        {c.closeButton, &C::closeButtonClicked},
        {c.cancelButton, &C::cancelButtonClicked},
        {c.folderAddButton, &C::folderAddButtonClicked},
        {c.folderDeleteButton, &C::folderDeleteButtonClicked},
        {c.folderClearButton, &C::folderClearButtonClicked},
        {c.formClearButton, &C::formClearButtonClicked},
        {c.barcodeAreaDefinitionClearButton, &C::barcodeAreaDefinitionClearButtonClicked},
        {c.colorProfileClearButton, &C::colorProfileClearButtonClicked},
        {c.snmpCommunityCheck, &C::customSnmpCommunityClicked},
        {c.snmpSecurityButton, &C::snmpSecurityButtonClicked},
        {c.wakeOnLANCheck, &C::wakeOnLANCheckClicked}};
    for (const auto &[button, action] : actions)
        connect(button, &QAbstractButton::clicked, this,
                [this, button = button, action = action] { (this->*action)(button); });
    connect(m_messageBar, &OVMessageBar::actionTriggered, this,
            &OVPrinterUtilityWindowController::messageBarActionTriggered);
}

// What each state shows: the settings are on only when idle, where their
// own rules (constraintsSnmpItems, constraintsWakeOnLanItems) narrow them;
// nothing a task's notifications or the user's typing run turns one on
// meanwhile, since those rules do nothing outside the idle state.
void OVPrinterUtilityWindowController::enter(State state) {
    m_state = state;
    const bool idle = state == State::Idle;
    for (QWidget *control : settingsControls())
        control->setEnabled(editable());
    // Settings the user may not change can still be looked through, tab by tab.
    m_ui->meinTabView->setEnabled(idle);
    for (int i = 0; i < m_ui->meinTabView->count(); ++i)
        m_ui->meinTabView->widget(i)->setEnabled(editable());
    m_messageBar->actionButton()->setEnabled(idle);
    const bool cancellable =
        state == State::Fetching || state == State::Saving || state == State::SettingUp;
    m_ui->cancelButton->setVisible(cancellable);
    m_ui->cancelButton->setEnabled(cancellable);
    m_ui->closeButton->setEnabled(state != State::Closing);
    if (idle) {
        constraintsSnmpItems();
        constraintsWakeOnLanItems();
    }
    showProgress(state == State::Loading     ? loadingSettings
                 : state == State::Fetching  ? gettingInformation
                 : state == State::Saving    ? savingSettings
                 : state == State::SettingUp ? settingUpQueue
                                             : nullptr);
}

void OVPrinterUtilityWindowController::showProgress(const char *text) {
    const bool show = text != nullptr;
    if (show)
        m_ui->progressIndicatorText->setText(localized(text));
    m_ui->progressIndicatorText->setHidden(!show);
    m_ui->progressIndicatorText->repaint();
    m_ui->progressIndicator->setHidden(!show);
}

void OVPrinterUtilityWindowController::cancelButtonClicked(QObject *) {
    if (!m_task)
        return;
    m_task->cancel();
    // A fetch waits for its steps to return, at once now; a save's or a
    // set-up's result is dropped when it comes, and the bar still offers the
    // set-up, which does again only what is not done yet.
    if (m_state == State::Saving || m_state == State::SettingUp)
        enter(State::Idle);
}

bool OVPrinterUtilityWindowController::editable() const {
    return m_state == State::Idle && m_problem != OVWindowQueue::Problem::NotASaver;
}

void OVPrinterUtilityWindowController::constraintsSnmpItems() {
    if (!editable())
        return;
    // SNMPv3 asks as its user: the community row has no say then.
    const bool v1 = !m_snmp.v3();
    m_ui->snmpCommunityCheck->setEnabled(v1);
    m_ui->snmpCommunityText->setEnabled(v1 && m_ui->snmpCommunityCheck->isChecked());
}

void OVPrinterUtilityWindowController::constraintsWakeOnLanItems() {
    if (!editable())
        return;
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
