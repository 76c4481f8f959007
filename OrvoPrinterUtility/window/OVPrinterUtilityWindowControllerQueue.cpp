// The controller's part in the queue itself: the bar above the tabs that says
// what keeps the window from saving, and the set-up it offers.
#include "OVAlert.h"
#include "OVChooserTexts.h"
#include "OVMessageBar.h"
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
    // The one way out the window itself has, where there is one.
    const char *action = problem == Problem::NotSetUp            ? OVWindowTexts::setUpButton
                         : problem == Problem::Damaged           ? OVWindowTexts::repairButton
                         : problem == Problem::ServerUnreachable ? OVChooserTexts::retry
                                                                 : nullptr;
    m_messageBar->showMessage(OVWindowQueue::problemText(problem, m_printerId, m_server),
                              action ? localized(action) : QString());
}

void OVPrinterUtilityWindowController::messageBarActionTriggered() {
    if (m_state != State::Idle)
        return;
    if (m_problem == Problem::NotSetUp || m_problem == Problem::Damaged)
        setUpQueue(m_problem == Problem::Damaged);
    else if (m_problem == Problem::ServerUnreachable)
        loadOptionsFromPPD();
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
