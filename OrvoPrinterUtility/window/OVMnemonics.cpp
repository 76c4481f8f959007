#include "OVMnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTabWidget>

namespace {

bool isAsciiLetterOrDigit(QChar c) {
    return c.isDigit() || (c.toLatin1() >= 'A' && c.toLatin1() <= 'Z') ||
           (c.toLatin1() >= 'a' && c.toLatin1() <= 'z');
}

// Texts with characters beyond Latin letters take their mnemonic after them.
bool isLatinText(const QString &text) {
    for (const QChar c : text)
        if (c.isLetter() && c.script() != QChar::Script_Latin)
            return false;
    return true;
}

QChar firstFree(const QString &candidates, const QSet<QChar> &used) {
    for (const QChar c : candidates)
        if (isAsciiLetterOrDigit(c) && !used.contains(c.toUpper()))
            return c;
    return {};
}

const QString alphabet = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");

} // namespace

QChar OVMnemonics::mnemonicOf(const QString &text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) != u'&')
            continue;
        if (text.at(i + 1) != u'&')
            return text.at(i + 1).toUpper();
        ++i;
    }
    return {};
}

QString OVMnemonics::withMnemonic(const QString &text, QSet<QChar> &used) {
    if (text.isEmpty() || !mnemonicOf(text).isNull())
        return text;
    const bool latin = isLatinText(text);
    const QChar letter = firstFree(latin ? text : text.toUpper() + alphabet, used);
    const QChar chosen = letter.isNull() ? firstFree(alphabet, used) : letter;
    if (chosen.isNull())
        return text;
    used << chosen.toUpper();
    if (!latin || letter.isNull())
        return text + QStringLiteral("(&") + chosen.toUpper() + u')';
    QString marked = text;
    return marked.insert(marked.indexOf(chosen), u'&');
}

// Which page of a tab widget a control is on; null outside every page.
QWidget *OVMnemonics::pageOf(const QWidget *control, const QList<QTabWidget *> &tabWidgets) {
    for (const QTabWidget *tabs : tabWidgets)
        for (int i = 0; i < tabs->count(); ++i)
            if (tabs->widget(i)->isAncestorOf(control))
                return tabs->widget(i);
    return nullptr;
}

// Only the page on show takes its controls' mnemonics, so controls of
// different pages may share a letter ("Clear" on each); none shares one
// with a control outside the pages or with a tab.
void OVMnemonics::assign(QWidget *window) {
    const auto tabWidgets = window->findChildren<QTabWidget *>();
    QHash<QWidget *, QList<QAbstractButton *>> byPage;
    QHash<QWidget *, QSet<QChar>> usedOnPage;
    for (QAbstractButton *button : window->findChildren<QAbstractButton *>())
        byPage[pageOf(button, tabWidgets)] << button;
    for (const QLabel *label : window->findChildren<QLabel *>())
        if (label->buddy())
            usedOnPage[pageOf(label, tabWidgets)] << mnemonicOf(label->text());
    for (auto page = byPage.cbegin(); page != byPage.cend(); ++page)
        for (const QAbstractButton *button : page.value())
            usedOnPage[page.key()] << mnemonicOf(button->text());
    for (const QTabWidget *tabs : tabWidgets)
        for (int i = 0; i < tabs->count(); ++i)
            usedOnPage[nullptr] << mnemonicOf(tabs->tabText(i));
    // Outside the pages, a letter must be free on every page.
    QSet<QChar> everywhere;
    for (const QSet<QChar> &used : std::as_const(usedOnPage))
        everywhere += used;
    for (QTabWidget *tabs : tabWidgets)
        for (int i = 0; i < tabs->count(); ++i)
            tabs->setTabText(i, withMnemonic(tabs->tabText(i), everywhere));
    for (QAbstractButton *button : byPage.value(nullptr))
        button->setText(withMnemonic(button->text(), everywhere));
    for (auto page = byPage.cbegin(); page != byPage.cend(); ++page) {
        if (!page.key())
            continue;
        QSet<QChar> used = everywhere;
        for (QAbstractButton *button : page.value())
            button->setText(withMnemonic(button->text(), used));
    }
}
