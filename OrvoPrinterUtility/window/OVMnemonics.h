#pragma once

#include <QList>
#include <QSet>
#include <QString>

class QTabWidget;
class QWidget;

// Gives every button, check box and tab of a window an Alt+letter of its
// own, in whatever language its texts came: a letter of the text where the
// text is written in Latin letters ("&Clear"), otherwise a letter after it in
// parentheses, as East Asian desktops write them ("クリア(&C)"). Mnemonics the
// texts already have are kept and not given twice.
class OVMnemonics {
public:
    static void assign(QWidget *window);
    // The letter a text's mnemonic uses, upper case; null for none.
    static QChar mnemonicOf(const QString &text);

private:
    static QString withMnemonic(const QString &text, QSet<QChar> &used);
    static QWidget *pageOf(const QWidget *control, const QList<QTabWidget *> &tabWidgets);
};
