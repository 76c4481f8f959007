// The controller's part in the queue itself: the bar above the tabs that says
// what keeps the window from saving, and the set-up it offers.
#include "OVAlert.h"
#include "OVChooserTexts.h"
#include "OVMessageBar.h"
#include "OVMnemonics.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVWindowTexts.h"
#include "ui_MainUtilityWindiw.h"

using Problem = OVWindowQueue::Problem;

void OVPrinterUtilityWindowController::showProblem(Problem problem) {
    m_problem = problem;
    enter(m_state); // a read-only queue's settings are off
    if (problem == Problem::None) {
        m_messageBar->clearMessage();
        return;
    }
    const char *action = problemAction();
    m_messageBar->showMessage(OVWindowQueue::problemText(problem, m_printerId, m_server),
                              action ? localized(action) : QString());
    OVMnemonics::assign(m_window.get());
}

// The one way out the window itself has, where there is one.
const char *OVPrinterUtilityWindowController::problemAction() const {
    return m_problem == Problem::NotSetUp            ? OVWindowTexts::setUpButton
           : m_problem == Problem::Damaged           ? OVWindowTexts::repairButton
           : m_problem == Problem::ServerUnreachable ? OVChooserTexts::retry
                                                     : nullptr;
}

void OVPrinterUtilityWindowController::alertProblem() {
    const char *action = problemAction();
    const auto alerted = OVAlert::alertWithMessageText(
        OVWindowQueue::problemText(m_problem, m_printerId, m_server), localized(OVWindowTexts::ok),
        action ? localized(action) : QString(), QString(), QString());
    if (alerted->runModal() == OVAlert::alternateReturn && action)
        messageBarActionTriggered();
}

// Where nothing keeps the window from saving, the bar says what the user may
// want to know first: a stopped queue stores settings only once it runs
// again; a queue without a printer address offers the host it prints to,
// which fills the field (and is saved only with OK).
void OVPrinterUtilityWindowController::showQueueNote(const OVQueueDevice::Info &device) {
    m_offeredAddress.clear();
    if (m_problem != Problem::None)
        return;
    if (device.stopped) {
        m_messageBar->showMessage(localized(OVWindowTexts::queueStopped).arg(m_printerId));
        return;
    }
    if (!m_ui->printerIPAddressText->text().isEmpty() || device.host.isEmpty())
        return;
    m_offeredAddress = device.host;
    m_messageBar->showMessage(
        localized(OVWindowTexts::addressOffered).arg(m_printerId, device.host),
        localized(OVWindowTexts::useButton));
    OVMnemonics::assign(m_window.get());
}

void OVPrinterUtilityWindowController::messageBarActionTriggered() {
    if (m_state != State::Idle)
        return;
    if (m_problem == Problem::NotSetUp || m_problem == Problem::Damaged) {
        setUpQueue(m_problem == Problem::Damaged);
    } else if (m_problem == Problem::ServerUnreachable) {
        loadOptionsFromPPD();
    } else if (!m_offeredAddress.isEmpty()) {
        m_ui->printerIPAddressText->setText(m_offeredAddress);
        m_offeredAddress.clear();
        m_messageBar->clearMessage();
    }
}

void OVPrinterUtilityWindowController::setUpQueue(bool repair) {
    startTask(
        State::SettingUp,
        [queue = m_printerId, repair] {
            return repair ? OVWindowQueue::repair(queue) : OVWindowQueue::setUp(queue);
        },
        [this](const OVQueueSetup::Result &result) { setUpEnded(result); });
}

void OVPrinterUtilityWindowController::setUpEnded(const OVQueueSetup::Result &result) {
    enter(State::Idle);
    using Outcome = OVQueueSetup::Outcome;
    if (result.outcome == Outcome::Changed || result.outcome == Outcome::Unchanged) {
        // A repaired queue has settings to show now, where the window showed defaults.
        if (m_problem == Problem::Damaged)
            loadOptionsFromPPD();
        else
            showProblem(Problem::None);
        return;
    }
    alert(OVWindowQueue::setUpFailureText(result, m_printerId, m_server));
}

void OVPrinterUtilityWindowController::alert(const QString &text, const QString &detail) {
    const QStringList arguments = detail.isNull() ? QStringList() : QStringList{detail};
    OVAlert::alertWithMessageText(text, localized(OVWindowTexts::ok), QString(), QString(),
                                  OVAlert::plainMessageFormat, arguments)
        ->runModal();
}

bool OVPrinterUtilityWindowController::ask(const char *question, const char *button,
                                           const char *detail) {
    const auto asked = OVAlert::alertWithMessageText(localized(question), localized(button),
                                                     localized(OVChooserTexts::cancel), QString(),
                                                     localized(detail));
    asked->setEscapeButton(asked->panelButtons().last());
    return asked->runModal() == OVAlert::defaultReturn;
}
