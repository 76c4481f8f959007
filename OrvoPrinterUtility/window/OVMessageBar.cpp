#include "OVMessageBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

OVMessageBar::OVMessageBar(QWidget *parent)
    : QFrame(parent)
    , m_text(new QLabel(this))
    , m_action(new QPushButton(this)) {
    setObjectName("messageBar");
    setFrameShape(QFrame::StyledPanel);
    // The highlight colour of the user's theme, faded, so that the bar stands
    // out in light and dark themes alike and its text stays readable.
    QPalette tinted = palette();
    QColor background = tinted.color(QPalette::Highlight);
    background.setAlpha(40);
    tinted.setColor(QPalette::Window, background);
    setPalette(tinted);
    setAutoFillBackground(true);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_action);
    connect(m_action, &QPushButton::clicked, this, &OVMessageBar::actionTriggered);
    hide();
}

void OVMessageBar::showMessage(const QString &text, const QString &actionTitle) {
    m_text->setText(text);
    m_text->setAccessibleName(text);
    m_action->setText(actionTitle);
    m_action->setAccessibleName(actionTitle);
    m_action->setVisible(!actionTitle.isEmpty());
    show();
}

void OVMessageBar::clearMessage() {
    m_text->clear();
    hide();
}

QString OVMessageBar::text() const {
    return m_text->text();
}
