#include "OVAlert.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QProxyStyle>
#include <QPushButton>

namespace {

OVAlert::Responder &installedResponder() {
    static OVAlert::Responder responder;
    return responder;
}

// Keeps the first button rightmost and the others to its left whatever the
// desktop style says: callers know their buttons by position (default,
// alternate, other), so a theme must not reorder them.
class FixedButtonOrderStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override {
        if (hint == SH_DialogButtonLayout) {
            return QDialogButtonBox::MacLayout;
        }
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

QString fillFormat(const QString &format, const QStringList &arguments) {
    QString text;
    qsizetype next = 0;
    for (qsizetype i = 0; i < format.size(); ++i) {
        if (format.at(i) == u'%' && i + 1 < format.size()) {
            const QChar directive = format.at(i + 1);
            if (directive == u'@') {
                text += next < arguments.size() ? arguments.at(next++) : QString();
                ++i;
                continue;
            }
            if (directive == u'%') {
                text += directive;
                ++i;
                continue;
            }
        }
        text += format.at(i);
    }
    return text;
}

} // namespace

// The application's name as the desktop shows it, not its binary's.
OVAlert::OVAlert()
    : m_buttonBoxStyle(std::make_unique<FixedButtonOrderStyle>()) {
    setWindowTitle(QGuiApplication::applicationDisplayName());
    if (auto *box = findChild<QDialogButtonBox *>()) {
        box->setStyle(m_buttonBoxStyle.get());
    }
}

OVAlert::~OVAlert() {
    // The button box must not outlive the style it was given.
    if (auto *box = findChild<QDialogButtonBox *>()) {
        box->setStyle(nullptr);
    }
}

std::unique_ptr<OVAlert> OVAlert::alertWithMessageText(const QString &messageText,
                                                       const QString &defaultButton,
                                                       const QString &alternateButton,
                                                       const QString &otherButton,
                                                       const QString &informativeTextWithFormat,
                                                       const QStringList &arguments) {
    std::unique_ptr<OVAlert> alert(new OVAlert);
    alert->setIsSecondButtonOther(false);
    if (!messageText.isNull()) {
        alert->setText(messageText);
    }
    alert->addPanelButton(defaultButton.isNull() ? QString::fromLatin1(defaultButtonTitle)
                                                 : defaultButton);
    if (!otherButton.isNull()) {
        alert->addPanelButton(otherButton);
        alert->setIsSecondButtonOther(true);
    }
    if (!alternateButton.isNull()) {
        alert->addPanelButton(alternateButton);
    }
    if (!informativeTextWithFormat.isNull()) {
        alert->setInformativeText(fillFormat(informativeTextWithFormat, arguments));
    }
    return alert;
}

void OVAlert::addPanelButton(const QString &title) {
    // One role for all: the Mac layout places a role's buttons right to left
    // in the order they were added, which is the panel order wanted.
    QPushButton *button = addButton(title, QMessageBox::AcceptRole);
    if (m_buttons.isEmpty()) {
        setDefaultButton(button);
    }
    m_buttons.append(button);
}

QStringList OVAlert::buttonTitles() const {
    QStringList titles;
    for (const QPushButton *button : m_buttons) {
        titles.append(button->text());
    }
    return titles;
}

int OVAlert::runModal() {
    if (const Responder &responder = installedResponder()) {
        return resultForButtonIndex(responder(*this));
    }
    exec();
    return resultForButtonIndex(m_buttons.indexOf(qobject_cast<QPushButton *>(clickedButton())));
}

QPointer<OVAlert> OVAlert::showWithoutBlocking(std::unique_ptr<OVAlert> alert) {
    if (const Responder &responder = installedResponder()) {
        responder(*alert);
        return nullptr;
    }
    alert->setWindowModality(Qt::NonModal);
    alert->setAttribute(Qt::WA_ShowWithoutActivating);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->show();
    return alert.release();
}

int OVAlert::resultForButtonIndex(qsizetype index) const {
    switch (index) {
    case 1:
        return m_isSecondButtonOther ? otherReturn : alternateReturn;
    case 2:
        return alternateReturn;
    default:
        return defaultReturn;
    }
}

void OVAlert::setResponder(Responder responder) {
    installedResponder() = std::move(responder);
}
