#include "OVPasswordPrompt.h"

#include "OVBackgroundTask.h"
#include "OVChooserTexts.h"
#include "OVMnemonics.h"
#include "OVWindowTexts.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <cups/cups.h>

namespace T = OVChooserTexts;

namespace {

QLineEdit *addField(QFormLayout *form, const char *label, const char *objectName) {
    auto *field = new QLineEdit(form->parentWidget());
    field->setObjectName(QString::fromLatin1(objectName));
    field->setAccessibleName(T::withoutMnemonic(T::localized(label)));
    form->addRow(T::localized(label), field);
    return field;
}

// The host as the user named it, with its port when that is not the usual one.
QString serverName(http_t *http) {
    if (!http)
        return QStringLiteral("localhost");
    char host[256];
    httpGetHostname(http, host, sizeof host);
    const int port = httpAddrPort(httpGetAddress(http));
    return port == IPP_PORT || port <= 0
               ? QString::fromUtf8(host)
               : QStringLiteral("%1:%2").arg(QString::fromUtf8(host)).arg(port);
}

} // namespace

OVPasswordPrompt::OVPasswordPrompt(QObject *parent)
    : QObject(parent) {
    // libcups keeps the callback per thread: it is set where the requests run.
    OVBackgroundTask::run(
        this, [this] { cupsSetPasswordCB2(&OVPasswordPrompt::callback, this); }, [] {});
}

// Requests handed over later must not call back into a prompt that is gone.
OVPasswordPrompt::~OVPasswordPrompt() {
    OVBackgroundTask::run(
        QCoreApplication::instance(), [] { cupsSetPasswordCB2(nullptr, nullptr); }, [] {});
}

const char *OVPasswordPrompt::callback(const char *, http_t *http, const char *, const char *,
                                       void *self) {
    return static_cast<OVPasswordPrompt *>(self)->answerOnWorker(http);
}

// A refused password makes libcups ask again on the same connection. A new
// connection or a new queue operation starts with every try again, and so
// does whatever comes after a request that gave up.
const char *OVPasswordPrompt::answerOnWorker(http_t *http) {
    if (http != m_lastConnection || ForQueue::s_operation != m_lastOperation) {
        m_lastConnection = http;
        m_lastOperation = ForQueue::s_operation;
        m_triesLeft = tries;
    }
    const bool again = m_triesLeft < tries;
    if (m_triesLeft-- == 0)
        return giveUp();
    const QString server = serverName(http);
    const QString queue = ForQueue::s_current;
    Answer answer;
    QMetaObject::invokeMethod(
        this, [&] { return ask(server, queue, again); }, Qt::BlockingQueuedConnection, &answer);
    if (!answer.given)
        return giveUp();
    cupsSetUser(answer.user.toUtf8().constData());
    m_password = answer.password.toStdString();
    return m_password.c_str();
}

const char *OVPasswordPrompt::giveUp() {
    m_lastConnection = nullptr;
    return nullptr;
}

OVPasswordPrompt::Answer OVPasswordPrompt::ask(const QString &server, const QString &queue,
                                               bool again) {
    QDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(T::localized(T::passwordTitle));
    auto *form = new QFormLayout(&dialog);
    QString message = queue.isEmpty() ? T::localized(T::passwordForServer).arg(server)
                                      : T::localized(T::passwordForQueue).arg(server, queue);
    if (again)
        message += "\n\n" + T::localized(T::passwordRefused);
    auto *explanation = new QLabel(message, &dialog);
    explanation->setObjectName(QStringLiteral("explanation"));
    explanation->setWordWrap(true);
    form->addRow(explanation);
    QLineEdit *user = addField(form, T::userName, "userName");
    QLineEdit *password = addField(form, T::password, "password");
    password->setEchoMode(QLineEdit::Password);
    user->setText(QString::fromUtf8(cupsUser()));
    (user->text().isEmpty() ? user : password)->setFocus();
    auto *buttons = new QDialogButtonBox(&dialog);
    buttons->addButton(T::localized(OVWindowTexts::ok), QDialogButtonBox::AcceptRole)
        ->setDefault(true);
    buttons->addButton(T::localized(T::cancel), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    form->addRow(buttons);
    OVMnemonics::assign(&dialog);
    emit asking(&dialog);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return {user->text(), password->text(), true};
}
