#include "OVPasswordPrompt.h"

#include "OVBackgroundTask.h"
#include "OVChooserTexts.h"
#include "OVPrinterUtilityHelper.h"
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

QString text(const char *key) {
    return OVPrinterUtilityHelper::getLocalizedStringFor(QString::fromUtf8(key));
}

QLineEdit *addField(QFormLayout *form, const char *label, const char *objectName) {
    auto *field = new QLineEdit(form->parentWidget());
    field->setObjectName(QString::fromLatin1(objectName));
    field->setAccessibleName(T::withoutMnemonic(text(label)));
    form->addRow(text(label), field);
    return field;
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
    if (http != lastConnection_ || ForQueue::operation != lastOperation_) {
        lastConnection_ = http;
        lastOperation_ = ForQueue::operation;
        triesLeft_ = tries;
    }
    const bool again = triesLeft_ < tries;
    if (triesLeft_-- == 0)
        return giveUp();
    char host[256] = "localhost";
    if (http)
        httpGetHostname(http, host, sizeof host);
    const QString server = QString::fromUtf8(host);
    const QString queue = ForQueue::current;
    Answer answer;
    QMetaObject::invokeMethod(
        this, [&] { return ask(server, queue, again); }, Qt::BlockingQueuedConnection, &answer);
    if (!answer.given)
        return giveUp();
    cupsSetUser(answer.user.toUtf8().constData());
    password_ = answer.password.toStdString();
    return password_.c_str();
}

const char *OVPasswordPrompt::giveUp() {
    lastConnection_ = nullptr;
    return nullptr;
}

OVPasswordPrompt::Answer OVPasswordPrompt::ask(const QString &server, const QString &queue,
                                               bool again) {
    QDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(text(T::PasswordTitle));
    auto *form = new QFormLayout(&dialog);
    QString message = queue.isEmpty() ? text(T::PasswordForServer).arg(server)
                                      : text(T::PasswordForQueue).arg(server, queue);
    if (again)
        message += "\n\n" + text(T::PasswordRefused);
    auto *explanation = new QLabel(message, &dialog);
    explanation->setObjectName(QStringLiteral("explanation"));
    explanation->setWordWrap(true);
    form->addRow(explanation);
    QLineEdit *user = addField(form, T::UserName, "userName");
    QLineEdit *password = addField(form, T::Password, "password");
    password->setEchoMode(QLineEdit::Password);
    user->setText(QString::fromUtf8(cupsUser()));
    (user->text().isEmpty() ? user : password)->setFocus();
    auto *buttons = new QDialogButtonBox(&dialog);
    buttons->addButton(text(OVWindowTexts::OK), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(text(T::Cancel), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    form->addRow(buttons);
    emit asking(&dialog);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return {user->text(), password->text(), true};
}
